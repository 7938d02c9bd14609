#include "scan/frequency_report.h"

#include "base/language/numbers.h"
#include "base/language/text.h"
#include "scan/ranking.h"

namespace scan {

std::string FrequencyHeading(std::string_view from_date, std::string_view to_date) {
  return "QND ball frequency results from the " + std::string(from_date) + " to the " +
         std::string(to_date) + "\r\n\r\n";
}

std::string FrequencyLine(int ball, std::int16_t count, std::int16_t draws) {
  const std::string number = base::IntegerText(ball);
  const std::string count_text = CountText(count);
  const std::string draws_text = base::IntegerText(draws);
  const std::string average =
      base::Left(base::DoubleText(static_cast<double>(draws) / static_cast<double>(count)), 3);
  if (ball < 10) {
    return "0" + number + " has appeard " + count_text + " times in " + draws_text +
           " draws, avarage appearance = " + average + " Draws.\r\n";
  }
  return number + " has appeared " + count_text + " times in " + draws_text +
         " draws, average  appearance = " + average + " Draws.\r\n";
}

}  // namespace scan
