#include "main/working_copy.h"

#include <algorithm>

#include "base/language/error.h"
#include "base/language/numbers.h"
#include "main/draw_lists.h"
#include "main/draw_on_show.h"
#include "store/earlier_states.h"

namespace main_window {
namespace {

// The table has every draw but those that were removed by hand.
bool IsWhole(const base::ListView& table, const store::OpenDatabase& database) {
  const auto removed = std::count_if(database.pending.begin(), database.pending.end(),
                                     [](const auto& row) { return !row.second.has_value(); });
  const bool has_blank = table.RowWithKey(store::OpenDatabase::kBlankPlace) > 0;
  const int draws = database.UpperBound() - (database.BeginsBlank() ? 1 : 0);
  return table.RowCount() - (has_blank ? 1 : 0) + removed >= draws;
}

}  // namespace

// --- After an edit

bool WorkingCopy::DoDataBase(const Edit& edit) {
  store::Session& session = place_.session;
  SetTempAside();
  session.temp_path = session.program_folder + "\\Temp.dat";
  place_.Yield();
  GoThroughLines();
  place_.Yield();
  const bool stored = Write(edit);
  place_.Yield();
  if (stored) store::GoToEnd(session);
  place_.Yield();
  if (stored) ShowEdited();
  session.temp_path.clear();
  return stored;
}

// Draws that an older desk left there when it was killed belong to a database that nobody knows any
// more. They are kept, and no edit takes them in.
void WorkingCopy::SetTempAside() {
  base::FileSystem& files = place_.World().files;
  const std::string temp = place_.session.program_folder + "\\Temp.dat";
  try {
    if (!files.IsTaken(temp)) return;
    std::string aside = temp + ".old";
    for (int number = 2; files.IsTaken(aside); ++number) {
      aside = temp + ".old" + std::to_string(number);
    }
    files.Rename(temp, aside);
  } catch (const base::Error&) {
    // It stays where it is, unread.
  }
}

void WorkingCopy::GoThroughLines() {
  store::Session& session = place_.session;
  base::ListBox& lines = place_.window.List7;
  lines.SetEnabled(false);
  const int last = lines.ListCount() - 1;
  lines.SetListIndex(last);
  if (last >= 0) {
    session.current_draw.spare = 0;
    store::ParseDrawLine(lines.Row(last), session.current_draw);
    session.current_draw.day = TwoLetterDay(session.current_draw.day);
    session.current_place = lines.Key(last);
  }
  session.current_draw_number = static_cast<float>(lines.ListCount() + 1);
  lines.SetEnabled(true);
}

bool WorkingCopy::Write(const Edit& edit) {
  store::OpenDatabase& database = place_.session.database;
  bool stored = false;
  base::Trapped(place_.reporter, "DoDataBase", [&] {
    const std::string before = database.Bytes();
    if (edit.bytes != before) {
      if (!guard_.MayWrite()) return;
      guard_.Rewrite(edit.bytes);
    }
    stored = true;
    // A correction that waited in the table has given way to the edit, whatever that wrote.
    if (edit.bytes == before && !database.pending.contains(edit.place)) return;
    database.log.Add({.told = "Draw of " + edit.date + " changed",
                      .bytes = store::ChangeOf(before, edit.bytes),
                      .pending_before = database.pending,
                      .place = edit.place});
    database.pending.erase(edit.place);
  });
  return stored;
}

void WorkingCopy::ShowEdited() {
  store::Session& session = place_.session;
  MainWindow& window = place_.window;
  base::Trapped(place_.reporter, "DoDataBase", [&] {
    window.tbar3.SetEnabled(false);
    window.cmdSave.SetEnabled(false);
    window.cmdClear.SetEnabled(false);
    browsing_.EnableTheButtons(true);
    browsing_.cmdFirst_Click();
    if (!session.current_draw.b[0].empty()) browsing_.cmdLast_Click();
    session.data_base_name.clear();
  });
}

// --- From the table

void WorkingCopy::RewriteFromTable() {
  store::Session& session = place_.session;
  store::OpenDatabase& database = session.database;
  if (!session.data_base_changed && !database.keeps_own_rows) return;
  if (!database.IsComplete()) return;
  base::Trapped(place_.reporter, "Form_Unload", [&] {
    const base::ListView& table = place_.window.ListView1;
    if (!IsWhole(table, database)) return TellNotWhole();
    const std::string bytes = BytesOfRows(table, session.current_draw.spare);
    GoThroughRows();
    if (bytes == database.Bytes() && !database.keeps_own_rows) return;
    if (guard_.MayWriteAtClose()) {
      WriteRows(bytes);
    } else if (database.keeps_own_rows) {
      KeepOwnRows(bytes);
    }
  });
}

// Rows went in some other way than by hand: the file is more to be trusted.
void WorkingCopy::TellNotWhole() {
  place_.Ask({.text = "The table does not hold every draw of the database, nothing was changed",
              .icon = base::BoxIcon::kExclamation});
}

// Leaves what showing and copying one row after the other leaves.
void WorkingCopy::GoThroughRows() {
  store::Session& session = place_.session;
  base::ListView& table = place_.window.ListView1;
  if (table.RowCount() > 0) {
    table.Select(table.RowCount());
    try {
      browsing_.ShowSelectedRow();
    } catch (const base::Error&) {
      // A row that the boxes cannot show is written as it stands.
    }
    const std::int16_t spare = session.current_draw.spare;
    session.current_draw = RecordOfRow(table.Row(table.RowCount()));
    session.current_draw.spare = spare;
  }
  session.file_pos = session.database.Positions().back();
  session.draw_count = base::ToInt16(session.UpperBound());
  session.current_draw_number = static_cast<float>(session.draw_count) + 1;
}

void WorkingCopy::WriteRows(const std::string& bytes) {
  store::Session& session = place_.session;
  guard_.Rewrite(bytes);
  session.file_pos = session.database.Positions().back();
  session.draw_count = base::ToInt16(session.UpperBound());
  session.current_draw_number = static_cast<float>(session.draw_count) + 1;
}

void WorkingCopy::KeepOwnRows(const std::string& bytes) {
  const store::OpenDatabase& database = place_.session.database;
  base::FileSystem& files = place_.World().files;
  const std::string own =
      store::FreeName(files, database.Path(), "own", place_.World().clock.Now());
  files.Replace(own, bytes);
  place_.Ask(
      {.text = "The draws that the desk held are kept as " + store::DatabaseName(own) + ".dat",
       .icon = base::BoxIcon::kInformation});
}

void WorkingCopy::StorePending() {
  store::Session& session = place_.session;
  store::OpenDatabase& database = session.database;
  base::ListView& table = place_.window.ListView1;
  // The places of the draws are not changed under a procedure that walks through them.
  if (database.pending.empty() || place_.desktop.IsYielding()) return;
  const base::Desktop::Hold hold(place_.desktop, place_.window);
  base::Trapped(place_.reporter, "StorePending", [&] {
    if (!IsWhole(table, database)) return TellNotWhole();
    const std::string before = database.Bytes();
    const std::string bytes = BytesOfRows(table, session.current_draw.spare);
    if (bytes != before) {
      if (!guard_.MayWrite()) return;
      guard_.Rewrite(bytes);
    }
    database.log.Add(
        {.bytes = store::ChangeOf(before, bytes), .pending_before = std::move(database.pending)});
    database.pending.clear();
    session.data_base_changed = false;
    ShowStored();
  });
}

// The draws have the places of their rows now, a blank one apart. What stands in the boxes and in
// the row editor stays there.
void WorkingCopy::ShowStored() {
  store::Session& session = place_.session;
  MainWindow& window = place_.window;
  const base::ListView& table = window.ListView1;
  const int blank = table.RowWithKey(store::OpenDatabase::kBlankPlace) > 0 ? 1 : 0;
  const auto place_of = [blank](int row) { return std::max(row - blank, 0); };
  const int selected = place_of(table.SelectedIndex());
  const int shown = place_of(table.RowWithKey(session.shown_place));
  session.editor_place = place_of(table.RowWithKey(session.editor_place));
  FillLists(session, window);
  window.ListView1.Select(std::min(selected, window.ListView1.RowCount()));
  window.ListView1.EnsureVisible(window.ListView1.SelectedIndex());
  session.current_place = 0;
  session.shown_place = shown;
  EnableChanges(session, window);
}

}  // namespace main_window
