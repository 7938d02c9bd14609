#include "scan/due_list.h"

#include "base/language/numbers.h"
#include "base/language/text.h"

namespace scan {
namespace {

constexpr std::size_t kFigureLength = 5;

// Fills a figure of two to five characters up to five, as if it had its decimals.
std::string FillFigure(std::string figure) {
  switch (figure.size()) {
    case 2:
      return figure + ".00";
    case 3:
      return figure + ".0";
    case 4:
      return figure + "0";
    default:
      return figure;
  }
}

}  // namespace

std::string DueRow(std::int16_t draws, std::int32_t count, int ball) {
  const double average = static_cast<double>(draws) / static_cast<double>(count);
  std::string figure = base::DoubleText(average);
  if (average < 10) figure = "0" + figure;
  figure = FillFigure(base::Left(figure, kFigureLength));
  return figure + (ball <= 9 ? " 0" : " ") + base::IntegerText(ball);
}

std::string DueSentence(std::string_view row) {
  return "Ball " + base::Mid(row, 6, 3) + " is next due to appear in about " +
         base::DoubleText(base::NumericValue(row.substr(0, 4))) + " draws time.\r\n";
}

std::string DueReport(std::string_view from_date, std::string_view to_date,
                      std::string_view sentences) {
  return "QND due results calculated from the " + std::string(from_date) + " to the " +
         std::string(to_date) + "\r\n\r\n" + std::string(sentences) +
         "\r\n"
         "These results represent the amount of times each number appeared\r\n"
         "divided by the total number of draws scanned by QND\r\n"
         "This gives us the average appearance to date\r\n"
         "From this we can see when each number is next due to appear.\r\n"
         "This is mathematical fact based on previous results not random generated numbers,\r\n"
         "however lotteries are random so use this only as guide to help you select those winning "
         "numbers";
}

}  // namespace scan
