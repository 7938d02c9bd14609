#include "wheels/number_sets.h"

#include <gtest/gtest.h>

#include "wheels/wheel_desk.h"

namespace test {
namespace {

constexpr base::Colour kHotColour = 255;
constexpr base::Colour kWarmColour = 65280;
constexpr base::Colour kColdColour = 16761024;
constexpr base::Colour kWhite = 0xFFFFFF;
constexpr base::Colour kAnyColour = 0x123456;

// The rows of the list of sets.
enum Row { kHotRow, kWarmRow, kColdRow, kFour, kFive, kSix, kSeven, kOwnRow, kCountRow, kBlankRow };

WheelText WheelOf(int pool) { return SixWheel(pool, {"1 2 3 4 5 6"}); }

// Item `item` of TableOf(count) as a box shows it.
std::string Item(int item, int count = 49) { return TwoDigits(count + 1 - item); }

// "W+3", "C-2" or a bare item, in a table of 49 numbers.
std::string Place(const std::string& place) {
  const int n = std::stoi(place.substr(place.find_first_of("0123456789")));
  if (place[0] == 'W') return Item(16 + n);
  if (place[0] == 'C') return Item(49 - n);
  return Item(n);
}

std::vector<std::string> Places(const std::vector<std::string>& places) {
  std::vector<std::string> texts;
  for (const std::string& place : places) texts.push_back(Place(place));
  return texts;
}

TEST(NumberSets, EntriesSelectByTheirFirstTwoCharacters) {
  for (int set = 1; set <= 10; ++set) {
    EXPECT_EQ(wheels::SetOfEntry(wheels::kNumberSets[static_cast<std::size_t>(set - 1)]), set);
  }
  EXPECT_EQ(wheels::SetOfEntry("7:"), 7);
  EXPECT_EQ(wheels::SetOfEntry("10"), 10);
  EXPECT_EQ(wheels::SetOfEntry("1"), std::nullopt);
  EXPECT_EQ(wheels::SetOfEntry("11: more"), std::nullopt);
  EXPECT_EQ(wheels::SetOfEntry("0: none"), std::nullopt);
  EXPECT_EQ(wheels::SetOfEntry(""), std::nullopt);
}

TEST(NumberSets, EntriesPadOccurrencesToThreeDigitsAndNumbersToTwo) {
  EXPECT_EQ(wheels::TemperatureEntry(7, 3), "007 03");
  EXPECT_EQ(wheels::TemperatureEntry(9, 10), "009 10");
  EXPECT_EQ(wheels::TemperatureEntry(10, 9), "010 09");
  EXPECT_EQ(wheels::TemperatureEntry(99, 49), "099 49");
  EXPECT_EQ(wheels::TemperatureEntry(100, 1), "100 01");
  EXPECT_EQ(wheels::NumberOfEntry("277 38"), "38");
  EXPECT_EQ(wheels::NumberOfEntry("277 05"), "05");
}

TEST(NumberSets, AThirdIsRoundedHalfToEvenAndTheRestIsHot) {
  struct Case {
    int numbers, cold, warm, hot;
  };
  for (const Case& c : {Case{49, 16, 16, 17},
                        {50, 17, 17, 16},
                        {48, 16, 16, 16},
                        {1, 0, 0, 1},
                        {2, 1, 1, 0},
                        {3, 1, 1, 1},
                        {5, 2, 2, 1},
                        {0, 0, 0, 0}}) {
    const wheels::Temperatures table = wheels::CutIntoThirds(TableOf(c.numbers));
    int cold = 0, warm = 0, hot = 0;
    for (const auto& row : table.rows) {
      cold += row.band == std::string("Cold");
      warm += row.band == std::string("Warm");
      hot += row.band == std::string("Hot");
    }
    EXPECT_EQ(cold, c.cold) << c.numbers;
    EXPECT_EQ(warm, c.warm) << c.numbers;
    EXPECT_EQ(hot, c.hot) << c.numbers;
    EXPECT_EQ(table.warm_top, 2 * table.cold_count) << c.numbers;
  }
}

TEST(NumberSets, TheTableRunsFromColdToHot) {
  WheelDesk desk({WheelOf(20)});
  desk.HandOver(TableOf(49));
  const base::ListView& table = desk.Window().ListMain;
  ASSERT_EQ(table.RowCount(), 49);
  EXPECT_EQ(table.Row(1), (base::ListView::Cells{"151", "49", "Cold"}));
  EXPECT_EQ(table.Row(16), (base::ListView::Cells{"166", "34", "Cold"}));
  EXPECT_EQ(table.Row(17), (base::ListView::Cells{"167", "33", "Warm"}));
  EXPECT_EQ(table.Row(32), (base::ListView::Cells{"182", "18", "Warm"}));
  EXPECT_EQ(table.Row(33), (base::ListView::Cells{"183", "17", "Hot"}));
  EXPECT_EQ(table.Row(49), (base::ListView::Cells{"199", "01", "Hot"}));
  EXPECT_EQ(desk.State().cold_count, 16);
  EXPECT_EQ(desk.State().warm_top, 32);
}

TEST(NumberSets, OfEqualOccurrencesTheSmallerNumberIsTheColder) {
  WheelDesk desk({WheelOf(7)});
  desk.HandOver({"012 10", "012 09", "012 31", "003 40"});
  const base::ListView& table = desk.Window().ListMain;
  ASSERT_EQ(table.RowCount(), 4);
  EXPECT_EQ(table.Cell(1, 1), "40");
  EXPECT_EQ(table.Cell(2, 1), "09");
  EXPECT_EQ(table.Cell(3, 1), "10");
  EXPECT_EQ(table.Cell(4, 1), "31");
}

TEST(NumberSets, EqualOccurrencesMayFallInDifferentBands) {
  WheelDesk desk({WheelOf(7)});
  desk.HandOver({"005 01", "005 02", "005 03"});
  const base::ListView& table = desk.Window().ListMain;
  EXPECT_EQ(table.Row(1), (base::ListView::Cells{"005", "01", "Cold"}));
  EXPECT_EQ(table.Row(2), (base::ListView::Cells{"005", "02", "Warm"}));
  EXPECT_EQ(table.Row(3), (base::ListView::Cells{"005", "03", "Hot"}));
}

TEST(NumberSets, HotBeginsWithTheHottest) {
  WheelDesk desk({WheelOf(20)});
  desk.HandOver(TableOf(49), 0, kHotRow);
  std::vector<std::string> expected;
  for (int k = 1; k <= 20; ++k) expected.push_back(Item(49 - (k - 1)));
  EXPECT_EQ(desk.BoxTexts(20), expected);
  EXPECT_EQ(desk.Box(0).Text(), "01");
}

TEST(NumberSets, WarmRunsPastTheWarmBand) {
  WheelDesk desk({WheelOf(20)});
  desk.HandOver(TableOf(49), 0, kWarmRow);
  std::vector<std::string> expected;
  for (int k = 1; k <= 20; ++k) expected.push_back(Item(16 + k));
  EXPECT_EQ(desk.BoxTexts(20), expected);
  EXPECT_EQ(desk.Box(0).BackColor(), kWarmColour);
  EXPECT_EQ(desk.Box(15).BackColor(), kWarmColour);
  EXPECT_EQ(desk.Box(16).BackColor(), kHotColour);
  EXPECT_EQ(desk.Box(19).BackColor(), kHotColour);
}

TEST(NumberSets, ColdBeginsWithTheColdest) {
  WheelDesk desk({WheelOf(20)});
  desk.HandOver(TableOf(49), 0, kColdRow);
  std::vector<std::string> expected;
  for (int k = 1; k <= 20; ++k) expected.push_back(Item(k));
  EXPECT_EQ(desk.BoxTexts(20), expected);
  EXPECT_EQ(desk.Box(15).BackColor(), kColdColour);
  EXPECT_EQ(desk.Box(16).BackColor(), kWarmColour);
}

TEST(NumberSets, MixedSetsFollowTheirPatterns) {
  const std::vector<std::string> patterns[] = {
      {"W+1", "W+2", "C-1", "W+3",  "W+4", "C-2",  "W+5",  "W+6", "C-3",  "W+7",
       "W+8", "C-4", "W+9", "W+10", "C-5", "W+11", "W+12", "C-6", "W+13", "W+14"},
      {"W+1", "C-1", "W+2", "C-2", "W+3", "C-3", "W+4", "C-4", "W+5",  "C-5",
       "W+6", "C-6", "W+7", "C-7", "W+8", "C-8", "W+9", "C-9", "W+10", "C-10"},
      {"W+1", "C-1", "C-2", "W+2", "C-3",  "C-4", "W+3",  "C-5",  "C-6", "W+4",
       "C-7", "C-8", "W+5", "C-9", "C-10", "W+6", "C-11", "C-12", "W+7", "C-13"},
      {"W+1", "C-1", "1",   "W+2", "C-2", "2",   "W+3", "C-3", "3",   "W+4",
       "4",   "C-4", "W+5", "5",   "C-5", "W+6", "6",   "C-6", "W+7", "7"},
  };
  WheelDesk desk({WheelOf(20)});
  desk.HandOver(TableOf(49), 0, kHotRow);
  for (int i = 0; i < 4; ++i) {
    desk.User().Pick(desk.Window().List1, kFour + i);
    EXPECT_EQ(desk.BoxTexts(20), Places(patterns[i])) << "set " << 4 + i;
    for (const std::string& number : desk.BoxTexts(20)) {
      EXPECT_NE(number, "01") << "the hottest, set " << 4 + i;
    }
  }
}

TEST(NumberSets, MixedSetsFillBoxesOutOfSight) {
  WheelDesk desk({WheelOf(7), WheelOf(20)});
  desk.HandOver(TableOf(49), 0, kFour);
  EXPECT_FALSE(desk.Box(7).Visible());
  EXPECT_EQ(desk.Box(6).Text(), Place("W+5"));
  EXPECT_EQ(desk.Box(19).Text(), Place("W+14"));
  // Hot fills no more than the wheel needs.
  desk.User().Pick(desk.Window().List1, kHotRow);
  EXPECT_EQ(desk.Box(6).Text(), Item(43));
  EXPECT_EQ(desk.Box(7).Text(), "");
}

TEST(NumberSets, AWheelChosenFillsItsBoxesFromTheSetAtOnce) {
  WheelDesk desk({WheelOf(7), WheelOf(20)});
  desk.HandOver(TableOf(49), 0, kColdRow);
  EXPECT_EQ(desk.Box(19).Text(), "");
  desk.User().Pick(desk.Window().List2, 1);
  EXPECT_EQ(desk.Box(19).Text(), Item(20));
}

TEST(NumberSets, OwnNumbersAreBlankAndWhite) {
  WheelDesk desk({WheelOf(7)});
  desk.HandOver(TableOf(49), 0, kHotRow);
  desk.Box(7).SetBackColor(kAnyColour);
  EXPECT_EQ(desk.Box(0).BackColor(), kHotColour);
  desk.User().Pick(desk.Window().List1, kOwnRow);
  for (int box = 0; box < 7; ++box) {
    EXPECT_EQ(desk.Box(box).Text(), "");
    EXPECT_EQ(desk.Box(box).BackColor(), kWhite);
  }
  EXPECT_EQ(desk.Box(7).BackColor(), kAnyColour);
}

TEST(NumberSets, CountedFillsAllTwentyInTwoDigits) {
  WheelDesk desk({WheelOf(7)});
  desk.HandOver(TableOf(49), 0, kCountRow);
  std::vector<std::string> expected;
  for (int k = 1; k <= 20; ++k) expected.push_back(TwoDigits(k));
  EXPECT_EQ(desk.BoxTexts(20), expected);
  // The twenty hottest are 1 to 20; boxes out of sight are not coloured.
  EXPECT_EQ(desk.Box(0).BackColor(), kHotColour);
  EXPECT_NE(desk.Box(7).BackColor(), kHotColour);
}

TEST(NumberSets, BlankEmptiesAllTwentyAndLeavesTheColours) {
  WheelDesk desk({WheelOf(7)});
  desk.HandOver(TableOf(49), 0, kFour);
  desk.User().Pick(desk.Window().List1, kBlankRow);
  EXPECT_EQ(desk.BoxTexts(20), std::vector<std::string>(20));
  EXPECT_EQ(desk.Box(0).BackColor(), kWarmColour);
}

TEST(NumberSets, ANumberThatTheTableLacksLeavesItsBoxesColour) {
  WheelDesk desk({WheelOf(7)});
  std::vector<std::string> entries = TableOf(49);
  entries.erase(entries.begin(), entries.begin() + 7);  // 8 to 49
  desk.HandOver(entries, 0, kColdRow);
  EXPECT_EQ(desk.Box(0).BackColor(), kColdColour);
  desk.User().Pick(desk.Window().List1, kFive);
  EXPECT_EQ(desk.Box(0).BackColor(), kWarmColour);
  EXPECT_EQ(desk.Box(1).BackColor(), kHotColour);
  desk.User().Pick(desk.Window().List1, kCountRow);
  EXPECT_EQ(desk.Box(0).Text(), "01");
  EXPECT_EQ(desk.Box(0).BackColor(), kWarmColour);
  EXPECT_EQ(desk.Box(1).BackColor(), kHotColour);
}

TEST(NumberSets, WithoutAScanEverySetButTheCountIsBlankAndSilent) {
  WheelDesk desk({WheelOf(7)});
  desk.Open();
  desk.User().Pick(desk.Window().List2, 0);
  for (int box = 0; box < 20; ++box) desk.Box(box).SetBackColor(kAnyColour);
  for (int set = kHotRow; set <= kBlankRow; ++set) {
    desk.User().Pick(desk.Window().List1, set);
    EXPECT_EQ(desk.Box(0).Text(), set == kCountRow ? "01" : "") << set;
    EXPECT_EQ(desk.Box(19).Text(), set == kCountRow ? "20" : "") << set;
    EXPECT_EQ(desk.Box(0).BackColor(), kAnyColour) << set;
  }
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(NumberSets, FewNumbersEndInARangeErrorBehindTheBoxesFilled) {
  WheelDesk desk({WheelOf(7)});
  desk.HandOver(TableOf(3));
  EXPECT_EQ(desk.TakeBoxTexts(),
            std::vector<std::string>{"Run-time error '9':\r\n\r\nSubscript out of range"});
  EXPECT_EQ(desk.BoxTexts(4), (std::vector<std::string>{"01", "02", "03", ""}));
  desk.User().Pick(desk.Window().List1, kWarmRow);
  EXPECT_EQ(desk.TakeBoxTexts(),
            std::vector<std::string>{"Run-time error '9':\r\n\r\nSubscript out of range"});
  EXPECT_EQ(desk.BoxTexts(3), (std::vector<std::string>{"02", "01", ""}));
  // The desk lives on.
  desk.User().Pick(desk.Window().List1, kCountRow);
  EXPECT_EQ(desk.Box(6).Text(), "07");
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(NumberSets, TheTableIsCutAnewAtEveryActivation) {
  WheelDesk desk({WheelOf(7)});
  desk.HandOver(TableOf(49));
  desk.Window().ListPerms.Clear();
  desk.Window().ListPerms.AddItem("004 17");
  EXPECT_EQ(desk.Window().ListMain.RowCount(), 49);
  desk.User().Switch(desk.Main());
  desk.User().Switch(desk.Window());
  ASSERT_EQ(desk.Window().ListMain.RowCount(), 1);
  EXPECT_EQ(desk.Window().ListMain.Row(1), (base::ListView::Cells{"004", "17", "Hot"}));
  EXPECT_EQ(desk.State().cold_count, 0);
}

}  // namespace
}  // namespace test
