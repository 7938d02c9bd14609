#pragma once

#include <string>

#include "main/browsing.h"
#include "main/guard.h"
#include "main/workplace.h"

namespace main_window {

// Taking back what was done to the draws since the window came up, the newest first.
class Undo {
 public:
  Undo(Workplace place, Browsing& browsing) : place_(place), browsing_(browsing), guard_(place) {}

  // Takes the last change back, on the disk too if it has reached it; the text tells which. Empty
  // where there is nothing to take back, while a procedure runs, and where the person was told why
  // not.
  std::string TakeBack();

 private:
  bool Apply(const store::ChangeLog::Undoing& undoing);
  void ShowDraw(int place);

  Workplace place_;
  Browsing& browsing_;
  Guard guard_;
};

}  // namespace main_window
