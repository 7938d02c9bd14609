#include "scan/ranking.h"

#include "base/language/numbers.h"
#include "base/language/text.h"

namespace scan {
namespace {

constexpr int kShown = 7;
constexpr std::size_t kBallColumn = 5;

std::string_view RowAt(const std::vector<std::string>& rows, int index) {
  if (index < 0 || index >= static_cast<int>(rows.size())) return {};
  return rows[static_cast<std::size_t>(index)];
}

// The ball of a row in two digits, "00" for none.
std::string BallText(std::string_view row) {
  std::string text = base::Mid(row, kBallColumn, 2);
  const double ball = base::NumericValue(text);
  if (ball <= 9) text = "0" + text;
  if (ball == 0) text = "00";
  return text;
}

std::string MostCommonBall(std::string_view row) {
  return CountOfRow(row) == 0 ? "0" : BallText(row);
}

}  // namespace

std::string CountText(float count) {
  std::string text = base::SingleText(count);
  if (count > 99) return text;
  return (count > 9 ? "0" : "00") + text;
}

std::string RankingRow(float count, int ball) {
  return CountText(count) + " " + base::IntegerText(ball);
}

int BallOfRow(std::string_view row) {
  return base::ToInt16(base::NumericValue(base::Mid(row, kBallColumn, 2)));
}

float CountOfRow(std::string_view row) {
  return static_cast<float>(base::NumericValue(row.substr(0, 3)));
}

std::string MostCommonText(const std::vector<std::string>& sorted_rows) {
  const int count = static_cast<int>(sorted_rows.size());
  const bool nothing_counted =
      base::NumericValue(MostCommonBall(RowAt(sorted_rows, count - 1))) == 0;

  std::string text = "The seven most common to date are ";
  text += " =";
  for (int n = 1; n <= kShown; ++n) text += " " + MostCommonBall(RowAt(sorted_rows, count - n));
  text += "\r\n";

  text += "The seven least common to date are ";
  text += " =";
  for (int n = 1; n <= kShown; ++n) {
    const bool zero = n == 1 && nothing_counted;
    text += " " + (zero ? std::string("0") : BallText(RowAt(sorted_rows, n - 1)));
  }
  text += "\r\n\r\n";
  return text;
}

}  // namespace scan
