#include "scan/draw_details.h"

#include "base/language/numbers.h"
#include "base/language/text.h"

namespace scan {
namespace {

constexpr std::size_t kFigureLength = 4;
constexpr int kBonus = 6;

// The captions of the ball in box k. `average_label` takes the average, of a bonus ball only its
// whole part.
void ShortFillTheMain(main_window::Workplace& place, int k) {
  main_window::MainWindow& window = place.window;
  const float number = place.session.current_draw_number;
  const std::string& box_text = window.BallBox(k).Text();
  const int ball = base::ToInt16(base::NumericValue(box_text));
  base::Label& count_label = window.Label2(ball);
  if (number == 0 || base::NumericValue(count_label.Caption()) == 0) return;
  const float value = window.ProgressBar1(ball).Value();
  if (value == 0) {
    count_label.SetCaption("0");
    return;
  }
  const float average = number / value;
  window.Label16(k).SetCaption(box_text);
  window.Label9(k).SetCaption(count_label.Caption());
  if (k == kBonus) {
    const std::string figure = base::Left(base::IntegerText(base::ToInt32(average)), kFigureLength);
    window.Label10(k).SetCaption(figure + " draws");
    window.Label1(ball).SetCaption(figure);
  } else {
    const std::string figure = base::Left(base::SingleText(average), kFigureLength);
    window.Label10(k).SetCaption(figure + " draws");
    window.Label11(ball).SetCaption(figure);
  }
}

}  // namespace

void FillTheDetailsMainWindow(main_window::Workplace& place) {
  if (place.session.current_draw.b[0].empty()) return;
  for (int k = 0; k < store::kBalls; ++k) {
    const bool always = k < 3;
    if (always || base::NumericValue(place.window.BallBox(k).Text()) > 0) {
      ShortFillTheMain(place, k);
    }
  }
}

}  // namespace scan
