#include "base/controls/desktop.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "base/controls/user.h"

namespace base {
namespace {

class NestedEvent : public EventPump {
 public:
  void Pump() override {
    if (event) std::exchange(event, nullptr)();
  }
  std::function<void()> event;
};

// A frame with one working window in it.
class HeldWindow : public testing::Test {
 protected:
  HeldWindow() : desktop_(WithPump()), user_(desktop_) {
    desktop_.Show(frame_);
    desktop_.Show(window_);
    frame_.on.unload = [this] { desktop_.Unload(window_); };
  }
  Ports WithPump() {
    return Ports{quiet_.boxes,   pump_,        quiet_.clock,
                 quiet_.beeper,  quiet_.shell, quiet_.mail,
                 quiet_.printer, quiet_.help,  quiet_.system_information,
                 quiet_.region,  quiet_.files, quiet_.settings};
  }
  // A procedure of the window that yields once while it holds it.
  void RunHeld(const std::function<void()>& nested) {
    desktop_.Dispatch([&] {
      const Desktop::Hold hold(desktop_, window_);
      pump_.event = nested;
      desktop_.Yield();
      was_loaded_at_its_end_ = window_.Loaded();
    });
  }

  QuietPorts quiet_;
  NestedEvent pump_;
  Desktop desktop_;
  User user_;
  Form frame_{"Frame", FormRole::kFrame};
  Form window_{"Window", FormRole::kChild};
  bool was_loaded_at_its_end_ = false;
};

TEST_F(HeldWindow, ClosesWhenTheEventIsOver) {
  RunHeld([this] { user_.Close(window_); });
  EXPECT_TRUE(was_loaded_at_its_end_);
  EXPECT_FALSE(window_.Loaded());
  EXPECT_TRUE(frame_.Loaded());
}

TEST_F(HeldWindow, KeepsItsFrameOpenAsLong) {
  RunHeld([this] { user_.Close(frame_); });
  EXPECT_TRUE(was_loaded_at_its_end_);
  EXPECT_FALSE(window_.Loaded());
  EXPECT_FALSE(frame_.Loaded());
}

TEST_F(HeldWindow, ClosedTwiceClosesOnce) {
  int closed = 0;
  desktop_.on_closed = [&](Form&) { ++closed; };
  RunHeld([this] {
    user_.Close(window_);
    user_.Close(window_);
  });
  EXPECT_EQ(closed, 1);
}

TEST_F(HeldWindow, LetsOtherWindowsClose) {
  Form dialog("Dialog", FormRole::kDialog);
  desktop_.Show(dialog);
  bool was_open = true;
  RunHeld([&] {
    user_.Close(dialog);
    was_open = dialog.Loaded();
  });
  EXPECT_FALSE(was_open);
  EXPECT_TRUE(window_.Loaded());
}

// The procedure that holds it ends in an error.
TEST_F(HeldWindow, ClosesAlsoBehindAnError) {
  desktop_.Dispatch([this] {
    const Desktop::Hold hold(desktop_, window_);
    user_.Close(window_);
    throw Error(kOverflow);
  });
  EXPECT_FALSE(window_.Loaded());
}

TEST_F(HeldWindow, IsFreeAgainBehindIt) {
  RunHeld([] {});
  EXPECT_FALSE(desktop_.IsHeld(window_));
  EXPECT_FALSE(desktop_.IsHeld(frame_));
  user_.Close(window_);
  EXPECT_FALSE(window_.Loaded());
}

// In a long procedure that holds nothing a short one may: what waited for that one closes then.
TEST_F(HeldWindow, ClosesInsideAProcedureThatDoesNotHoldIt) {
  bool was_loaded = true;
  desktop_.Dispatch([&] {
    RunHeld([this] { user_.Close(window_); });
    was_loaded = window_.Loaded();
  });
  EXPECT_TRUE(was_loaded_at_its_end_);
  EXPECT_FALSE(was_loaded);
}

}  // namespace
}  // namespace base
