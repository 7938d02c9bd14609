#include <gtest/gtest.h>

#include "scan/line_matches.h"
#include "support/test_desk.h"

namespace test {
namespace {

constexpr const char* kClosing =
    "\r\nOne 6 number match will not be counted as two 3 number or as three 2 number matchs etc, "
    "combinations are only counted once as a complete combination. ";

void TypeLine(TestDesk& desk, std::initializer_list<const char*> numbers) {
  int k = 0;
  for (const char* number : numbers) desk.Main().Txtb1(k++).SetText(number);
  desk.User().Click(desk.Main().Labscanwinners);
}

TEST(LineMatches, CountsTheBonusLikeAMainBall) {
  scan::LineMatches matches({1, 2, 3, 4, 5, 6});
  matches.Compare({1, 2, 3, 4, 5, 9, 6});
  EXPECT_EQ(matches.All(6), 1);
  EXPECT_EQ(matches.WithBonus(6), 1);
  EXPECT_EQ(matches.Main(6), 0);
}

TEST(LineMatches, ComparesTheLastBonusWithADrawThatHasNone) {
  scan::LineMatches matches({1, 2, 3, 4, 5, 6});
  matches.Compare({40, 41, 42, 43, 44, 45, 6});
  matches.Compare({1, 2, 40, 41, 42, 43, 0});
  EXPECT_EQ(matches.All(1), 1);
  EXPECT_EQ(matches.All(3), 1);
  EXPECT_EQ(matches.WithBonus(3), 1);
}

TEST(LineMatches, EmptyPlacesMatchNothing) {
  scan::LineMatches matches({1, 2, 3, 0, 0, 0});
  matches.Compare({1, 2, 3, 0, 0, 0, 0});
  EXPECT_EQ(matches.All(3), 1);
}

TEST(WinnerScan, SortsTheNumbersAndWritesTheTable) {
  TestDesk desk(std::vector<store::DrawRecord>(40, Draw({1, 3, 5, 20, 21, 22, 7})));
  desk.Start();
  TypeLine(desk, {"5", "1", "3"});
  EXPECT_EQ(desk.Main().Txtb1(0).Text(), "1");
  EXPECT_EQ(desk.Main().Txtb1(1).Text(), "3");
  EXPECT_EQ(desk.Main().Txtb1(2).Text(), "5");
  EXPECT_EQ(desk.Main().Txtb1(3).Text(), "");
  EXPECT_EQ(desk.Main().txtpermcheck.Text(),
            std::string("Number combination results\r\n"
                        "6 ball matchs = 0 of which 0 contained XB & 0 main\r\n"
                        "5 ball matchs = 0 of which 0 contained XB & 0 main\r\n"
                        "4 ball matchs = 0 of which 0 contained XB & 0 main\r\n"
                        "3 ball matchs = 40 of which 0 contained XB & 40 main\r\n"
                        "2 ball matchs = 0 of which 0 contained XB & 0 main\r\n"
                        "1 ball matchs = 0 of which 0 contained XB & 0 main\r\n") +
                kClosing);
  EXPECT_EQ(desk.Main().TxtStartDrawAt(0).Text(), "40");
  EXPECT_EQ(desk.Session().current_draw_number, 40);
}

TEST(WinnerScan, ASecondClickCoversTheWholeListAgain) {
  TestDesk desk(std::vector<store::DrawRecord>(40, Draw({1, 3, 5, 20, 21, 22, 7})));
  desk.Start();
  TypeLine(desk, {"1", "3", "5"});
  const std::string first = desk.Main().txtpermcheck.Text();
  desk.User().Click(desk.Main().Labscanwinners);
  EXPECT_EQ(desk.Main().txtpermcheck.Text(), first);
}

TEST(WinnerScan, BeginsAtTheStartDraw) {
  TestDesk desk(std::vector<store::DrawRecord>(40, Draw({1, 3, 5, 20, 21, 22, 7})));
  desk.Start();
  desk.Main().TxtStartDrawAt(0).SetText("30");
  TypeLine(desk, {"1", "3", "5"});
  EXPECT_NE(desk.Main().txtpermcheck.Text().find("3 ball matchs = 10 of"), std::string::npos);
}

// The row that is chosen already fires no event, so its pass and the one before it begin with the
// draw in memory; then every draw is loaded all the same.
TEST(WinnerScan, LoadsTheFirstDrawAlthoughItIsChosenAlready) {
  auto draws = std::vector<store::DrawRecord>(40, Draw({11, 13, 15, 20, 21, 22, 7}));
  draws[0] = Draw({1, 2, 30, 31, 32, 33, 7});
  TestDesk desk(draws);
  desk.Start();
  desk.User().Pick(desk.Main().List7, 0);
  desk.User().Click(desk.Main().cmdLast);
  desk.Main().List7.SetListIndex(0);
  desk.Main().TxtStartDrawAt(0).SetText("0");
  TypeLine(desk, {"1", "2"});
  EXPECT_NE(desk.Main().txtpermcheck.Text().find("2 ball matchs = 1 of"), std::string::npos);
}

TEST(WinnerScan, ComparesTheOnlyDraw) {
  TestDesk desk({Draw({1, 3, 5, 20, 21, 22, 7})});
  desk.Start();
  desk.Main().TxtStartDrawAt(0).SetText("7");
  TypeLine(desk, {"1", "3", "5"});
  EXPECT_NE(desk.Main().txtpermcheck.Text().find("3 ball matchs = 1 of"), std::string::npos);
  EXPECT_EQ(desk.Main().TxtStartDrawAt(0).Text(), "1");
}

TEST(WinnerScan, GoesOnBehindADrawThatCannotBeRead) {
  auto draws = std::vector<store::DrawRecord>(40, Draw({1, 3, 5, 20, 21, 22, 7}));
  draws[10].b[2] = "xx";
  TestDesk desk(draws);
  desk.Start();
  desk.TakeBoxTexts();
  TypeLine(desk, {"1", "3", "5"});
  const std::vector<std::string> texts = desk.TakeBoxTexts();
  ASSERT_FALSE(texts.empty());
  EXPECT_NE(texts[0].find("illigal operation at List7_Click"), std::string::npos);
  EXPECT_NE(desk.Main().txtpermcheck.Text().find("Number combination results"), std::string::npos);
}

TEST(WinnerScan, TellsOneJackpotOnly) {
  auto draws = SampleDraws(40);
  draws[10] = Draw({1, 2, 3, 4, 5, 6, 49});
  TestDesk one(draws);
  one.Start();
  TypeLine(one, {"1", "2", "3", "4", "5", "6"});
  EXPECT_EQ(one.TakeBoxTexts(), std::vector<std::string>{"You have won the jackpot!"});
  draws[20] = draws[10];
  TestDesk two(draws);
  two.Start();
  TypeLine(two, {"1", "2", "3", "4", "5", "6"});
  EXPECT_TRUE(two.boxes.shown.empty());
}

TEST(WinnerScan, ANumberAboveAByteGoesToTheDefaultHandler) {
  TestDesk desk;
  desk.Start();
  TypeLine(desk, {"300"});
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>{"Run-time error '6':\r\n\r\nOverflow"});
}

TEST(WinnerScan, TakesDigitsOnly) {
  TestDesk desk;
  desk.Start();
  desk.User().Type(desk.Main().Txtb1(0), "1x2");
  EXPECT_EQ(desk.Main().Txtb1(0).Text(), "12");
}

}  // namespace
}  // namespace test
