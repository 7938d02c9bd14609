#include "scan/graph_options.h"

#include <array>
#include <string>

#include "base/language/numbers.h"
#include "base/language/text.h"
#include "scan/draw_statistics.h"
#include "scan/ranking.h"

namespace scan {
namespace {

constexpr std::array<const char*, 3> kStyles{"Standard (Blue)", "Cold, Warm & Hot", "Cold and Hot"};
constexpr store::BarColours kBandStyle{0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF, 0xFF0000};
constexpr std::string_view kShowPast = "Show past ";
constexpr int kFewestPast = 2;
constexpr int kMostPast = 20;
constexpr int kBarGap = 12;

std::string BallText(std::string_view row) { return base::Mid(row, 5, 2); }

}  // namespace

void GraphOptions::Wire() {
  main_window::MainWindow& window = place_.window;
  window.Label4.on.click = [this] { Label4_Click(); };
  window.Label5.on.click = [this] { Label5_Click(); };
  window.LstGraphStyles.on.click = [this] { LstGraphStyles_Click(); };
  window.LstMainWinSettings.on.double_click = [this] { GraphDisplaySettings(); };
  window.ProgressBar1.Each([this](base::Bar& bar) {
    const int index = bar.Index();
    bar.on.mouse_down = [this, index](base::MouseButton button) {
      ProgressBar1_MouseDown(index, button);
    };
    bar.on.mouse_move = [this, index] { ProgressBar1_MouseMove(index); };
  });
  window.Label1.Each([this](base::Label& label) {
    label.on.mouse_move = [this, index = label.Index()] { Label1_MouseMove(index); };
  });
  window.HBar.on.change = [&window] { window.InnerPict.SetLeft(window.HBar.Value()); };
  window.HScroll1.on.change = [this] { HScroll1_Change(); };
}

void GraphOptions::PopulateTheGraphLists() {
  main_window::MainWindow& window = place_.window;
  if (window.LstGraphStyles.ListCount() > 0) return;
  for (const char* style : kStyles) window.LstGraphStyles.AddItem(style);
  for (const char* row : {"Refresh Graph", "Normal", "Low to high", "Show even", "Show odd"}) {
    window.LstMainWinSettings.AddItem(row);
  }
  for (int n = kFewestPast; n <= kMostPast; ++n) {
    window.LstMainWinSettings.AddItem(std::string(kShowPast) + base::IntegerText(n) + " draws");
  }
  if (window.LstGraphStyles.ListIndex() != 1) window.LstGraphStyles.SetListIndex(0);
}

// --- Styles

void GraphOptions::LstGraphStyles_Click() {
  const std::string& text = place_.window.LstGraphStyles.Text();
  for (std::size_t i = 0; i < kStyles.size(); ++i) {
    if (text == kStyles[i]) return ChooseStyle(static_cast<Style>(i));
  }
  graph_.SetBarColours(kBlueStyle);
  GraphDisplaySettings();
  graph_.DoBarColors();
}

void GraphOptions::ChooseStyle(Style style) {
  base::ListBox& styles = place_.window.LstGraphStyles;
  if (styles.ListCount() == 0) return;
  styles.SetListIndex(static_cast<int>(style));
  place_.session.graph_style_chosen = true;
  neighbours_.SaveMenus();
  graph_.SetBarColours(style == Style::kBlue ? kBlueStyle : kBandStyle);
  if (style == Style::kColdHot) {
    graph_.DoBarColors2();
  } else {
    graph_.DoBarColors();
  }
  GraphDisplaySettings();
}

// --- What is shown

void GraphOptions::GraphDisplaySettings() {
  main_window::MainWindow& window = place_.window;
  if (window.List3.ListCount() == 0) {
    place_.Ask({.text = "There is no data to work with, please use scan first"});
    return;
  }
  window.List3.SetListIndex(0);
  window.Label1(0).SetCaption(BallText(window.List3.Text()));
  window.List7.SetEnabled(true);
  ShowCountedBars();
  if (!ApplyRow(window.LstMainWinSettings.Text())) return;
  WriteCounts(1);
  browsing_.cmdLast_Click();
}

void GraphOptions::ShowCountedBars() {
  const base::Group<base::Bar>& bars = place_.window.ProgressBar1;
  for (int ball = 0; ball <= main_window::kLastBar; ++ball) {
    bars(ball).SetVisible(true);
    if (bars(ball + 1).Value() == 0) return;
  }
}

bool GraphOptions::ApplyRow(const std::string& row) {
  main_window::MainWindow& window = place_.window;
  if (row == "Refresh Graph") {
    RefreshGraph();
  } else if (row == "Normal") {
    ShowRows(window.List3);
    graph_.DoBarColors();
  } else if (row == "Low to high") {
    ShowRows(window.LstMainWindowSorted);
    ColourByRow(window.LstMainWindowSorted.ListCount());
  } else if (row == "Show odd") {
    WriteCounts(0);
    HideBars(0, "02468");
  } else if (row == "Show even") {
    WriteCounts(1);
    HideBars(1, "13579");
  } else if (row.starts_with(kShowPast)) {
    const int n = base::ToInt16(base::NumericValue(row.substr(kShowPast.size())));
    return CheckGoBack(place_.session.current_draw_number, n);
  }
  return true;
}

void GraphOptions::RefreshGraph() {
  place_.window.ProgressBar1.Each([](base::Bar& bar) {
    bar.SetVisible(true);
    bar.SetBorderStyle(0);
    bar.MarkChanged();
  });
}

// Gives bar i + 1 the count of row i, so that after sorting a bar stands for its row's ball.
void GraphOptions::ShowRows(const base::ListBox& rows) {
  main_window::MainWindow& window = place_.window;
  for (int i = 0; i < rows.ListCount(); ++i) {
    const std::string& row = rows.Row(i);
    window.ProgressBar1(i + 1).SetValue(CountOfRow(row));
    window.Label2(i + 1).SetNumber(window.ProgressBar1(i + 1).Value());
    window.Label1(i + 1).SetCaption(BallText(row));
  }
}

void GraphOptions::ColourByRow(int rows) {
  const bool halves = place_.window.LstGraphStyles.Text() == "Cold and Hot";
  const double cold_below = halves ? rows / 2.0 : rows / 3.0;
  const double hot_above = halves ? cold_below : cold_below + cold_below;
  for (int i = 0; i < rows; ++i) {
    const bool warm = !halves && i >= cold_below && i <= hot_above;
    graph_.SetBand(place_.window.ProgressBar1(i + 1), i < cold_below ? base::Band::kCold
                                                      : warm         ? base::Band::kWarm
                                                                     : base::Band::kHot);
  }
}

void GraphOptions::HideBars(int first, std::string_view digits) {
  for (int ball = first; ball <= main_window::kLastBar; ++ball) {
    base::Bar& bar = place_.window.ProgressBar1(ball);
    if (digits.find(base::SingleText(bar.Value()).back()) != std::string_view::npos) {
      bar.SetVisible(false);
    }
  }
}

void GraphOptions::WriteCounts(int first) {
  for (int ball = first; ball <= main_window::kLastBar; ++ball) {
    place_.window.Label2(ball).SetNumber(place_.window.ProgressBar1(ball).Value());
  }
}

bool GraphOptions::CheckGoBack(float number, int n) {
  graph_.MakeTheGraphInVisible();
  if (number - static_cast<float>(n) < 1) {
    place_.Ask({.text = "There are not " + base::IntegerText(n - 1) +
                        " draws in the buffer QND has reached the first record"});
    graph_.MakeTheGraphVisible();
    return false;
  }
  GoBack(n - 1);
  return true;
}

void GraphOptions::GoBack(int steps) {
  store::Session& session = place_.session;
  ShowMainWindowGraph();
  for (int step = 0; step < steps; ++step) {
    session.ReadDraw(session.current_draw_number - 1);
    session.draw_count = base::ToInt16(session.current_draw_number - 1);
    session.current_draw_number = session.draw_count;
    place_.Yield();
    browsing_.FillTextMainWindow();
    place_.Yield();
    ShowMainWindowGraph();
  }
}

void GraphOptions::ShowMainWindowGraph() {
  for (const int ball : place_.session.current_balls) {
    place_.window.ProgressBar1(ball).SetVisible(true);
  }
}

// --- The mouse on the graph

void GraphOptions::ProgressBar1_MouseDown(int index, base::MouseButton button) {
  main_window::MainWindow& window = place_.window;
  if (window.CmdScan.Caption() != "Scan") return;
  if (button == base::MouseButton::kRight) {
    if (window.List3.ListCount() == 0) return;
    PopulateTheGraphLists();
    neighbours_.PopUpGraphMenu();
  } else {
    base::Bar& bar = window.ProgressBar1(index);
    bar.SetBorderStyle(bar.BorderStyle() == 0 ? 1 : 0);
  }
}

void GraphOptions::ProgressBar1_MouseMove(int index) {
  main_window::MainWindow& window = place_.window;
  base::Bar& bar = window.ProgressBar1(index);
  if (bar.Value() == 0) {
    window.TxtGraph.SetCaption("");
    return;
  }
  const float number = place_.session.current_draw_number;
  const double count = base::NumericValue(window.Label2(index).Caption());
  const std::string& ball = window.Label1(index).Caption();
  const double start = base::NumericValue(window.TxtStartDrawAt(0).Text());
  const std::string tail = window.OpScanRange.Value()
                               ? " times in " + base::DoubleText(number - start) + " draws"
                               : " times since the lottery begain.";
  std::string text = ball + " has been drawn " + base::SingleText(bar.Value()) + tail + "\r\n";
  if (count > 1) {
    text += "To date " + ball + " has appeared every " +
            base::Left(base::DoubleText(number / count), 5) + " draws\r\n";
  }
  window.TxtGraph.SetCaption(text);
  bar.SetToolTipText("Number " + base::IntegerText(index));
}

void GraphOptions::Label1_MouseMove(int index) {
  base::Label& label = place_.window.Label1(index);
  label.SetToolTipText(label.Caption() + " has appeared " + place_.window.Label2(index).Caption() +
                       " times ");
}

void GraphOptions::HScroll1_Change() {
  main_window::MainWindow& window = place_.window;
  const int width = window.HScroll1.Value();
  for (int ball = 1; ball < main_window::kLastBar; ++ball) {
    base::Bar& bar = window.ProgressBar1(ball);
    base::Bar& next = window.ProgressBar1(ball + 1);
    bar.SetWidth(width);
    place_.Yield();
    next.SetLeft(bar.Left() + width - kBarGap);
    const int label_left = base::ToInt32(next.Left() + next.Width() / 4.0);
    window.Label1(ball + 1).SetLeft(label_left);
    window.Label2(ball + 1).SetLeft(label_left);
  }
}

// --- Panels and statistics

void GraphOptions::Label4_Click() {
  graph_.ChangeColour(place_.window.Label4);
  graph_.MoveThePictureBox(place_.window.Picture3, place_.window.Label4);
}

void GraphOptions::Label5_Click() {
  graph_.ChangeColour(place_.window.Label5);
  graph_.MoveThePictureBox(place_.window.Picture5, place_.window.Label5);
  PopulateTheGraphLists();
}

void GraphOptions::StandardDeviation() {
  main_window::MainWindow& window = place_.window;
  std::vector<float> counts;
  for (int ball = 1; ball <= main_window::kLastBar; ++ball) {
    counts.push_back(window.ProgressBar1(ball).Value());
  }
  place_.Ask(
      {.text = StatisticsText(Statistics(counts), base::NumericValue(window.txtRecNum.Text())),
       .title = "Draw Statistics"});
}

}  // namespace scan
