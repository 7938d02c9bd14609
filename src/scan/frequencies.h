#pragma once

#include "scan/graph.h"
#include "store/workplace.h"

namespace scan {

// What the window makes of the counts: the frequency report, the rankings with the seven most and
// least common balls, the due list, and the files and hand-overs of the reports.
class Frequencies {
 public:
  Frequencies(store::Workplace place, Graph& graph) : place_(place), graph_(graph) {}

  void Wire();

  void BallFrequancysMainWindow();
  void MostCommonMainWindow();
  void DueToAppearMainWindow(bool show_text);
  void Combo11_Click();
  void lblbuttons_MouseDown(int index);
  // Sets the scale of all bars to the highest count, once three balls are ranked.
  void ScaleStep();
  // The window's shared working texts to their first state.
  void ResetWorkTexts();

 private:
  std::int16_t DrawsScanned() const;
  void WriteReport();
  void SelectFirstCounted();
  void PrintReport();

  store::Workplace place_;
  Graph& graph_;
};

}  // namespace scan
