#pragma once

#include "main/browsing.h"
#include "main/workplace.h"

namespace main_window {

// Correcting and removing draws in the table. Both reach the file when the window closes.
class RowEditor {
 public:
  RowEditor(Workplace place, Browsing& browsing) : place_(place), browsing_(browsing) {}

  void Wire();

  void ListView1_DblClick();
  void Label18_Click();  // accept
  void CmdCancelSave_Click();
  void Command18_Click();  // remove
  // Takes the draw on show out of the table and shows the one that takes its place.
  void SaveItToTemp();

 private:
  void Change(int draw, base::ListView::Cells cells);

  Workplace place_;
  Browsing& browsing_;
};

}  // namespace main_window
