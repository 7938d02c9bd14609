#include "main/draw_on_show.h"

namespace main_window {
namespace {

constexpr const char* kEdit = "Edit";

// A draw that the table has not lost.
bool IsInTable(const store::Session& session, const MainWindow& window) {
  return session.database.IsComplete() && window.ListView1.RowWithKey(session.shown_place) > 0;
}

// Also while a draw is looked at in between: what is typed over it is still to be added.
bool IsAdding(const MainWindow& window) { return window.cmdSave.Enabled(); }

}  // namespace

bool IsEditing(const MainWindow& window) { return window.cmdedit.Caption() != kEdit; }

void StopEditing(MainWindow& window) {
  window.cmdedit.SetCaption(kEdit);
  window.tbar3.SetEnabled(false);
}

void SetDrawOnShow(store::Session& session, MainWindow& window, int place) {
  session.shown_place = place;
  if (IsEditing(window)) StopEditing(window);
  EnableChanges(session, window);
}

void EnableChanges(store::Session& session, MainWindow& window) {
  const bool complete = session.database.IsComplete();
  const bool in_table = IsInTable(session, window);
  const bool blank = session.shown_place == store::OpenDatabase::kBlankPlace;
  window.cmdedit.SetEnabled(in_table && !blank);
  window.Command18.SetEnabled(in_table && !IsEditing(window) && !IsAdding(window));
  const bool was_barred = window.cmdAdd.ToolTipText() == kNotComplete;
  if (!complete || was_barred) window.cmdAdd.SetEnabled(complete);
  for (base::Button* button : {&window.cmdAdd, &window.cmdedit, &window.Command18}) {
    button->SetToolTipText(complete ? "" : kNotComplete);
  }
}

void CloseRowEditor(store::Session& session, MainWindow& window) {
  session.editor_place = 0;
  window.Picture6.SetVisible(false);
}

std::string BytesOnShow(store::Session& session) {
  store::OpenDatabase& database = session.database;
  const int number = database.NumberOf(session.shown_place);
  const bool none =
      session.shown_place < 1 || session.shown_place == store::OpenDatabase::kBlankPlace;
  if (none || number > database.UpperBound()) return {};
  store::DrawRecord draw;
  database.Read(database.PositionOf(number), draw);
  return store::EncodeRecord(draw);
}

}  // namespace main_window
