#include "main/undo.h"

#include "base/language/numbers.h"
#include "main/draw_lists.h"
#include "main/draw_on_show.h"

namespace main_window {

std::string Undo::TakeBack() {
  store::OpenDatabase& database = place_.session.database;
  if (place_.desktop.Depth() > 1 || place_.desktop.IsYielding()) return {};
  const base::Desktop::Hold hold(place_.desktop, place_.window);
  std::string told;
  base::Trapped(place_.reporter, "Undo", [&] {
    if (!database.IsComplete()) return;
    const auto undoing = database.log.PlanUndo(database.Bytes());
    if (!undoing || !Apply(*undoing)) return;
    told = "Undone: " + undoing->told;
  });
  return told;
}

bool Undo::Apply(const store::ChangeLog::Undoing& undoing) {
  store::Session& session = place_.session;
  store::OpenDatabase& database = session.database;
  if (undoing.bytes != database.Bytes()) {
    if (!guard_.MayWrite()) return false;
    guard_.Rewrite(undoing.bytes);
    CloseRowEditor(session, place_.window);
  }
  database.log.Drop(undoing.changes);
  database.pending = undoing.pending;
  if (!database.pending.empty()) session.data_base_changed = true;
  session.current_place = 0;
  session.draw_count = base::ToInt16(session.UpperBound());
  FillLists(session, place_.window);
  ShowDraw(undoing.place);
  return true;
}

// A draw that is being typed stays in the boxes.
void Undo::ShowDraw(int place) {
  base::ListView& table = place_.window.ListView1;
  const bool typing = place_.session.shown_place == 0 && place_.window.cmdSave.Enabled();
  const int row = table.RowWithKey(place);
  table.Select(row > 0 ? row : table.RowCount());
  table.EnsureVisible(table.SelectedIndex());
  SetDrawOnShow(place_.session, place_.window, 0);
  if (!typing && table.RowCount() > 0) browsing_.FillFromListView();
}

}  // namespace main_window
