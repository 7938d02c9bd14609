#pragma once

#include "store/workplace.h"

namespace scan {

// The panel "Combinations": how often a typed line would have won.
class WinnerScan {
 public:
  explicit WinnerScan(store::Workplace place) : place_(place) {}

  void Wire();
  void Labscanwinners_Click();

 private:
  void SortNumbers();
  void TakeNumbers();
  void FillLines();
  void SelectLine(int row);

  store::Workplace place_;
};

}  // namespace scan
