#pragma once

#include "store/browsing.h"
#include "store/workplace.h"

namespace scan {

// The panel "Combinations": how often a typed line would have won.
class WinnerScan {
 public:
  WinnerScan(store::Workplace place, store::Browsing& browsing)
      : place_(place), browsing_(browsing) {}

  void Wire();
  void Labscanwinners_Click();

 private:
  void SortNumbers();
  void TakeNumbers();
  void FillLines();
  void SelectLine(int row);

  store::Workplace place_;
  store::Browsing& browsing_;
};

}  // namespace scan
