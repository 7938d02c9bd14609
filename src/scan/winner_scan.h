#pragma once

#include "main/workplace.h"

namespace scan {

// The panel "Combinations": how often a typed line would have won.
class WinnerScan {
 public:
  explicit WinnerScan(main_window::Workplace place) : place_(place) {}

  void Wire();
  void Labscanwinners_Click();

 private:
  void SortNumbers();
  void TakeNumbers();
  void FillLines();
  void SelectLine(int row);

  main_window::Workplace place_;
};

}  // namespace scan
