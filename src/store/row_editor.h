#pragma once

#include "store/workplace.h"

namespace store {

// Correcting and removing draws in the table. Both reach the file when the window closes.
class RowEditor {
 public:
  explicit RowEditor(Workplace place) : place_(place) {}

  void Wire();

  void ListView1_DblClick();
  void Label18_Click();  // accept
  void CmdCancelSave_Click();
  void Command18_Click();  // remove
  // Takes the selected row out of the table and selects the one that follows it.
  void SaveItToTemp();

 private:
  Workplace place_;
};

}  // namespace store
