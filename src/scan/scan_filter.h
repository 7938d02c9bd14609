#pragma once

#include "main/browsing.h"
#include "main/entry.h"
#include "main/workplace.h"
#include "scan/frequencies.h"

namespace scan {

// What a scan takes in: all draws, a range of them, or one weekday.
class ScanFilter {
 public:
  ScanFilter(main_window::Workplace place, main_window::Browsing& browsing,
             main_window::Entry& entry, Frequencies& frequencies)
      : place_(place), browsing_(browsing), entry_(entry), frequencies_(frequencies) {}

  void Wire();

  void Option6_Click();
  void OpScanRange_Click();
  void Combo7_Click();
  // After each key in a range box: brings the start draw to the screen and ends a scan.
  void TxtStartDrawAt_KeyUp();

 private:
  void GoToStartDraw();

  main_window::Workplace place_;
  main_window::Browsing& browsing_;
  main_window::Entry& entry_;
  Frequencies& frequencies_;
};

}  // namespace scan
