#include "base/windows/desktop.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/controls/user.h"
#include "base/language/error.h"
#include "base/windows/trap.h"

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
  HeldWindow() : desktop_({.pump = pump_}), user_(desktop_) {
    desktop_.Show(frame_);
    desktop_.Show(window_);
    frame_.on.unload = [this] { desktop_.Unload(window_); };
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
  window_.on.unload = [&] { ++closed; };
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

// --- Windows by name

class NamedWindows : public testing::Test {
 protected:
  void Add(const char* name) {
    desktop_.Add(name, [this, name] {
      ++made_;
      auto window = std::make_shared<Form>(name, FormRole::kChild);
      window->on.unload = [this, name] { unloaded_.push_back(name); };
      return window;
    });
  }

  Desktop desktop_{Ports()};
  int made_ = 0;
  std::vector<std::string> unloaded_;
};

TEST_F(NamedWindows, AreMadeWhenTheyAreFirstAskedFor) {
  Add("One");
  EXPECT_EQ(made_, 0);
  EXPECT_EQ(desktop_.Existing("One"), nullptr);
  EXPECT_FALSE(desktop_.IsLoaded("One"));
  Form& one = desktop_.Window("ONE");
  EXPECT_EQ(&desktop_.Window("one"), &one);
  EXPECT_EQ(made_, 1);
  EXPECT_FALSE(desktop_.IsLoaded("One"));
  desktop_.Show("One");
  EXPECT_TRUE(desktop_.IsLoaded("One"));
}

TEST_F(NamedWindows, AreMadeAnewAfterTheyWereUnloaded) {
  Add("One");
  desktop_.Show("One");
  desktop_.Unload(desktop_.Window("One"));
  EXPECT_EQ(desktop_.Existing("One"), nullptr);
  desktop_.Show("One");
  EXPECT_EQ(made_, 2);
}

TEST_F(NamedWindows, OfAnotherNameAreAnError) {
  Add("One");
  EXPECT_EQ(desktop_.Existing("Two"), nullptr);
  EXPECT_FALSE(desktop_.IsLoaded("Two"));
  try {
    desktop_.Window("Two");
    FAIL() << "no error";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kInvalidCall);
  }
}

TEST_F(NamedWindows, AreUnloadedTheLastLoadedFirst) {
  for (const char* name : {"One", "Two", "Three", "Four"}) {
    Add(name);
    desktop_.Show(name);
  }
  desktop_.Show("Two");
  // One that fails to close keeps no other open.
  desktop_.Window("Three").on.unload = [] { throw Error(kOverflow); };
  desktop_.UnloadAllBut(desktop_.Window("One"));
  EXPECT_EQ(unloaded_, (std::vector<std::string>{"Four", "Two"}));
  EXPECT_TRUE(desktop_.IsLoaded("One"));
  EXPECT_TRUE(desktop_.IsLoaded("Three"));
}

// --- The trap

class ToldErrors : public ErrorReporter {
 public:
  void Report(std::string_view procedure, const Error& error) override {
    told.push_back(std::string(procedure) + " " + std::to_string(error.Number()));
  }
  std::vector<std::string> told;
};

TEST(Trap, EndsAProcedureInTheReporter) {
  struct Subject {
    void Fails() { throw Error(kOverflow); }
    void Works() { ++works; }
    int works = 0;
  };
  ToldErrors errors;
  Subject subject;
  Trap(errors, "Fails_Click", subject, &Subject::Fails)();
  Trap(errors, "Works_Click", subject, &Subject::Works)();
  Trap(errors, "Body_Click", [] { throw Error(kSubscript); })();
  EXPECT_EQ(errors.told, (std::vector<std::string>{"Fails_Click 6", "Body_Click 9"}));
  EXPECT_EQ(subject.works, 1);
}

// A window that was closed in a yield is no error to tell.
TEST(Trap, LetsAClosedWindowThrough) {
  ToldErrors errors;
  EXPECT_THROW(Trap(errors, "Closed_Click", [] { throw WindowClosed(); })(), WindowClosed);
  EXPECT_TRUE(errors.told.empty());
}

}  // namespace
}  // namespace base
