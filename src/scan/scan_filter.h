#pragma once

#include "scan/frequencies.h"
#include "store/browsing.h"
#include "store/entry.h"
#include "store/workplace.h"

namespace scan {

// What a scan takes in: all draws, a range of them, or one weekday.
class ScanFilter {
 public:
  ScanFilter(store::Workplace place, store::Browsing& browsing, store::Entry& entry,
             Frequencies& frequencies)
      : place_(place), browsing_(browsing), entry_(entry), frequencies_(frequencies) {}

  void Wire();

  void Option6_Click();
  void OpScanRange_Click();
  void Combo7_Click();
  // After each key in a range box: brings the start draw to the screen and ends a scan.
  void TxtStartDrawAt_KeyUp();

 private:
  void GoToStartDraw();

  store::Workplace place_;
  store::Browsing& browsing_;
  store::Entry& entry_;
  Frequencies& frequencies_;
};

}  // namespace scan
