#include "scan/graph.h"

#include "base/language/numbers.h"
#include "scan/ranking.h"

namespace scan {
namespace {

constexpr int kFewestForColours = 5;
constexpr base::Colour kTabIdle = 0xE0E0E0;
constexpr base::Colour kTabChosen = 0xFFFFFF;
constexpr base::Colour kTabText = 0x000000;
constexpr base::Colour kTabChosenText = 0xFF0000;

}  // namespace

void Graph::Wire() {
  main_window::MainWindow& window = place_.window;
  window.Label3.on.click = [this] { Label3_Click(); };
  window.Label8.on.click = [this] { Label8_Click(); };
}

void Graph::DoBarColors() {
  const base::ListBox& ranking = place_.window.LstMainWindowSorted;
  if (place_.window.LstGraphStyles.Text() == "Cold and Hot" || place_.session.mnu_hc_on) {
    DoBarColors2();
    return;
  }
  const int count = ranking.ListCount();
  const int third = base::ToInt16(count / 3.0);
  const int top = third * 2;
  DoBarBackColur(place_.session.bar_colours.back);
  if (count < kFewestForColours) return;
  for (int rank = 1; rank <= count; ++rank) {
    SetBand(BarOfRank(rank), rank < third  ? base::Band::kCold
                             : rank <= top ? base::Band::kWarm
                                           : base::Band::kHot);
  }
}

void Graph::DoBarColors2() {
  const int count = place_.window.LstMainWindowSorted.ListCount();
  const int half = base::ToInt16(count / 2.0);
  DoBarBackColur(place_.session.bar_colours.back);
  if (count < kFewestForColours) return;
  for (int rank = 1; rank <= count; ++rank) {
    SetBand(BarOfRank(rank), rank < half ? base::Band::kCold : base::Band::kHot);
  }
}

base::Bar& Graph::BarOfRank(int rank) {
  return place_.window.ProgressBar1(BallOfRow(place_.window.LstMainWindowSorted.Row(rank - 1)));
}

void Graph::SetBand(base::Bar& bar, base::Band band) {
  const store::BarColours& colours = place_.session.bar_colours;
  bar.SetFillColor(band == base::Band::kCold   ? colours.cold
                   : band == base::Band::kWarm ? colours.warm
                                               : colours.hot);
  bar.SetRankBand(band);
}

void Graph::DoBarBackColur(base::Colour colour) {
  for (int ball = 1; ball <= main_window::kLastBar; ++ball) {
    place_.window.ProgressBar1(ball).SetBackColor(colour);
  }
}

void Graph::MakeTheGraphVisible() {
  place_.window.ProgressBar1.Each([](base::Bar& bar) { bar.SetVisible(true); });
}

void Graph::MakeTheGraphInVisible() {
  place_.window.ProgressBar1.Each([](base::Bar& bar) { bar.SetVisible(false); });
}

void Graph::ChangeColour(base::Label& tab) {
  main_window::MainWindow& window = place_.window;
  for (base::Label* other : {&window.Label3, &window.Label4, &window.Label5, &window.Label8}) {
    other->SetBackColor(kTabIdle);
  }
  tab.SetBackColor(kTabChosen);
}

void Graph::MoveThePictureBox(base::Panel& panel, base::Label& tab) {
  main_window::MainWindow& window = place_.window;
  for (base::Panel* other :
       {&window.PicScanFilter, &window.Picture5, &window.Picture4, &window.Picture3}) {
    other->SetVisible(false);
  }
  for (base::Label* other : {&window.Label3, &window.Label4, &window.Label5, &window.Label8}) {
    other->SetForeColor(kTabText);
  }
  panel.BringToFront();
  panel.SetVisible(true);
  tab.SetForeColor(kTabChosenText);
  panel.Move(120, 3450, 4665, 2115);
}

void Graph::Label3_Click() {
  ChangeColour(place_.window.Label3);
  MoveThePictureBox(place_.window.Picture4, place_.window.Label3);
}

void Graph::Label8_Click() {
  ChangeColour(place_.window.Label8);
  MoveThePictureBox(place_.window.PicScanFilter, place_.window.Label8);
}

}  // namespace scan
