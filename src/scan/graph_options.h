#pragma once

#include <string_view>

#include "main/browsing.h"
#include "main/workplace.h"
#include "scan/graph.h"

namespace scan {

// The choices that the user has about the graph: its style, what it shows and in which order, the
// marks, and what the mouse reads from it.
class GraphOptions {
 public:
  // What the graph asks of the frame's menus.
  class Neighbours {
   public:
    virtual ~Neighbours() = default;
    virtual void SaveMenus() = 0;
    virtual void PopUpGraphMenu() = 0;
  };

  // A row of LstGraphStyles.
  enum class Style { kBlue, kColdWarmHot, kColdHot };

  GraphOptions(main_window::Workplace place, main_window::Browsing& browsing, Graph& graph,
               Neighbours& neighbours)
      : place_(place), browsing_(browsing), graph_(graph), neighbours_(neighbours) {}

  void Wire();

  void PopulateTheGraphLists();
  void GraphDisplaySettings();
  void LstGraphStyles_Click();
  // Takes a style: list, menus, colours, display. Nothing while the lists are empty.
  void ChooseStyle(Style style);
  void StandardDeviation();

  bool CheckGoBack(float number, int n);
  void GoBack(int steps);
  void ShowMainWindowGraph();

 private:
  void ProgressBar1_MouseDown(int index, base::MouseButton button);
  void ProgressBar1_MouseMove(int index);
  void Label1_MouseMove(int index);
  void HScroll1_Change();
  void Label4_Click();
  void Label5_Click();

  void ShowCountedBars();
  bool ApplyRow(const std::string& row);
  void RefreshGraph();
  void ShowRows(const base::ListBox& rows);
  void ColourByRow(int rows);
  void HideBars(int first, std::string_view digits);
  void WriteCounts(int first);

  main_window::Workplace place_;
  main_window::Browsing& browsing_;
  Graph& graph_;
  Neighbours& neighbours_;
};

}  // namespace scan
