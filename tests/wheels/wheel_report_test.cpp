#include "wheels/wheel_report.h"

#include <gtest/gtest.h>

#include "base/deployment.h"
#include "wheels/page.h"
#include "wheels/wheel_desk.h"

namespace test {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kPage = "Reports/QND-Wheel-5-12-2005-14-3-9.html";

// A desk with a wheel of seven places chosen and its boxes filled.
class PrintDesk : public WheelDesk {
 public:
  explicit PrintDesk(Texts lines, const Texts& numbers)
      : WheelDesk({SixWheel(7, std::move(lines))}) {
    Open();
    User().Pick(Window().List2, 0);
    SetBoxes(numbers);
  }
  void Print() { User().Click(Window().cmdwizard(2)); }
};

std::string Lines(const Texts& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

// The page of a wheel of seven places, from its wheeled numbers and its lines.
std::string Expected(const std::string& wheeled, const Texts& lines,
                     const std::string& name = "[3 of 6]  7 numbers") {
  const std::string table =
      "<table border=\"1\" cellspacing=\"1\" style=\"border-collapse: collapse\" width=\"500\"";
  const auto fact = [](const std::string& name, const std::string& meaning) {
    return Lines({"<tr>", "<td width=\"110\">" + name + "</td>",
                  "<td width=\"380\">" + meaning + "</td>", "</tr>"});
  };
  std::string page = Lines({
      "<html>",
      "<head>",
      "<title>Quorbit Nubmer Desk Wheel</title>",
      "</head>",
      "<body style=\"font-family: Verdana; font-size: 8px\">",
      "<br>",
      "<div align=\"center\">",
      table + ">",
      "<tr>",
      "<td bgcolor=\"#00FFFF\"><b>Quorbit Number Desk 2005</b></td>",
      "</tr>",
      "<tr>",
      "<td bgcolor=\"#FFFFFF\">" + name + "</td>",
      "</tr>",
      "</table>",
      table + " id=\"table4\">",
      "<tr>",
      "<td bgcolor=\"#00FFFF\">",
      "<p>Wheel Information</td>",
      "</tr>",
      "</table>",
      "<table border=\"1\" cellspacing=\"1\" bgcolor=\"#F5F5F5\" style=\"border-collapse: "
      "collapse\" width=\"500\">",
  });
  page += fact("Pick: 6", "Numbers drawn in lottery");
  page += fact("Pool: 7", "Range covered in wheel");
  page += fact("Match: 3", "Matches needed for a win");
  page += fact("Combos: 35", "Number of combinations this wheel covers");
  page += fact("Tickets: " + std::to_string(lines.size()),
               "Amount of lines, equals the cost of this wheel");
  page += fact("Wheeled:", wheeled);
  page += Lines({
      "</table>",
      "<br>",
      table + ">",
      "<tr align=\"center\">",
      "<td bgcolor=\"#00FFFF\">",
      "<p >Wheel Start</td>",
      "</tr>",
      "<tr align=\"center\">",
      "<td bgcolor=\"#F5F5F5\">",
  });
  page += Lines(lines);
  page += Lines({
      "</td>",
      "</tr>",
      "<tr>",
      "<td bgcolor=\"#00FFFF\">",
      "<p align=\"center\">Wheel End</td>",
      "</tr>",
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
  return page;
}

TEST(WheelReport, WritesThePageByteForByte) {
  PrintDesk desk({"1 2 3 4 5 6", "7 1 2 3 4 5", "2 3 4 5 6 7"},
                 {"11", "12", "13", "14", "15", "49", "7"});
  desk.Print();
  EXPECT_EQ(desk.Pages(), Texts{"QND-Wheel-5-12-2005-14-3-9.html"});
  EXPECT_EQ(desk.ReadFile(kPage),
            Expected(" 11  12  13  14  15  49  07 ",
                     {"\t07 \t11 \t12 \t13 \t14 \t15  <br>", "\t11 \t12 \t13 \t14 \t15 \t49  <br>",
                      "\t12 \t13 \t14 \t15 \t49 \t07  <br>"}));
}

TEST(WheelReport, BlankBoxesShowAsBlanks) {
  PrintDesk desk({"1 2 3 4 5 6"}, {"11", "", "13", "14", "15", "16", ""});
  desk.Print();
  EXPECT_EQ(desk.ReadFile(kPage),
            Expected(" 11    13  14  15  16   ", {"\t11 \t \t13 \t14 \t15 \t16  <br>"}));
}

TEST(WheelReport, AnEmptyEntryIsALineOfItsOwn) {
  PrintDesk desk({"1 2", "3"}, {"11", "12", "13", "14", "15", "16", "17"});
  desk.Print();
  EXPECT_EQ(desk.ReadFile(kPage),
            Expected(" 11  12  13  14  15  16  17 ", {" <br>", "\t11 \t12  <br>"}));
}

TEST(PageText, EscapesAmpersandsAndAngleBracketsAlone) {
  EXPECT_EQ(wheels::PageText("a<b>&c"), "a&lt;b&gt;&amp;c");
  EXPECT_EQ(wheels::PageText("&lt;"), "&amp;lt;");
  std::string others;
  for (int sign = 0; sign < 256; ++sign) {
    if (sign != '&' && sign != '<' && sign != '>') others += static_cast<char>(sign);
  }
  EXPECT_EQ(wheels::PageText(others), others);
}

TEST(WheelReport, ShowsWhatWasTypedAndIsNoMarkup) {
  WheelText wheel = SixWheel(7, {"1 2", "2 3"});
  wheel.name = "[3 of 6] 7 <script>alert(1)</script> & \"\xA3'";
  WheelDesk desk(std::vector<WheelText>{wheel});
  desk.Open();
  desk.User().Pick(desk.Window().List2, 0);
  desk.SetBoxes({"11", "<img src=x onerror=alert(2)>", "&amp;"});
  desk.User().Click(desk.Window().cmdwizard(2));
  EXPECT_EQ(desk.ReadFile(kPage),
            Expected(" 11  &lt;img src=x onerror=alert(2)&gt;  &amp;amp;         ",
                     {"\t&lt;img \tsrc=x \tonerror=alert(2)&gt; \t&amp;amp;  <br>",
                      "\t11 \t&lt;img \tsrc=x \tonerror=alert(2)&gt;  <br>"},
                     "[3 of 6] 7 &lt;script&gt;alert(1)&lt;/script&gt; &amp; \"\xA3'"));
}

// The eighth piece of a line holds the rest, with the blanks between its numbers.
TEST(WheelReport, DoubleBlanksAreMadeSingleOnce) {
  wheels::WheelState wheel;
  const std::string page = wheels::WheelPage(wheel, {"\t01 \ta  b   c    d"});
  EXPECT_NE(page.find("\r\n\t01 \ta b  c  d <br>\r\n"), std::string::npos);
  const std::string many = wheels::WheelPage(wheel, {std::string(62, ' ')});
  EXPECT_NE(many.find("\r\n" + std::string(32, ' ') + " <br>\r\n"), std::string::npos);
}

TEST(WheelReport, GoesToTheViewer) {
  PrintDesk desk({"1 2"}, {"11", "12"});
  desk.Print();
  ASSERT_EQ(desk.shell_open.opened.size(), 1u);
  const base::ShellOpenRequest& request = desk.shell_open.opened[0];
  EXPECT_EQ(request.verb, "Open");
  EXPECT_EQ(request.file, desk.folder.string() + "\\Reports\\QND-Wheel-5-12-2005-14-3-9.html");
  EXPECT_EQ(request.parameters, "");
  EXPECT_EQ(request.folder, "");
  EXPECT_EQ(request.show, 1);
}

TEST(WheelReport, IsNamedBySixLooksAtTheClock) {
  PrintDesk desk({"1 2"}, {"11", "12"});
  desk.clock.looks = {{1999, 1, 31, 23, 59, 58}, {2000, 2, 1, 0, 0, 0},  {2001, 3, 2, 1, 1, 1},
                      {2002, 4, 3, 2, 2, 2},     {2003, 5, 4, 3, 33, 3}, {2004, 6, 5, 4, 4, 44}};
  desk.Print();
  EXPECT_EQ(desk.Pages(), Texts{"QND-Wheel-31-2-2001-2-33-44.html"});
  EXPECT_TRUE(desk.clock.looks.empty());
}

TEST(WheelReport, ALaterOneOfTheSameSecondReplacesTheFormer) {
  PrintDesk desk({"1 2"}, {"11", "12"});
  desk.Print();
  const std::string first = desk.ReadFile(kPage);
  desk.SetBoxes({"21"});
  desk.Print();
  EXPECT_EQ(desk.Pages().size(), 1u);
  EXPECT_NE(desk.ReadFile(kPage), first);
  EXPECT_NE(desk.ReadFile(kPage).find("\t21 \t12  <br>"), std::string::npos);
}

TEST(WheelReport, GeneratesAnewBeforeItPrints) {
  PrintDesk desk({"1 2"}, {"11", "12"});
  desk.User().Click(desk.Window().cmdwizard(1));
  desk.SetBoxes({"31"});
  desk.Print();
  EXPECT_EQ(desk.Window().LstWheel.Rows(), (std::vector<base::ListView::Cells>{{"31 ", "12 "}}));
  EXPECT_NE(desk.ReadFile(kPage).find("<td width=\"380\"> 31  12 "), std::string::npos);
}

TEST(WheelReport, TheScreenKeepsTheOrderOfTheLibrary) {
  PrintDesk desk({"2 1", "1 2"}, {"07", "11"});
  desk.Print();
  EXPECT_EQ(desk.Window().LstWheel.Row(1), (base::ListView::Cells{"11 ", "07 "}));
  const std::string page = desk.ReadFile(kPage);
  EXPECT_LT(page.find("\t07 \t11  <br>"), page.find("\t11 \t07  <br>"));
}

TEST(WheelReport, WithoutALineNothingIsWritten) {
  PrintDesk desk({}, {"11", "12"});
  desk.Print();
  EXPECT_TRUE(desk.Pages().empty());
  EXPECT_TRUE(desk.shell_open.opened.empty());
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(WheelReport, WithoutAWheelNothingIsWritten) {
  WheelDesk desk;
  desk.Open();
  desk.User().Click(desk.Window().cmdwizard(2));
  EXPECT_TRUE(desk.Pages().empty());
  EXPECT_TRUE(desk.shell_open.opened.empty());
  EXPECT_TRUE(desk.boxes.shown.empty());
}

}  // namespace
}  // namespace test
