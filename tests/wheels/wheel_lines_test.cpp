#include "wheels/wheel_lines.h"

#include <gtest/gtest.h>

#include "wheels/wheel_desk.h"

namespace test {
namespace {

using Texts = std::vector<std::string>;
using Cells = base::ListView::Cells;

// The boxes' numbers in the tests below: place p holds p + 10.
Texts Numbers(int count) {
  Texts numbers;
  for (int place = 1; place <= count; ++place) numbers.push_back(std::to_string(place + 10));
  return numbers;
}

// A desk with one wheel of seven places, its boxes filled, the wheel generated.
class Generated : public WheelDesk {
 public:
  explicit Generated(Texts lines, const Texts& numbers = Numbers(7))
      : WheelDesk({SixWheel(7, std::move(lines))}) {
    Open();
    User().Pick(Window().List2, 0);
    SetBoxes(numbers);
    Generate();
  }
  void Generate() { User().Click(Window().cmdwizard(1)); }
  const std::vector<Cells>& Rows() { return Window().LstWheel.Rows(); }
  const Texts& Sorted() { return Window().LstSorted.Rows(); }
};

TEST(WheelLines, TwentyCommasBecomeBlanks) {
  EXPECT_EQ(wheels::SortValues("1,2,3"), "1 2 3");
  EXPECT_EQ(wheels::SortValues("3 2 1"), "3 2 1");
  EXPECT_EQ(wheels::SortValues(""), "");
  EXPECT_EQ(wheels::SortValues(std::string(22, ',')), std::string(20, ' ') + ",,");
}

TEST(WheelLines, PlacesBecomeTheUsersNumbers) {
  const Texts numbers{"07", "12", "", "30"};
  EXPECT_EQ(wheels::ConvertToUserNumbers("1 2 4", numbers), "07 12 30 ");
  EXPECT_EQ(wheels::ConvertToUserNumbers("  04 2x ", numbers), "30 12 ");
  EXPECT_EQ(wheels::ConvertToUserNumbers("1 3 4", numbers), "07  30 ");
  EXPECT_EQ(wheels::ConvertToUserNumbers("0 5 x 1.5 -1", numbers), "");
  EXPECT_EQ(wheels::ConvertToUserNumbers("2 2", numbers), "12 12 ");
  EXPECT_EQ(wheels::ConvertToUserNumbers("", numbers), "");
}

TEST(WheelLines, TheTwentiethPieceTakesTheRemainder) {
  const Texts numbers{"a", "b", "c"};
  std::string line;
  std::string nineteen;
  for (int i = 0; i < 19; ++i) line += "1 ";
  for (int i = 0; i < 19; ++i) nineteen += "a ";
  EXPECT_EQ(wheels::ConvertToUserNumbers(line + "2,3", numbers), nineteen + "b ");
  EXPECT_EQ(wheels::ConvertToUserNumbers(line + "x 2", numbers), nineteen);
}

TEST(WheelLines, ACellIsTwoCharactersAndABlank) {
  EXPECT_EQ(wheels::AddToLenght("7"), "07 ");
  EXPECT_EQ(wheels::AddToLenght(" 7 "), "07 ");
  EXPECT_EQ(wheels::AddToLenght("12"), "12 ");
  EXPECT_EQ(wheels::AddToLenght("123"), "123 ");
  EXPECT_EQ(wheels::AddToLenght("x"), "0x ");
  EXPECT_EQ(wheels::AddToLenght(""), " ");
}

TEST(WheelLines, TheEighthCellTakesTheRemainder) {
  EXPECT_EQ(wheels::CellsOf("1 2 3 4 5 6 7 8 9"),
            (Texts{"01 ", "02 ", "03 ", "04 ", "05 ", "06 ", "07 ", "8 9 "}));
  EXPECT_EQ(wheels::CellsOf(" 1 2 "), (Texts{"01 ", "02 "}));
  EXPECT_EQ(wheels::CellsOf("12"), Texts{});
  EXPECT_EQ(wheels::CellsOf(""), Texts{});
  EXPECT_EQ(wheels::TabbedLine({"07 ", " ", "12 "}), "\t07 \t \t12 ");
}

TEST(Generation, RowsKeepTheOrderOfTheLibrary) {
  Generated desk({"2 3 4 5 6 7", "1 2 3 4 5 6"}, {"40", "5", "6", "7", "8", "9", "10"});
  EXPECT_EQ(desk.Rows(), (std::vector<Cells>{{"05 ", "06 ", "07 ", "08 ", "09 ", "10 "},
                                             {"40 ", "05 ", "06 ", "07 ", "08 ", "09 "}}));
}

TEST(Generation, TheSortedLinesStandBehindTabsInTextOrder) {
  Generated desk({"1 2 3 4 5 6", "7 1 2 3 4 5"}, {"11", "12", "13", "14", "15", "16", "7"});
  EXPECT_EQ(desk.Sorted(),
            (Texts{"\t07 \t11 \t12 \t13 \t14 \t15 ", "\t11 \t12 \t13 \t14 \t15 \t16 "}));
}

TEST(Generation, CommasAndBlanksYieldTheSameRow) {
  Generated desk({"1,2,3,4,5,6", "1 2 3 4 5 6"});
  ASSERT_EQ(desk.Rows().size(), 2u);
  EXPECT_EQ(desk.Rows()[0], desk.Rows()[1]);
  EXPECT_EQ(desk.Rows()[0], (Cells{"11 ", "12 ", "13 ", "14 ", "15 ", "16 "}));
}

// Commas before the first place count like any; the rest is read by its leading number.
TEST(Generation, ALineOfMoreThanTwentyCommasKeepsTheRest) {
  Generated desk({std::string(15, ',') + "1,2,3,4,5,6,7"});
  ASSERT_EQ(desk.Rows().size(), 1u);
  EXPECT_EQ(desk.Rows()[0], (Cells{"11 ", "12 ", "13 ", "14 ", "15 ", "16 "}));
}

TEST(Generation, APlaceAboveThePoolIsDropped) {
  Generated desk({"1 2 8 3 0 x 4"});
  ASSERT_EQ(desk.Rows().size(), 1u);
  EXPECT_EQ(desk.Rows()[0], (Cells{"11 ", "12 ", "13 ", "14 "}));
}

TEST(Generation, ALineOfOneNumberGivesNoRowAndAnEmptyEntry) {
  Generated desk({"3", "1 2", "9"});
  EXPECT_EQ(desk.Rows(), (std::vector<Cells>{{"11 ", "12 "}}));
  EXPECT_EQ(desk.Sorted(), (Texts{"", "", "\t11 \t12 "}));
}

TEST(Generation, AnEmptyBoxMakesABlankCell) {
  Generated desk({"1 2 3"}, {"11", "", "13", "14", "15", "16", "17"});
  EXPECT_EQ(desk.Rows(), (std::vector<Cells>{{"11 ", " ", "13 "}}));
  EXPECT_EQ(desk.Sorted(), Texts{"\t11 \t \t13 "});
}

TEST(Generation, ATextOfThreeCharactersIsKeptInFull) {
  Generated desk({"1 2"}, {"123", "4", "13", "14", "15", "16", "17"});
  EXPECT_EQ(desk.Rows(), (std::vector<Cells>{{"123 ", "04 "}}));
}

TEST(Generation, ASecondTimeGivesTheSameRows) {
  Generated desk({"1 2 3 4 5 6", "2 3 4 5 6 7"});
  const std::vector<Cells> rows = desk.Rows();
  const Texts sorted = desk.Sorted();
  desk.Generate();
  EXPECT_EQ(desk.Rows(), rows);
  EXPECT_EQ(desk.Sorted(), sorted);
}

TEST(Generation, MissingLinesCountAsEmpty) {
  WheelText wheel = SixWheel(7, {"1 2 3"});
  wheel.tickets = "3";
  WheelDesk desk({wheel});
  desk.Open();
  desk.User().Pick(desk.Window().List2, 0);
  desk.SetBoxes(Numbers(7));
  desk.User().Click(desk.Window().cmdwizard(1));
  EXPECT_EQ(desk.Window().LstWheel.RowCount(), 1);
  EXPECT_EQ(desk.Window().LstSorted.Rows(), (Texts{"", "", "\t11 \t12 \t13 "}));
}

TEST(Generation, TakesTheNumbersOfThePoolAlone) {
  Generated desk({"1 2"});
  Texts expected = Numbers(7);
  expected.resize(53);
  const auto& numbers = desk.State().user_numbers;
  EXPECT_EQ(Texts(numbers.begin(), numbers.end()), expected);
  desk.SetBoxes({"21", "22", "", "24", "25", "26", "27"});
  desk.Generate();
  EXPECT_EQ(desk.State().user_numbers[0], "21");
  EXPECT_EQ(desk.State().user_numbers[2], "");
}

TEST(Generation, ASmallerWheelForgetsTheNumbersOfALarger) {
  WheelDesk desk({SixWheel(9, {"1 2"}), SixWheel(7, {"1 2"})});
  desk.Open();
  for (const int wheel : {0, 1}) {
    desk.User().Pick(desk.Window().List2, wheel);
    desk.SetBoxes(Numbers(9));
    desk.User().Click(desk.Window().cmdwizard(1));
    EXPECT_EQ(desk.State().user_numbers[6], "17");
    EXPECT_EQ(desk.State().user_numbers[8], wheel == 0 ? "19" : "");
  }
}

TEST(Generation, StoresTheFactsOfTheWheel) {
  Generated desk({"1 2 3 4 5 6", "2 3 4 5 6 7"});
  EXPECT_EQ(desk.State().wheel_pick, 6);
  EXPECT_EQ(desk.State().wheel_pool, 7);
  EXPECT_EQ(desk.State().wheel_match, 3);
  EXPECT_EQ(desk.State().wheel_combos, 35);
  EXPECT_EQ(desk.State().wheel_tickets, 2);
  EXPECT_EQ(desk.State().wheel_name, "[3 of 6]  7 numbers");
  EXPECT_EQ(desk.State().wheel_ini_path, desk.folder.string() + "/wheels/wheels.ini");
}

TEST(Generation, OfEqualWheelsTheFirstInTheFileIsMade) {
  WheelText first = SixWheel(7, {"1 2 3 4 5 6"});
  WheelText second = SixWheel(7, {"2 3 4 5 6 7"});
  second.name += " again";
  WheelDesk desk({first, second});
  desk.Open();
  desk.User().Pick(desk.Window().List2, 1);
  desk.SetBoxes(Numbers(7));
  desk.User().Click(desk.Window().cmdwizard(1));
  EXPECT_EQ(desk.State().wheel_name, first.name);
  EXPECT_EQ(desk.Window().LstWheel.Rows(),
            (std::vector<Cells>{{"11 ", "12 ", "13 ", "14 ", "15 ", "16 "}}));
}

// The list reads the pick as a number, so it offers the wheel all the same.
TEST(Generation, PickAndMatchAreComparedAsTexts) {
  WheelText wheel = SixWheel(7, {"1 2 3 4 5 6"});
  wheel.pick = "06";
  WheelDesk desk({wheel});
  desk.Open();
  ASSERT_EQ(desk.Window().List2.ListCount(), 1);
  desk.User().Pick(desk.Window().List2, 0);
  desk.SetBoxes(Numbers(7));
  desk.User().Click(desk.Window().cmdwizard(1));
  EXPECT_EQ(desk.Window().LstWheel.RowCount(), 0);
  EXPECT_EQ(desk.Window().LstSorted.ListCount(), 0);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(Generation, ThePoolIsComparedAsANumber) {
  WheelText wheel = SixWheel(7, {"1 2 3 4 5 6"});
  wheel.pool = "07.0";
  WheelDesk desk({wheel});
  desk.Open();
  desk.User().Pick(desk.Window().List2, 0);
  desk.SetBoxes(Numbers(7));
  desk.User().Click(desk.Window().cmdwizard(1));
  EXPECT_EQ(desk.Window().LstWheel.RowCount(), 1);
}

TEST(Generation, WithoutAWheelTheListsAreEmptyAndTheFactsStay) {
  Generated desk({"1 2 3 4 5 6"});
  desk.WriteLibrary(LibraryText({SixWheel(8, {"1 2 3 4 5 6"})}));
  desk.Window().ListMain.BringToFront();
  desk.Generate();
  EXPECT_TRUE(desk.Rows().empty());
  EXPECT_TRUE(desk.Sorted().empty());
  EXPECT_EQ(desk.State().wheel_name, "[3 of 6]  7 numbers");
  EXPECT_EQ(desk.State().wheel_tickets, 1);
  EXPECT_GT(desk.Window().LstWheel.ZOrder(), desk.Window().ListMain.ZOrder());
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(Generation, ATicketCountAboveAByteLeavesTheFactsBeforeIt) {
  Generated desk({"1 2 3 4 5 6"});
  WheelText wheel = SixWheel(7, {"1 2 3 4 5 6"});
  wheel.name = "[3 of 6]  7 others";
  wheel.combos = "36";
  wheel.tickets = "256";
  desk.WriteLibrary(LibraryText({wheel}));
  desk.Generate();
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '6':\r\n\r\nOverflow"});
  EXPECT_EQ(desk.State().wheel_combos, 36);
  EXPECT_EQ(desk.State().wheel_tickets, 1);
  EXPECT_EQ(desk.State().wheel_name, "[3 of 6]  7 numbers");
  EXPECT_TRUE(desk.Rows().empty());
  EXPECT_TRUE(desk.Sorted().empty());
}

TEST(Generation, FactsThatAreNoNumbersAreATypeMismatch) {
  for (const char* key : {"combos", "tickets"}) {
    WheelText wheel = SixWheel(7, {"1 2 3 4 5 6"});
    (key == std::string("combos") ? wheel.combos : wheel.tickets) = "many";
    WheelDesk desk({wheel});
    desk.Open();
    desk.User().Pick(desk.Window().List2, 0);
    desk.User().Click(desk.Window().cmdwizard(1));
    EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '13':\r\n\r\nType mismatch"}) << key;
    EXPECT_EQ(desk.State().wheel_match, 3) << key;
    EXPECT_EQ(desk.Window().LstWheel.RowCount(), 0) << key;
  }
}

TEST(Generation, CombosAreASignedSixteenBitNumber) {
  WheelText wheel = SixWheel(7, {"1 2"});
  wheel.combos = "32767";
  WheelDesk desk({wheel});
  desk.Open();
  desk.User().Pick(desk.Window().List2, 0);
  desk.User().Click(desk.Window().cmdwizard(1));
  EXPECT_EQ(desk.State().wheel_combos, 32767);
  wheel.combos = "38760";
  desk.WriteLibrary(LibraryText({wheel}));
  desk.User().Click(desk.Window().cmdwizard(1));
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '6':\r\n\r\nOverflow"});
  EXPECT_EQ(desk.State().wheel_combos, 32767);
}

// Clearing LstSorted comes after the count, so a count that fails leaves it.
TEST(Generation, ACountThatFailsLeavesTheSortedLines) {
  Generated desk({"1 2 3 4 5 6"});
  desk.WriteLibrary("[Wheels]\r\nwheelcount=100000\r\n");
  desk.Generate();
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '6':\r\n\r\nOverflow"});
  EXPECT_TRUE(desk.Rows().empty());
  EXPECT_EQ(desk.Sorted(), Texts{"\t11 \t12 \t13 \t14 \t15 \t16 "});
}

TEST(Generation, OneNumberInTwoBoxesIsAllowed) {
  Generated desk({"1 2 3"}, {"11", "11", "11", "14", "15", "16", "17"});
  EXPECT_EQ(desk.Rows(), (std::vector<Cells>{{"11 ", "11 ", "11 "}}));
  EXPECT_TRUE(desk.boxes.shown.empty());
}

}  // namespace
}  // namespace test
