#pragma once

#include "base/windows/desktop.h"
#include "base/windows/trap.h"
#include "main/main_window.h"
#include "store/session.h"

namespace main_window {

// What every subject of the main window works with.
struct Workplace {
  store::Session& session;
  MainWindow& window;
  base::Desktop& desktop;
  base::ErrorReporter& reporter;

  base::Ports& World() const { return desktop.World(); }
  // Lets pending events run; the procedure ends silently if they closed the window.
  void Yield() const { desktop.YieldFor(window); }
  base::Answer Ask(const base::MessageBox& box) const { return World().boxes.Ask(box); }
};

}  // namespace main_window
