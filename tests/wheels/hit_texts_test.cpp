#include <gtest/gtest.h>

#include "wheels/hit_check.h"

namespace test {
namespace {

TEST(ReplCrap, LeavesNumbersBetweenSingleBlanks) {
  EXPECT_EQ(wheels::ReplCrap("1,2;3-4"), "1 2 3 4");
  EXPECT_EQ(wheels::ReplCrap("1, 2; 3 - 4"), "1 2 3 4");
  EXPECT_EQ(wheels::ReplCrap("Draw 12: 7\t8\n9"), " 12 7 8 9");
  EXPECT_EQ(wheels::ReplCrap(""), "");
}

TEST(ReplCrap, BlanksEverySignAndLetter) {
  for (const char sign : std::string("!\xA3$%^&*()_+-=[]{}:;@'~#<,>.?/|\\`\xAC"
                                     "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ\n\t")) {
    EXPECT_EQ(wheels::ReplCrap(std::string("1") + sign + "2"), "1 2") << sign;
  }
}

TEST(ReplCrap, KeepsDoubleQuotesReturnsAndAllElse) {
  EXPECT_EQ(wheels::ReplCrap("\"1\"\r2"), "\"1\"\r2");
  EXPECT_EQ(wheels::ReplCrap("\xE9\x80"), "\xE9\x80");
}

TEST(ReplCrap, KeepsEachSignFromItsThirtyFirstOn) {
  std::string commas, cleaned;
  for (int i = 1; i <= 33; ++i) {
    commas += std::to_string(i) + ",";
    cleaned += std::to_string(i) + (i <= 30 ? " " : ",");
  }
  EXPECT_EQ(wheels::ReplCrap(commas), cleaned);
  // Capitals and small letters are one letter, and what is left over is small.
  std::string letters, small;
  for (int i = 1; i <= 32; ++i) {
    letters += std::to_string(i) + (i % 2 == 0 ? "X" : "x");
    small += std::to_string(i) + (i <= 30 ? " " : "x");
  }
  EXPECT_EQ(wheels::ReplCrap(letters), small);
}

TEST(ReplCrap, HalvesRunsOfBlanksThreeTimes) {
  EXPECT_EQ(wheels::ReplCrap("1" + std::string(8, ' ') + "2"), "1 2");
  EXPECT_EQ(wheels::ReplCrap("1" + std::string(9, ' ') + "2"), "1  2");
  EXPECT_EQ(wheels::ReplCrap("1" + std::string(17, ' ') + "2"), "1   2");
}

TEST(HitTexts, LineNumbersHaveThreeDigits) {
  EXPECT_EQ(wheels::dolenth(0), "000");
  EXPECT_EQ(wheels::dolenth(9), "009");
  EXPECT_EQ(wheels::dolenth(10), "010");
  EXPECT_EQ(wheels::dolenth(99), "099");
  EXPECT_EQ(wheels::dolenth(100), "100");
  EXPECT_EQ(wheels::dolenth(1000), "1000");
}

TEST(HitTexts, ABlankFollowsAText) {
  EXPECT_EQ(wheels::doSl("7"), "7 ");
  EXPECT_EQ(wheels::doSl(" "), "  ");
  EXPECT_EQ(wheels::doSl(""), "");
}

TEST(HitTexts, CellsComeOutTwoBlanksApart) {
  EXPECT_EQ(wheels::LineText({"07 ", "12 ", "13 "}), "07  12  13 ");
  EXPECT_EQ(wheels::LineText({"07 "}), "07 ");
}

}  // namespace
}  // namespace test
