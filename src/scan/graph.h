#pragma once

#include "main/workplace.h"

namespace scan {

// The looks of the graph: which colour and band each bar has, what is shown, and the tab strip of
// the side panels.
class Graph {
 public:
  explicit Graph(main_window::Workplace place) : place_(place) {}

  void Wire();

  void SetBarColours(const store::BarColours& colours) { place_.session.bar_colours = colours; }
  // Colours the bars cold, warm and hot by thirds of the ranking, or in two halves where that style
  // is chosen. Fewer than five ranked balls keep the colours they have.
  void DoBarColors();
  void DoBarColors2();
  void DoBarBackColur(base::Colour colour);
  // The band and its colour.
  void SetBand(base::Bar& bar, base::Band band);
  void MakeTheGraphVisible();
  void MakeTheGraphInVisible();

  void ChangeColour(base::Label& tab);
  void MoveThePictureBox(base::Panel& panel, base::Label& tab);
  void Label3_Click();
  void Label8_Click();

 private:
  base::Bar& BarOfRank(int rank);

  main_window::Workplace place_;
};

// Blue in all three bands on white: the style of a first start.
inline constexpr store::BarColours kBlueStyle{0xFF0000, 0xFF0000, 0xFF0000, 0xFFFFFF, 0xFF0000};

}  // namespace scan
