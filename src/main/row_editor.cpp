#include "main/row_editor.h"

#include <algorithm>

#include "base/language/numbers.h"
#include "main/draw_on_show.h"
#include "store/draw_record.h"

namespace main_window {
namespace {

constexpr int kCells = 9;
constexpr int kDateCell = 7;
constexpr std::size_t kDateLength = 8;

}  // namespace

void RowEditor::Wire() {
  MainWindow& window = place_.window;
  const auto trapped = [this](const char* name, void (RowEditor::*procedure)()) {
    return base::Trap(place_.reporter, name, *this, procedure);
  };
  window.ListView1.on.double_click = trapped("ListView1_DblClick", &RowEditor::ListView1_DblClick);
  window.Label18.on.click = trapped("Label18_Click", &RowEditor::Label18_Click);
  window.CmdCancelSave.on.click = trapped("CmdCancelSave_Click", &RowEditor::CmdCancelSave_Click);
  window.Command18.on.click = trapped("Command18_Click", &RowEditor::Command18_Click);
}

void RowEditor::ListView1_DblClick() {
  store::Session& session = place_.session;
  MainWindow& window = place_.window;
  const int selected = window.ListView1.SelectedIndex();
  if (selected == 0) return;  // a double click beside the rows
  const base::ListView::Cells row = window.ListView1.Row(selected);
  session.editor_place = window.ListView1.Key(selected);
  window.Label18.SetEnabled(session.database.IsComplete() &&
                            session.editor_place != store::OpenDatabase::kBlankPlace);
  window.Picture6.BringToFront();
  window.Picture6.SetVisible(true);
  for (int cell = 0; cell < kCells; ++cell) {
    window.TxtChange(cell).SetText(row[static_cast<std::size_t>(cell)]);
  }
}

void RowEditor::Label18_Click() {
  MainWindow& window = place_.window;
  if (place_.desktop.IsHeld(window)) return;
  place_.session.data_base_changed = true;
  window.Picture6.SetVisible(true);
  for (int ball = 0; ball < store::kBalls; ++ball) {
    base::TextBox& box = window.TxtChange(ball);
    if (box.Text().size() == 1) box.SetText("0" + box.Text());
  }
  if (window.TxtChange(kDateCell).Text().size() < kDateLength) {
    place_.Ask({.text = "Please check the date is in this format 00/00/00"});
    return;
  }
  base::ListView::Cells cells;
  for (int cell = 0; cell < kCells; ++cell) cells.push_back(window.TxtChange(cell).Text());
  Change(place_.session.editor_place, std::move(cells));
  window.Picture6.SetVisible(false);
}

// Of a draw that was removed meanwhile there is no row to write to.
void RowEditor::Change(int draw, base::ListView::Cells cells) {
  store::OpenDatabase& database = place_.session.database;
  base::ListView& table = place_.window.ListView1;
  const int row = table.RowWithKey(draw);
  if (row == 0 || table.Row(row) == cells) return;
  database.log.Add({.told = "Draw of " + cells[kDateCell] + " changed",
                    .pending_before = database.pending,
                    .place = draw});
  for (int cell = 0; cell < kCells; ++cell) {
    table.SetCell(row, cell, cells[static_cast<std::size_t>(cell)]);
  }
  database.pending[draw] = std::move(cells);
  // The boxes would give the draw its old balls back with the next edit.
  if (draw == place_.session.shown_place && !IsEditing(place_.window)) browsing_.ShowCells(row);
}

void RowEditor::CmdCancelSave_Click() { place_.window.Picture6.SetVisible(false); }

void RowEditor::Command18_Click() {
  if (place_.desktop.IsHeld(place_.window)) return;
  place_.session.data_base_changed = true;
  SaveItToTemp();
}

void RowEditor::SaveItToTemp() {
  store::Session& session = place_.session;
  store::OpenDatabase& database = session.database;
  base::ListView& table = place_.window.ListView1;
  const int draw = session.shown_place;
  const int row = table.RowWithKey(draw);
  if (row == 0) return;
  if (draw != store::OpenDatabase::kBlankPlace) {
    database.log.Add({.told = "Draw of " + table.Cell(row, kDateCell) + " removed",
                      .pending_before = database.pending,
                      .place = draw});
    database.pending[draw] = std::nullopt;
  }
  table.RemoveRow(row);
  SetDrawOnShow(session, place_.window, 0);
  place_.desktop.SetFocus(table);
  const int next = std::min(row, table.RowCount());
  table.Select(next);
  table.EnsureVisible(next);
  session.selected_list_row = base::ToInt16(next);
  if (next > 0) browsing_.FillFromListView();
}

}  // namespace main_window
