#pragma once

#include <string_view>

#include "main/workplace.h"

namespace scan {

// Counting into the bars, which are both the display and the store of the counts.
class BallCounts {
 public:
  explicit BallCounts(main_window::Workplace place) : place_(place) {}

  // Counts the draw in current_draw: seven balls, the bonus ball like any other; balls of 0 not.
  // Error 340 for a ball without a bar.
  void FillCommand4TagMainWindow();
  // Bars and captions to zero; the running sums stay.
  void ZeroItMainWindow();

 private:
  void CountBall(std::string_view ball_text);
  void IncrementBar(base::Bar& bar);
  void GrowBars();

  main_window::Workplace place_;
};

}  // namespace scan
