#include "wheels/wheel_report.h"

#include "base/language/numbers.h"
#include "wheels/page.h"
#include "wheels/wheel_lines.h"

namespace wheels {
namespace {

constexpr int kMostDoubleBlanks = 30;
constexpr const char* kTable =
    "<table border=\"1\" cellspacing=\"1\" style=\"border-collapse: collapse\" width=\"500\"";

void Heading(Page& page, const std::string& name) {
  page.Line("<html>");
  page.Line("<head>");
  page.Line("<title>Quorbit Nubmer Desk Wheel</title>");
  page.Line("</head>");
  page.Line("<body style=\"font-family: Verdana; font-size: 8px\">");
  page.Line("<br>");
  page.Line("<div align=\"center\">");
  page.Line(kTable, ">");
  page.Line("<tr>");
  page.Line("<td bgcolor=\"#00FFFF\"><b>Quorbit Number Desk 2005</b></td>");
  page.Line("</tr>");
  page.Line("<tr>");
  page.Line("<td bgcolor=\"#FFFFFF\">", PageText(name), "</td>");
  page.Line("</tr>");
  page.Line("</table>");
}

void Fact(Page& page, const char* name, int value, const char* meaning) {
  page.Line("<tr>");
  page.Line("<td width=\"110\">", name, base::IntegerText(value), "</td>");
  page.Line("<td width=\"380\">", meaning, "</td>");
  page.Line("</tr>");
}

std::string WheeledNumbers(const WheelState& wheel) {
  std::string text;
  for (std::size_t place = 0; place < wheel.wheel_pool; ++place) {
    text += " " + wheel.user_numbers.at(place) + " ";
  }
  return text;
}

void Facts(Page& page, const WheelState& wheel) {
  page.Line(kTable, " id=\"table4\">");
  page.Line("<tr>");
  page.Line("<td bgcolor=\"#00FFFF\">");
  page.Line("<p>Wheel Information</td>");
  page.Line("</tr>");
  page.Line("</table>");
  page.Line(
      "<table border=\"1\" cellspacing=\"1\" bgcolor=\"#F5F5F5\" style=\"border-collapse: "
      "collapse\" width=\"500\">");
  Fact(page, "Pick: ", wheel.wheel_pick, "Numbers drawn in lottery");
  Fact(page, "Pool: ", wheel.wheel_pool, "Range covered in wheel");
  Fact(page, "Match: ", wheel.wheel_match, "Matches needed for a win");
  Fact(page, "Combos: ", wheel.wheel_combos, "Number of combinations this wheel covers");
  Fact(page, "Tickets: ", wheel.wheel_tickets, "Amount of lines, equals the cost of this wheel");
  page.Line("<tr>");
  page.Line("<td width=\"110\">Wheeled:</td>");
  page.Line("<td width=\"380\">", PageText(WheeledNumbers(wheel)), "</td>");
  page.Line("</tr>");
  page.Line("</table>");
}

void Lines(Page& page, const std::vector<std::string>& lines) {
  page.Line("<br>");
  page.Line(kTable, ">");
  page.Line("<tr align=\"center\">");
  page.Line("<td bgcolor=\"#00FFFF\">");
  page.Line("<p >Wheel Start</td>");
  page.Line("</tr>");
  page.Line("<tr align=\"center\">");
  page.Line("<td bgcolor=\"#F5F5F5\">");
  for (const std::string& line : lines) {
    page.Line(PageText(ReplaceFirst(line, "  ", " ", kMostDoubleBlanks)), " <br>");
  }
  page.Line("</td>");
  page.Line("</tr>");
  page.Line("<tr>");
  page.Line("<td bgcolor=\"#00FFFF\">");
  page.Line("<p align=\"center\">Wheel End</td>");
  page.Line("</tr>");
  page.Line("</table>");
  page.Line("</div>");
}

}  // namespace

std::string WheelPage(const WheelState& wheel, const std::vector<std::string>& lines) {
  Page page;
  Heading(page, wheel.wheel_name);
  Facts(page, wheel);
  Lines(page, lines);
  page.Footer();
  return page.Text();
}

void WheelReport::Wire() {
  place_.window.cmdwizard(2).on.click = [this] { Print(); };
}

void WheelReport::Print() {
  generation_.Generate();
  if (place_.window.LstSorted.ListCount() == 0) return;
  MakeWheel(ReportPath(place_.program_folder, "QND-Wheel-", place_.World().clock));
}

void WheelReport::MakeWheel(const std::string& path) {
  place_.World().files.Replace(path, WheelPage(place_.state, place_.window.LstSorted.Rows()));
  OpenPage(place_.World().shell, path);
}

}  // namespace wheels
