#include "store/row_editor.h"

#include <algorithm>

#include "base/language/numbers.h"
#include "store/draw_record.h"

namespace store {
namespace {

constexpr int kCells = 9;
constexpr int kDateCell = 7;
constexpr std::size_t kDateLength = 8;

}  // namespace

void RowEditor::Wire() {
  MainWindow& window = place_.window;
  const auto trapped = [this](const char* name, void (RowEditor::*procedure)()) {
    return
        [this, name, procedure] { Trapped(place_.reporter, name, [&] { (this->*procedure)(); }); };
  };
  window.ListView1.on.double_click = trapped("ListView1_DblClick", &RowEditor::ListView1_DblClick);
  window.Label18.on.click = trapped("Label18_Click", &RowEditor::Label18_Click);
  window.CmdCancelSave.on.click = trapped("CmdCancelSave_Click", &RowEditor::CmdCancelSave_Click);
  window.Command18.on.click = trapped("Command18_Click", &RowEditor::Command18_Click);
}

void RowEditor::ListView1_DblClick() {
  MainWindow& window = place_.window;
  const base::ListView::Cells row = window.ListView1.Row(window.ListView1.SelectedIndex());
  window.Picture6.BringToFront();
  window.Picture6.SetVisible(true);
  for (int cell = 0; cell < kCells; ++cell) {
    window.TxtChange(cell).SetText(row[static_cast<std::size_t>(cell)]);
  }
}

void RowEditor::Label18_Click() {
  MainWindow& window = place_.window;
  place_.session.data_base_changed = true;
  window.Picture6.SetVisible(true);
  for (int ball = 0; ball < kBalls; ++ball) {
    base::TextBox& box = window.TxtChange(ball);
    if (box.Text().size() == 1) box.SetText("0" + box.Text());
  }
  if (window.TxtChange(kDateCell).Text().size() < kDateLength) {
    place_.Ask({.text = "Please check the date is in this format 00/00/00"});
    return;
  }
  for (int cell = 0; cell < kCells; ++cell) {
    window.ListView1.SetCell(window.ListView1.SelectedIndex(), cell, window.TxtChange(cell).Text());
  }
  window.Picture6.SetVisible(false);
}

void RowEditor::CmdCancelSave_Click() { place_.window.Picture6.SetVisible(false); }

void RowEditor::Command18_Click() {
  place_.session.data_base_changed = true;
  SaveItToTemp();
}

void RowEditor::SaveItToTemp() {
  base::ListView& table = place_.window.ListView1;
  const int row = table.SelectedIndex();
  table.RemoveRow(row);
  place_.desktop.SetFocus(table);
  const int next = std::min(row, table.RowCount());
  table.Select(next);
  table.EnsureVisible(next);
  place_.session.selected_list_row = base::ToInt16(next);
}

}  // namespace store
