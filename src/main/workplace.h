#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/controls/desktop.h"
#include "main/main_window.h"
#include "store/session.h"

namespace main_window {

// The end of every trap: tells the user what failed and where.
class ErrorReporter {
 public:
  virtual ~ErrorReporter() = default;
  virtual void Report(std::string_view procedure, const base::Error& error) = 0;
};

// What every subject of the main window works with.
struct Workplace {
  store::Session& session;
  MainWindow& window;
  base::Desktop& desktop;
  ErrorReporter& reporter;

  base::Ports& World() const { return desktop.World(); }
  // Lets pending events run; the procedure ends silently if they closed the window.
  void Yield() const { desktop.YieldFor(window); }
  base::Answer Ask(const base::MessageBox& box) const { return World().boxes.Ask(box); }
};

// Runs a procedure that has a trap: an error ends it in the reporter under its name.
template <typename Body>
void Trapped(ErrorReporter& reporter, std::string_view procedure, Body body) {
  try {
    body();
  } catch (const base::Error& error) {
    reporter.Report(procedure, error);
  }
}

}  // namespace main_window
