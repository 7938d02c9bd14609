#pragma once

#include "main/workplace.h"
#include "scan/graph.h"

namespace scan {

// What the window makes of the counts: the frequency report, the rankings with the seven most and
// least common balls, the due list, and the files and hand-overs of the reports.
class Frequencies {
 public:
  class Neighbours {
   public:
    virtual ~Neighbours() = default;
    // Opens the wheel window with the counts that the bars show.
    virtual void HandOverToWheels() = 0;
  };

  Frequencies(main_window::Workplace place, Graph& graph, Neighbours& neighbours)
      : place_(place), graph_(graph), neighbours_(neighbours) {}

  void Wire();

  void BallFrequancysMainWindow();
  void MostCommonMainWindow();
  void DueToAppearMainWindow(bool show_text);
  void Combo11_Click();
  void lblbuttons_MouseDown(int index);
  // The counts to the wheel window, whatever they are.
  void MakeWheel();
  // Sets the scale of all bars to the highest count, once three balls are ranked.
  void ScaleStep();
  // The window's shared working texts to their first state.
  void ResetWorkTexts();

 private:
  std::int16_t DrawsScanned() const;
  void WriteReport();
  void SelectFirstCounted();
  void PrintReport();

  main_window::Workplace place_;
  Graph& graph_;
  Neighbours& neighbours_;
};

}  // namespace scan
