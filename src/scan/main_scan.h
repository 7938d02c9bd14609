#pragma once

#include "main/browsing.h"
#include "main/entry.h"
#include "main/workplace.h"
#include "scan/ball_counts.h"
#include "scan/frequencies.h"
#include "scan/graph.h"

namespace scan {

// The walk over the draws that counts every ball. The caption of CmdScan is the scan's only state:
// "Scan" is idle, "Stop" is running or suspended at the end of a range. A click on Stop arrives
// nested, in one of the yields.
class MainScan {
 public:
  MainScan(main_window::Workplace place, main_window::Browsing& browsing, main_window::Entry& entry,
           BallCounts& counts, Graph& graph, Frequencies& frequencies)
      : place_(place),
        browsing_(browsing),
        entry_(entry),
        counts_(counts),
        graph_(graph),
        frequencies_(frequencies) {}

  void Wire();

  void CmdScan_Click();
  // Counts the draw in current_draw if its day passes the filter.
  void FillTag();

 private:
  class ButtonStates;
  enum class Pass { kNext, kFinish, kSuspend };

  void StartOrStop(bool may_ask);
  void StopSteps();
  bool ConfirmNewScan(const ButtonStates& buttons);
  void ScanFromHere();
  Pass OnePass(int& first_scan_highest);
  void ReadNextDraw();
  void CountDraw();
  void CheckRange(int& first_scan_highest);
  void ZeroStatistics();
  void ShowDraw();
  void CountPositions();
  void ShowHiddenBoxes();
  void ShowWhereItStands();
  void Finish();
  void TakeSnapshot();

  main_window::Workplace place_;
  main_window::Browsing& browsing_;
  main_window::Entry& entry_;
  BallCounts& counts_;
  Graph& graph_;
  Frequencies& frequencies_;
};

}  // namespace scan
