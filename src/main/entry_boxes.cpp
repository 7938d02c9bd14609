#include "main/entry_boxes.h"

#include "base/language/dates.h"
#include "base/language/numbers.h"
#include "main/draw_lists.h"

namespace main_window {
namespace {

constexpr base::Colour kFocusColour = 0xFFFFC0;
constexpr base::Colour kWhite = 0xFFFFFF;
constexpr char kBackspace = 8;
constexpr char kReturn = 13;
constexpr char kSpace = 32;

bool IsDigit(char key) { return key >= '0' && key <= '9'; }

}  // namespace

void EntryBoxes::Wire() {
  MainWindow& window = place_.window;
  const store::Session& session = place_.session;
  for (int k = 0; k < store::kBalls; ++k) WireBallBox(window.BallBox(k));
  window.TxtBall05.on.change = [this, &window, &session] {
    EnableSlot(window.TxtBall05, 8, session.current_balls[4] != 0);
  };
  window.TxtBall06.on.change = [this, &window, &session] {
    EnableSlot(window.TxtBall06, 7, session.current_balls[5] != 0);
  };
  window.TxtBallBB.on.change = [this, &window] {
    EnableSlot(window.TxtBallBB, 5, base::NumericValue(window.TxtBallBB.Text()) != 0);
  };
  window.TxtBall07.on.change = [&window] {
    window.TxtBall07.SetText(ShortDay(window.TxtBall07.Text()));
  };
  window.TxtBall07.on.got_focus = [this] { TxtBall07_GotFocus(); };
}

void EntryBoxes::WireBallBox(base::TextBox& box) {
  box.on.got_focus = [&box] { box.SetBackColor(kFocusColour); };
  box.on.lost_focus = [&box] { box.SetBackColor(kWhite); };
  box.on.key_press = [this, &box](char& key) { BallBox_KeyPress(box, key); };
}

void EntryBoxes::BallBox_KeyPress(const base::TextBox& box, char& key) {
  if (key == kBackspace) return;
  if (key == kReturn || key == kSpace) {
    key = 0;
    place_.desktop.SendTab();
    return;
  }
  if (!IsDigit(key)) {
    key = 0;
    place_.World().beeper.Beep();
    return;
  }
  // The second digit completes a ball and moves on.
  if (!box.Text().empty()) place_.desktop.SendTab();
}

void EntryBoxes::EnableSlot(base::TextBox& box, int heading, bool filled) {
  if (place_.session.data_base_changed) return;
  box.SetEnabled(filled);
  place_.window.Label7(heading).SetEnabled(filled);
}

void EntryBoxes::TxtBall07_GotFocus() {
  MainWindow& window = place_.window;
  const base::DateOrder order = place_.World().region.Dates();
  // The day is the date's as it was typed; what is written back may be in another order.
  const std::string typed = window.txtDate.Text();
  window.txtDate.SetText(base::DateText(typed, place_.session.date_format_text, order));
  window.TxtBall07.SetText(base::DateText(typed, "DDDD", order));
}

}  // namespace main_window
