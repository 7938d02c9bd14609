#include "wheels/hit_check.h"

#include <gtest/gtest.h>

#include "base/deployment.h"
#include "wheels/wheel_desk.h"

namespace test {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kPage = "Reports/QND-Win-Report-5-12-2005-14-3-9.html";
constexpr const char* kTooFew =
    "Sorry you did not supply not enough information to check for wins with";

// A desk with a wheel generated: box p holds 10 + p, but for the first, which holds 07.
class CheckDesk : public WheelDesk {
 public:
  explicit CheckDesk(const Texts& lines = {"1 2 3 4 5 6", "2 3 4 5 6 7"}, int pool = 7)
      : WheelDesk({SixWheel(pool, lines)}) {
    Open();
    User().Pick(Window().List2, 0);
    Texts numbers{"7"};
    for (int place = 2; place <= pool; ++place) numbers.push_back(std::to_string(10 + place));
    SetBoxes(numbers);
    Generate();
  }
  void Generate() { User().Click(Window().cmdwizard(1)); }
  void Check(const std::string& answer) {
    boxes.inputs = {answer};
    User().Click(Window().cmdwizard(3));
  }
  // The next wheel has the lines of this text.
  void NewLines(const Texts& lines) {
    WriteLibrary(LibraryText({SixWheel(State().wheel_pool, lines)}));
    Generate();
  }
  struct Hits {
    std::string position;
    std::string numbers;
    int total;
    bool operator==(const Hits&) const = default;
  };
  Hits HitsOf(int line) {
    Window().HitCheck().GetHits(line);
    return {State().hit_position, State().hit_numbers, State().total_hits};
  }
};

void PrintTo(const CheckDesk::Hits& hits, std::ostream* out) {
  *out << hits.position << "|" << hits.numbers << "|" << hits.total;
}

std::string Lines(const Texts& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::string Head(const std::string& numbers) {
  const std::string table =
      "<table border=\"1\" cellspacing=\"1\" style=\"border-collapse: collapse\" width=\"500\" ";
  return Lines({
      "",
      "<html>",
      "<head>",
      "<title>Quorbit Nubmer Desk Hits Report</title>",
      "</head>",
      "<body style=\"font-family: Verdana; font-size: 8px\">",
      "<div align=\"center\">",
      table + "id=\"table2\">",
      "<tr>",
      "<td bgcolor=\"#00FFFF\"><b>Numbers checked:</b> " + numbers + "</td>",
      "</tr>",
      "</table>",
      table + "id=\"table1\">",
      "<tr align=\"center\" bgcolor=\"#00FFFF\">",
      "<td width=\"35\">Line</td>",
      "<td width=\"150\">Wheel</td>",
      "<td width=\"120\">Hit Position</td>",
      "<td width=\"90\">Total Hits</td>",
      "<td width=\"150\">Numbers Hit</td>",
      "</tr>",
  });
}

std::string RowText(const std::string& line, const std::string& cells,
                    const CheckDesk::Hits& hits) {
  return Lines({
      hits.total < 3 ? "<tr align=\"center\">" : "<tr align=\"center\" bgcolor = \"#F5F5F5\">",
      "<td width=\"35\">" + line + "</td>",
      "<td width=\"150\" nowrap>" + cells + "</td>",
      "<td width=\"120\">" + hits.position + "</td>",
      "<td width=\"90\">" + std::to_string(hits.total) + "</td>",
      "<td width=\"150\" align=\"left\">" + hits.numbers + "</td>",
      "</tr>",
  });
}

std::string End() {
  return Lines({
      "</table>",
      "</div>",
      std::string("<font size=\"1\"><p align=\"center\"><a href=\"") + base::kHomePage +
          "\">QND Home Page</a>&nbsp;",
      std::string("<a href=\"") + base::kHomePage + "/forum/\">QND Forums</a></p></font>",
      "<p align=\"center\"><font size=\"1\">Created by Quorbit Number Desk</font></p>",
      "</body>",
      "</html>",
      "</html>",
  });
}

// The page.

TEST(HitCheck, WritesThePageByteForByte) {
  CheckDesk desk;
  desk.Check("12, 13;7 - 14 40 41");
  EXPECT_EQ(desk.Pages(), Texts{"QND-Win-Report-5-12-2005-14-3-9.html"});
  EXPECT_EQ(desk.ReadFile(kPage),
            Head("12 13 7 14 40 41") +
                RowText("001", "07  12  13  14  15  16 ", {"1 1 1 1 0 0", "7 12 13 14 ", 4}) +
                RowText("002", "12  13  14  15  16  17 ", {"1 1 1 0 0 0", "12 13 14 ", 3}) + End());
}

TEST(HitCheck, RowsOfFewerThanThreeHitsArePlain) {
  CheckDesk desk;
  desk.Check("7 12 1 2 3 4");
  EXPECT_EQ(desk.ReadFile(kPage),
            Head("7 12 1 2 3 4") +
                RowText("001", "07  12  13  14  15  16 ", {"1 1 0 0 0 0", "7 12 ", 2}) +
                RowText("002", "12  13  14  15  16  17 ", {"1 0 0 0 0 0", "12 ", 1}) + End());
}

TEST(HitCheck, GoesToTheViewer) {
  CheckDesk desk;
  desk.Check("1 2 3 4 5 6");
  ASSERT_EQ(desk.shell_open.opened.size(), 1u);
  EXPECT_EQ(desk.shell_open.opened[0].verb, "Open");
  EXPECT_EQ(desk.shell_open.opened[0].file,
            desk.folder.string() + "\\Reports\\QND-Win-Report-5-12-2005-14-3-9.html");
  EXPECT_EQ(desk.shell_open.opened[0].show, 1);
}

TEST(HitCheck, IsNamedBySixLooksAtTheClockBeforeItAsks) {
  CheckDesk desk;
  desk.clock.looks = {{1999, 1, 31, 23, 59, 58}, {2000, 2, 1, 0, 0, 0},  {2001, 3, 2, 1, 1, 1},
                      {2002, 4, 3, 2, 2, 2},     {2003, 5, 4, 3, 33, 3}, {2004, 6, 5, 4, 4, 44}};
  desk.Check("1 2 3");
  EXPECT_EQ(desk.Pages(), Texts{"QND-Win-Report-31-2-2001-2-33-44.html"});
  desk.clock.looks = {{2005, 12, 5, 0, 0, 0}, {2005, 12, 5, 0, 0, 0}, {2005, 12, 5, 0, 0, 0},
                      {2005, 12, 5, 0, 0, 0}, {2005, 12, 5, 0, 0, 0}, {2005, 12, 5, 0, 0, 0}};
  desk.Check("");
  EXPECT_TRUE(desk.clock.looks.empty());
}

// What is asked.

TEST(HitCheck, AsksForTheNumbers) {
  CheckDesk desk;
  desk.settings.Save("velmonte", "searchs", "lastwincheck", "1 2 3");
  desk.Check("4 5 6");
  ASSERT_EQ(desk.boxes.asked.size(), 1u);
  EXPECT_EQ(desk.boxes.asked[0].title, "Check for win");
  EXPECT_EQ(desk.boxes.asked[0].prompt,
            "Please paste or type your numbers in to the text box\r\nDo not exceed 6 diffrent "
            "numbers for this wheel or results will be incorrect");
  EXPECT_EQ(desk.boxes.asked[0].default_text, "1 2 3");
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.settings.Get("Velmonte", "searchs", "lastwincheck"), "4 5 6");
  EXPECT_EQ(desk.State().win_numbers, "4 5 6");
}

TEST(HitCheck, ThePromptTellsThePickOnShow) {
  CheckDesk desk;
  desk.User().Pick(desk.Window().CmbWheelPick, 1);
  desk.Check("4 5 6");
  ASSERT_EQ(desk.boxes.asked.size(), 1u);
  EXPECT_NE(desk.boxes.asked[0].prompt.find("exceed 5 diffrent"), std::string::npos);
}

TEST(HitCheck, AnAnswerTooShortIsAskedForOnceMore) {
  CheckDesk desk;
  desk.boxes.inputs = {" 7,", "x 12, 13"};
  desk.User().Click(desk.Window().cmdwizard(3));
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{kTooFew});
  ASSERT_EQ(desk.boxes.asked.size(), 2u);
  EXPECT_EQ(desk.boxes.asked[1].title, "Check for win");
  EXPECT_EQ(desk.boxes.asked[1].prompt,
            "please paste or type your numbers in to the text box below");
  EXPECT_EQ(desk.boxes.asked[1].default_text, "7");
  EXPECT_EQ(desk.settings.Get("velmonte", "searchs", "lastwincheck"), "12 13");
}

TEST(HitCheck, AnAnswerNeedsThreeCharacters) {
  CheckDesk desk;
  desk.boxes.inputs = {"17", "1 7"};
  desk.User().Click(desk.Window().cmdwizard(3));
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{kTooFew});
  desk.Check("1 7");
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.boxes.asked.size(), 3u);
}

// The second answer may be as short as it likes.
TEST(HitCheck, ASecondAnswerOfOneNumberIsChecked) {
  CheckDesk desk;
  desk.boxes.inputs = {"", "7"};
  desk.User().Click(desk.Window().cmdwizard(3));
  EXPECT_EQ(desk.ReadFile(kPage),
            Head("7") + RowText("001", "07  12  13  14  15  16 ", {"1 0 0 0 0 0", "7 ", 1}) +
                RowText("002", "12  13  14  15  16  17 ", {"0 0 0 0 0 0", "", 0}) + End());
}

TEST(HitCheck, CancelAsksOnceMoreAndThenStopsSilently) {
  CheckDesk desk;
  desk.settings.Save("velmonte", "searchs", "lastwincheck", "1 2 3");
  desk.boxes.inputs = {std::nullopt, std::nullopt};
  desk.User().Click(desk.Window().cmdwizard(3));
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{kTooFew});
  ASSERT_EQ(desk.boxes.asked.size(), 2u);
  EXPECT_EQ(desk.boxes.asked[1].default_text, "");
  EXPECT_EQ(desk.settings.Get("velmonte", "searchs", "lastwincheck"), "1 2 3");
  EXPECT_TRUE(desk.Pages().empty());
  EXPECT_TRUE(desk.shell_open.opened.empty());
}

TEST(HitCheck, WithoutRowsNothingIsAsked) {
  WheelDesk desk;
  desk.Open();
  desk.User().Click(desk.Window().cmdwizard(3));
  EXPECT_TRUE(desk.boxes.asked.empty());
  EXPECT_TRUE(desk.Pages().empty());
}

TEST(HitCheck, MoreThanTwentyNumbersAreARangeError) {
  CheckDesk desk;
  std::string numbers;
  for (int i = 1; i <= 21; ++i) numbers += std::to_string(i) + " ";
  desk.Check(numbers);
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '9':\r\n\r\nSubscript out of range"});
  EXPECT_TRUE(desk.Pages().empty());
  EXPECT_EQ(desk.State().check_numbers[19], 20);
  EXPECT_NE(desk.settings.Get("velmonte", "searchs", "lastwincheck"), "");
  desk.Check(numbers.substr(0, numbers.size() - 4));
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.Pages().size(), 1u);
}

TEST(HitCheck, APieceThatIsNoNumberIsATypeMismatch) {
  CheckDesk desk;
  // Nine blanks leave a double one, and so an empty piece.
  for (const char* numbers : {"1 2 \"3\"", "1         2", "\xE9 1 2"}) {
    desk.Check(numbers);
    EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '13':\r\n\r\nType mismatch"}) << numbers;
  }
  desk.Check("1 2 40000");
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '6':\r\n\r\nOverflow"});
  EXPECT_TRUE(desk.Pages().empty());
}

// What counts as a hit.

TEST(HitCheck, NumbersAreComparedAsIntegers) {
  CheckDesk desk;
  desk.Check("007 0012 1");
  EXPECT_EQ(desk.State().check_numbers[0], 7);
  EXPECT_EQ(desk.HitsOf(1), (CheckDesk::Hits{"1 1 0 0 0 0", "7 12 ", 2}));
}

TEST(HitCheck, ANumberGivenTwiceCountsTwiceAndIsToldOnce) {
  CheckDesk desk;
  desk.Check("12 12 1 2 3 4");
  EXPECT_EQ(desk.HitsOf(1), (CheckDesk::Hits{"0 2 0 0 0 0", "12 ", 2}));
}

TEST(HitCheck, OnFiveColumnsASixthNumberIsNotCompared) {
  CheckDesk desk({"1 2 3 4 5"});
  desk.Check("1 2 3 4 12 7");
  EXPECT_EQ(desk.HitsOf(1), (CheckDesk::Hits{"0 1 0 0 0 0", "12 ", 1}));
}

// The numbers not given are 0, as is the sixth slot of five columns.
TEST(HitCheck, NumbersNotGivenHitUnusedSlots) {
  CheckDesk desk({"1 2 3 4 5"});
  desk.Check("7 1 2");
  EXPECT_EQ(desk.HitsOf(1), (CheckDesk::Hits{"1 0 0 0 0 2", "7 0 ", 3}));
}

TEST(HitCheck, OldNumbersStayBehindTheLastOneGiven) {
  CheckDesk desk;
  desk.Check("1 2 3 14 15 16");
  desk.Check("7 8 9");
  EXPECT_EQ(desk.HitsOf(1), (CheckDesk::Hits{"1 0 0 1 1 1", "7 14 15 16 ", 4}));
}

TEST(HitCheck, UnusedSlotsKeepWhatAWiderWheelLeftThere) {
  CheckDesk desk({"1 2 3 4 5 6"});
  desk.Check("1 2 3 4 5 6");
  desk.NewLines({"2 3 4 5"});
  // Four cells: slots 5 and 6 still hold 15 and 16.
  desk.Check("16 15 1 2");
  EXPECT_EQ(desk.HitsOf(1), (CheckDesk::Hits{"0 0 0 1 1 1", "15 15 16 ", 3}));
}

TEST(HitCheck, ColumnsBehindTheSixthAreNotCompared) {
  CheckDesk desk({"1 2 3 4 5 6 7 8"}, 8);
  desk.Check("17 18 7 1 2 3 12 13");
  EXPECT_EQ(desk.HitsOf(1), (CheckDesk::Hits{"1 1 1 0 0 0", "7 12 13 ", 3}));
  EXPECT_EQ(desk.State().line_numbers[7], 18);
}

TEST(HitCheck, LeavesTheColumnsClear) {
  CheckDesk desk;
  desk.Check("7 12 13 14 15 16");
  desk.HitsOf(1);
  for (const int hits : desk.State().column_hits) EXPECT_EQ(hits, 0);
  for (const std::string& text : desk.State().column_hit_text) EXPECT_EQ(text, "");
}

TEST(HitCheck, ChecksTheRowsAsTheyStand) {
  CheckDesk desk({"2 3 4 5 6 7", "1 2 3 4 5 6"});
  desk.User().ClickHeader(desk.Window().LstWheel, 0);
  EXPECT_EQ(desk.Window().HitCheck().GetCurrentLine(1), "07  12  13  14  15  16 ");
  EXPECT_EQ(desk.Window().HitCheck().GetCurrentLine(2), "12  13  14  15  16  17 ");
}

// The page ends at the row that cannot be read.
TEST(HitCheck, ABlankCellLeavesHalfAPage) {
  CheckDesk desk;
  desk.User().Paste(desk.Box(0), "");
  desk.NewLines({"2 3 4 5 6 7", "2 1 3 4 5 6"});
  desk.Check("12 13 14 1 2 3");
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '13':\r\n\r\nType mismatch"});
  EXPECT_EQ(desk.ReadFile(kPage),
            Head("12 13 14 1 2 3") +
                RowText("001", "12  13  14  15  16  17 ", {"1 1 1 0 0 0", "12 13 14 ", 3}));
  EXPECT_TRUE(desk.shell_open.opened.empty());
}

// No number is markup, so a row with markup in it never comes to the page.
TEST(HitCheck, ACellOfMarkupLeavesHalfAPage) {
  CheckDesk desk;
  desk.User().Paste(desk.Box(0), "<img/src=x>");
  desk.NewLines({"2 3 4 5 6 7", "1 2 3 4 5 6"});
  desk.Check("<i>12 & 13</i> 14 1 2 3");
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '13':\r\n\r\nType mismatch"});
  EXPECT_EQ(desk.ReadFile(kPage),
            Head("12 13 14 1 2 3") +
                RowText("001", "12  13  14  15  16  17 ", {"1 1 1 0 0 0", "12 13 14 ", 3}));
}

}  // namespace
}  // namespace test
