#include "scan/line_matches.h"

#include <algorithm>

#include "base/language/numbers.h"

namespace scan {

LineMatches::LineMatches(const std::array<std::uint8_t, kNumbers>& numbers) {
  std::copy(numbers.begin(), numbers.end(), line_.begin());
}

void LineMatches::Compare(const std::array<std::uint8_t, store::kBalls>& balls) {
  for (std::size_t k = 0; k < balls.size(); ++k) {
    if (balls[k] > 0) draw_[k] = balls[k];
  }
  int hits = 0;
  for (const std::uint8_t number : line_) {
    for (const std::uint8_t ball : draw_) hits += ball > 0 && ball == number;
  }
  const std::uint8_t bonus = draw_.back();
  const auto bonus_hits =
      bonus > 0 ? std::count(line_.begin(), line_.end(), bonus) : std::ptrdiff_t{0};
  if (hits < 1 || hits > kNumbers) return;
  const auto place = static_cast<std::size_t>(hits);
  ++all_[place];
  if (bonus_hits == 1) ++with_bonus_[place];
}

int LineMatches::Main(int hits) const { return std::max(0, All(hits) - WithBonus(hits)); }

std::string LineMatches::Report() const {
  std::string text = "Number combination results\r\n";
  for (int hits = kNumbers; hits >= 1; --hits) {
    text += base::IntegerText(hits) + " ball matchs = " + base::IntegerText(All(hits)) +
            " of which " + base::IntegerText(WithBonus(hits)) + " contained XB & " +
            base::IntegerText(Main(hits)) + " main\r\n";
  }
  return text +
         "\r\n"
         "One 6 number match will not be counted as two 3 number or as three 2 number matchs etc, "
         "combinations are only counted once as a complete combination. ";
}

}  // namespace scan
