#pragma once

#include "main/workplace.h"

namespace main_window {

// What the entry boxes do by themselves: key by key, as the focus comes and goes, and while a draw
// is shown in them.
class EntryBoxes {
 public:
  explicit EntryBoxes(Workplace place) : place_(place) {}

  void Wire();

 private:
  void WireBallBox(base::TextBox& box);
  void BallBox_KeyPress(const base::TextBox& box, char& key);
  // A slot without a ball looks like no slot while browsing.
  void EnableSlot(base::TextBox& box, int heading, bool filled);
  void TxtBall07_GotFocus();

  Workplace place_;
};

}  // namespace main_window
