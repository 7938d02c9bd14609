#include "scan/ball_counts.h"

#include "base/language/numbers.h"

namespace scan {
namespace {

// Every bar keeps so much room above it; the scale grows in these steps.
constexpr float kSpare = 25;
constexpr float kGrowth = 10;

}  // namespace

void BallCounts::FillCommand4TagMainWindow() {
  const store::DrawRecord& draw = place_.session.current_draw;
  main_window::MainWindow& window = place_.window;
  for (int k = 0; k < store::kBalls; ++k) CountBall(draw.Ball(k));
  for (int ball = 0; ball <= main_window::kLastBar; ++ball) {
    window.Label2(ball).SetNumber(window.ProgressBar1(ball).Value());
  }
}

void BallCounts::CountBall(std::string_view ball_text) {
  const double ball = base::NumericValue(ball_text);
  if (ball != 0) IncrementBar(place_.window.ProgressBar1(base::ToInt16(ball)));
}

void BallCounts::IncrementBar(base::Bar& bar) {
  if (bar.Max() - kSpare <= bar.Value()) GrowBars();
  float& count = place_.session.ball_count.at(static_cast<std::size_t>(bar.Index()));
  count += 1;
  bar.SetValue(count);
}

void BallCounts::GrowBars() {
  place_.window.ProgressBar1.Each([](base::Bar& bar) {
    if (bar.Index() > 0) bar.SetMax(bar.Max() + kGrowth);
  });
}

void BallCounts::ZeroItMainWindow() {
  for (int ball = 1; ball <= main_window::kLastBar; ++ball) {
    place_.window.ProgressBar1(ball).SetValue(0);
    place_.window.Label2(ball).SetCaption("0");
  }
}

}  // namespace scan
