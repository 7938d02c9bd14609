#include "main/guard.h"

#include "main/draw_lists.h"
#include "main/draw_on_show.h"
#include "store/earlier_states.h"

namespace main_window {
namespace {

constexpr const char* kInUse = "The database is in use by another desk, nothing was changed";
constexpr const char* kNoLock =
    "Nothing can be stored in the folder of the databases, nothing was changed";

base::MessageBox Question(const std::string& text) {
  return {.text = text, .icon = base::BoxIcon::kExclamation, .buttons = base::BoxButtons::kYesNo};
}

}  // namespace

bool Guard::IsMine() {
  switch (place_.session.database.TryLock()) {
    case store::OpenDatabase::Access::kMine:
      return true;
    case store::OpenDatabase::Access::kInUse:
      place_.Ask({.text = kInUse, .icon = base::BoxIcon::kExclamation});
      return false;
    case store::OpenDatabase::Access::kNone:
      break;
  }
  place_.Ask({.text = kNoLock, .icon = base::BoxIcon::kExclamation});
  return false;
}

bool Guard::AskToWriteAgain() {
  store::OpenDatabase& database = place_.session.database;
  const base::Answer answer = place_.Ask(
      Question(database.Name() +
               " is no longer in its folder. Write the draws that the desk holds there again?"));
  database.keeps_own_rows = answer != base::Answer::kYes;
  if (database.keeps_own_rows) return false;
  // While the person thought about it, it may have come back.
  if (database.Compare() == store::OpenDatabase::Standing::kGone) database.WriteAgain();
  return true;
}

bool Guard::AskToLoadAgain() {
  store::OpenDatabase& database = place_.session.database;
  const base::Answer answer = place_.Ask(
      Question(database.Name() +
               " was changed by another program since it was opened. Nothing was saved. Load it "
               "again?"));
  database.keeps_own_rows = answer != base::Answer::kYes;
  return !database.keeps_own_rows;
}

bool Guard::MayWrite() {
  if (!place_.session.database.IsComplete()) {
    place_.Ask({.text = kNotComplete, .icon = base::BoxIcon::kExclamation});
    return false;
  }
  if (!IsMine()) return false;
  store::OpenDatabase::Standing standing = place_.session.database.Compare();
  while (standing == store::OpenDatabase::Standing::kGone) {
    if (!AskToWriteAgain()) return false;
    standing = place_.session.database.Compare();
  }
  if (standing == store::OpenDatabase::Standing::kAsRead) return true;
  if (AskToLoadAgain()) LoadAgain();
  return false;
}

bool Guard::MayWriteAtClose() {
  store::OpenDatabase& database = place_.session.database;
  if (!database.IsComplete() || !IsMine()) return false;
  store::OpenDatabase::Standing standing = database.Compare();
  while (standing == store::OpenDatabase::Standing::kGone && !database.keeps_own_rows) {
    if (!AskToWriteAgain()) return false;
    standing = database.Compare();
  }
  if (standing == store::OpenDatabase::Standing::kAsRead) return true;
  if (database.keeps_own_rows) return false;  // the person was asked before
  AskToLoadAgain();                           // yes: what stands in the file is what is wanted
  return false;
}

// The lists show what is in the file now. The draw on show is looked for in it, so that a change of
// it, still in the boxes, cannot land on another one.
void Guard::LoadAgain() {
  store::Session& session = place_.session;
  store::OpenDatabase& database = session.database;
  const std::string shown = BytesOnShow(session);
  const int old_place = session.shown_place;
  const store::DrawRecord current = session.current_draw;
  int place = 0;
  database.KeepWhatWasRead(place_.World().clock.Now());
  CloseRowEditor(session, place_.window);
  try {
    database.Open(std::string(database.Path()));
    store::WalkFile(session, [&] {
      if (shown.empty() || store::EncodeRecord(session.current_draw) != shown) return;
      if (place == 0 || session.current_place == old_place) place = session.current_place;
    });
  } catch (const base::Error&) {
    SetDrawOnShow(session, place_.window, 0);
    throw;
  }
  session.current_draw = current;
  session.current_place = 0;
  FillLists(session, place_.window);
  place_.window.ListView1.Select(place > 0 ? place : place_.window.ListView1.RowCount());
  session.data_base_changed = false;
  session.shown_place = place;
  EnableChanges(session, place_.window);
}

void Guard::Rewrite(const std::string& bytes) {
  store::OpenDatabase& database = place_.session.database;
  const store::OpenDatabase::Rewritten result = database.Rewrite(bytes, place_.World().clock.Now());
  if (result.foreign.empty()) return;
  place_.Ask({.text = database.Name() +
                      " was changed by another program while it was saved. What that wrote is "
                      "kept as Earlier\\" +
                      store::DatabaseName(result.foreign) + ".dat",
              .icon = base::BoxIcon::kExclamation});
}

}  // namespace main_window
