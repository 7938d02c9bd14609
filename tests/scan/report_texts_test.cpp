#include <gtest/gtest.h>

#include "base/language/text_order.h"

#include "scan/due_list.h"
#include "scan/frequency_report.h"

namespace scan {
namespace {

TEST(FrequencyReport, NamesBothDates) {
  EXPECT_EQ(FrequencyHeading("19/11/94", "07/10/15"),
            "QND ball frequency results from the 19/11/94 to the 07/10/15\r\n\r\n");
}

TEST(FrequencyReport, MisspellsBallsBelowTen) {
  EXPECT_EQ(FrequencyLine(7, 12, 100),
            "07 has appeard 012 times in 100 draws, avarage appearance = 8.3 Draws.\r\n");
}

TEST(FrequencyReport, DoublesABlankFromBallTen) {
  EXPECT_EQ(FrequencyLine(12, 9, 99),
            "12 has appeared 009 times in 99 draws, average  appearance = 11 Draws.\r\n");
}

TEST(FrequencyReport, CutsTheAverageToThreeCharacters) {
  EXPECT_NE(FrequencyLine(10, 14, 100).find("= 7.1 Draws"), std::string::npos);
  EXPECT_NE(FrequencyLine(10, 8, 100).find("= 12. Draws"), std::string::npos);
  EXPECT_NE(FrequencyLine(10, 3, 311).find("= 103 Draws"), std::string::npos);
}

TEST(DueList, CutsAverageToFiveCharacters) { EXPECT_EQ(DueRow(100, 12, 7), "08.33 07"); }

TEST(DueList, FillsTheFigureToFiveCharacters) {
  EXPECT_EQ(DueRow(7, 1, 12), "07.00 12");
  EXPECT_EQ(DueRow(33, 4, 12), "08.25 12");
  EXPECT_EQ(DueRow(25, 2, 12), "12.50 12");
  EXPECT_EQ(DueRow(12, 1, 12), "12.00 12");
  EXPECT_EQ(DueRow(123, 1, 12), "123.0 12");
  EXPECT_EQ(DueRow(0, 3, 9), "00.00 09");
}

TEST(DueList, MultipliesFourDigitsByTen) { EXPECT_EQ(DueRow(1234, 1, 12), "12340 12"); }

TEST(DueList, SpeaksOfAverageWithOneDecimal) {
  EXPECT_EQ(DueSentence("08.33 07"), "Ball  07 is next due to appear in about 8.3 draws time.\r\n");
  EXPECT_EQ(DueSentence("12.50 12"),
            "Ball  12 is next due to appear in about 12.5 draws time.\r\n");
  EXPECT_EQ(DueSentence("07.00 45"), "Ball  45 is next due to appear in about 7 draws time.\r\n");
}

// The list of what is due sorts by text: an average above 99.99 stands in front.
TEST(DueList, SortsAverageAboveAHundredByText) {
  const std::string far = DueRow(201, 2, 7);
  const std::string near = DueRow(999, 10, 8);
  EXPECT_EQ(far, "100.5 07");
  EXPECT_EQ(near, "99.90 08");
  EXPECT_LT(base::CompareText(far, near), 0);
}

}  // namespace
}  // namespace scan
