#pragma once

#include <string>
#include <string_view>

#include "base/ports/ports.h"

// What the two printed pages share. A page is lines, each closed by a line break.

namespace wheels {

// One page under the pen.
class Page {
 public:
  // A line made of pieces, which follow each other with nothing between them.
  template <typename... Pieces>
  void Line(const Pieces&... pieces) {
    (text_ += ... += pieces);
    text_ += "\r\n";
  }
  // The links to the home page and the forum, and the end of the page.
  void Footer();
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

// A text that somebody typed or that stands in a file, to be read on a page as it is written there:
// without a meaning of its own for the ampersand and the angle brackets.
std::string PageText(std::string_view text);

// "<folder>\Reports\<name>D-M-YYYY-H-M-S.html": plain numbers, each part its own look at the clock.
std::string ReportPath(const std::string& program_folder, std::string_view name,
                       base::Clock& clock);

// Hands a page to the viewer that the platform has for it.
void OpenPage(base::ShellOpen& shell, const std::string& path);

}  // namespace wheels
