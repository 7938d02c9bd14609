#include "store/entry.h"

#include <array>

#include "base/language/numbers.h"
#include "base/language/text.h"

namespace store {
namespace {

constexpr base::Colour kFocusColour = 0xFFFFC0;
constexpr base::Colour kWhite = 0xFFFFFF;

struct DaySpelling {
  std::string_view begins;
  std::string_view short_form;
};

constexpr std::array<DaySpelling, 14> kShortDays{{
    {"m", "Mon"},
    {"M", "Mon"},
    {"tu", "Tue"},
    {"Tu", "Tue"},
    {"w", "Wed"},
    {"W", "Wed"},
    {"th", "Thu"},
    {"Th", "Thu"},
    {"fr", "Fri"},
    {"Fr", "Fri"},
    {"sa", "Sat"},
    {"Sa", "Sat"},
    {"su", "Sun"},
    {"Su", "Sun"},
}};

constexpr std::array<std::string_view, 7> kDays{"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"};

}  // namespace

std::string TwoLetterDay(std::string_view text) {
  const std::string_view start = text.substr(0, 2);
  for (std::string_view day : kDays) {
    if (start == day || start == base::Lower(day) || start == base::Upper(day)) {
      return std::string(day);
    }
  }
  return std::string(text);
}

std::string ShortDay(std::string_view text) {
  for (const DaySpelling& day : kShortDays) {
    if (text.starts_with(day.begins)) return std::string(day.short_form);
  }
  return std::string(text);
}

void Entry::Wire() {
  MainWindow& window = place_.window;
  const Session& session = place_.session;
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
  for (int k = 0; k < kBalls; ++k) {
    base::TextBox& box = window.BallBox(k);
    box.on.got_focus = [&box] { box.SetBackColor(kFocusColour); };
    box.on.lost_focus = [&box] { box.SetBackColor(kWhite); };
  }
  window.CmdReset.on.click = [this] {
    Trapped(place_.reporter, "CmdReset_Click", [this] { CmdReset_Click(); });
  };
}

void Entry::EnableSlot(base::TextBox& box, int heading, bool filled) {
  if (place_.session.data_base_changed) return;
  box.SetEnabled(filled);
  place_.window.Label7(heading).SetEnabled(filled);
}

void Entry::CmdReset_Click() {
  MainWindow& window = place_.window;
  browsing_.EnableTheButtons(true);
  window.CmdReset.SetEnabled(false);
  neighbours_.ZeroItMainWindow();
  neighbours_.FillCommand4TagMainWindow();
  browsing_.cmdLast_Click();
  window.cmdedit.SetCaption("Edit");
  window.CmdScan.SetEnabled(true);
  browsing_.cmdFirst_Click();
  QNDLabels();
}

void Entry::QNDLabels() { place_.window.lblProductName1(4).SetCaption("Quorbit Number Desk"); }

void Entry::SaveFields() {
  DrawRecord& draw = place_.session.current_draw;
  MainWindow& window = place_.window;
  for (int k = 0; k < kBalls; ++k) draw.Ball(k) = PadBall(window.BallBox(k).Text());
  draw.day = TwoLetterDay(window.TxtBall07.Text());
  draw.date = window.txtDate.Text();
}

}  // namespace store
