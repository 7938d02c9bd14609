#include "wheels/page.h"

#include "base/deployment.h"
#include "base/language/numbers.h"

namespace wheels {

void Page::Footer() {
  Line("<font size=\"1\"><p align=\"center\"><a href=\"", base::kHomePage,
       "\">QND Home Page</a>&nbsp;");
  Line("<a href=\"", base::kForumPage, "\">QND Forums</a></p></font>");
  Line("<p align=\"center\"><font size=\"1\">Created by Quorbit Number Desk</font></p>");
  Line("</body>");
  Line("</html>");
  Line("</html>");  // the page ends with this tag twice
}

std::string PageText(std::string_view text) {
  std::string escaped;
  for (const char sign : text) {
    if (sign == '&') {
      escaped += "&amp;";
    } else if (sign == '<') {
      escaped += "&lt;";
    } else if (sign == '>') {
      escaped += "&gt;";
    } else {
      escaped += sign;
    }
  }
  return escaped;
}

std::string ReportPath(const std::string& program_folder, std::string_view name,
                       base::Clock& clock) {
  using base::IntegerText;
  std::string path = program_folder + "\\Reports\\" + std::string(name);
  path += IntegerText(clock.Now().day) + "-";
  path += IntegerText(clock.Now().month) + "-";
  path += IntegerText(clock.Now().year) + "-";
  path += IntegerText(clock.Now().hour) + "-";
  path += IntegerText(clock.Now().minute) + "-";
  path += IntegerText(clock.Now().second) + ".html";
  return path;
}

void OpenPage(base::ShellOpen& shell, const std::string& path) {
  shell.Open({.verb = "Open", .file = path});
}

}  // namespace wheels
