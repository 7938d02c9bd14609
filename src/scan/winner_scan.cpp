#include "scan/winner_scan.h"

#include <algorithm>

#include "base/language/numbers.h"
#include "scan/line_matches.h"
#include "store/draw_record.h"

namespace scan {
namespace {

constexpr int kPasses = 10;
constexpr std::size_t kExtraPlace = 7;
constexpr char kBackspace = 8;

// Brings two boxes into ascending order; an empty box stays behind a filled one.
void SortTwoBoxes(base::TextBox& first, base::TextBox& second) {
  const double a = base::NumericValue(first.Text());
  const double b = base::NumericValue(second.Text());
  if (b == 0 || b >= a) return;
  first.SetText(base::DoubleText(b));
  second.SetText(base::DoubleText(a));
}

}  // namespace

void WinnerScan::Wire() {
  main_window::MainWindow& window = place_.window;
  window.Labscanwinners.on.click = [this] { Labscanwinners_Click(); };
  window.Txtb1.Each([](base::TextBox& box) {
    box.on.key_press = [](char& key) {
      if ((key < '0' || key > '9') && key != kBackspace) key = 0;
    };
  });
}

void WinnerScan::Labscanwinners_Click() {
  store::Session& session = place_.session;
  main_window::MainWindow& window = place_.window;
  SortNumbers();
  TakeNumbers();

  base::TextBox& start = window.TxtStartDrawAt(0);
  if (base::ToDouble(start.Text()) >= window.List7.ListCount() - 1) start.SetText("0");
  if (window.List7.ListCount() == 0) FillLines();
  SelectLine(base::ToInt16(start.Text()));

  std::array<std::uint8_t, LineMatches::kNumbers> line{};
  std::copy_n(session.match_numbers.begin(), line.size(), line.begin());
  LineMatches matches(line);
  for (int row = base::ToInt16(start.Text()) - 1; row < window.List7.ListCount(); ++row) {
    SelectLine(row);
    matches.Compare(session.current_balls);
  }
  window.txtpermcheck.SetText(matches.Report());
  if (matches.All(LineMatches::kNumbers) == 1) place_.Ask({.text = "You have won the jackpot!"});
}

void WinnerScan::TakeNumbers() {
  const auto number = [this](int box) {
    return base::ToByte(base::NumericValue(place_.window.Txtb1(box).Text()));
  };
  auto& numbers = place_.session.match_numbers;
  for (int k = 0; k < LineMatches::kNumbers; ++k) numbers[static_cast<std::size_t>(k)] = number(k);
  numbers[kExtraPlace] = number(LineMatches::kNumbers);
}

void WinnerScan::SortNumbers() {
  base::Group<base::TextBox>& boxes = place_.window.Txtb1;
  for (int pass = 0; pass < kPasses; ++pass) {
    for (int k = 0; k + 1 < LineMatches::kNumbers; ++k) SortTwoBoxes(boxes(k), boxes(k + 1));
  }
}

void WinnerScan::FillLines() {
  store::Session& session = place_.session;
  base::ListBox& lines = place_.window.List7;
  lines.AddItem(store::DrawLine(session.current_draw));
  while (session.current_draw_number + 1 <= static_cast<float>(session.UpperBound())) {
    session.ReadDraw(session.current_draw_number + 1);
    session.draw_count = base::AddInt16(session.draw_count, 1);
    session.current_draw_number = session.draw_count;
    lines.AddItem(store::DrawLine(session.current_draw));
  }
}

// Selecting another row loads its draw; the row that is selected already loads nothing. Row -1
// selects none, so that the row after it loads.
void WinnerScan::SelectLine(int row) {
  base::ListBox& lines = place_.window.List7;
  if (row == lines.ListIndex()) return;
  lines.SetListIndex(row);
  if (row >= 0) lines.on.click();
}

}  // namespace scan
