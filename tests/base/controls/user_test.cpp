#include "base/controls/user.h"

#include <gtest/gtest.h>

#include "base/controls/form.h"
#include "base/language/error.h"

namespace base {
namespace {

struct Window : Form {
  explicit Window(std::string name = "Window") : Form(std::move(name), FormRole::kChild) {}
  TextBox one{*this, "one"};
  Label label{*this, "label"};
  TextBox two{*this, "two"};
  Button button{*this, "button"};
  Tick tick{*this, "tick"};
  ListBox list{*this, "list"};
};

class BoxLog : public MessageBoxes {
 public:
  Answer Ask(const MessageBox& box) override {
    texts.push_back(box.text);
    return Answer::kOk;
  }
  std::vector<std::string> texts;
};

class Desk : public testing::Test {
 protected:
  Desk() : desktop_({.boxes = boxes_}), user_(desktop_) { desktop_.Show(window_); }
  std::vector<std::string> log_;
  BoxLog boxes_;
  Window window_;
  Desktop desktop_;
  User user_;
};

TEST_F(Desk, ClickIsButtonDownUpAndClick) {
  window_.button.on.mouse_down = [&](MouseButton) { log_.push_back("down"); };
  window_.button.on.mouse_up = [&](MouseButton) { log_.push_back("up"); };
  window_.button.on.click = [&] { log_.push_back("click"); };
  user_.Click(window_.button);
  EXPECT_EQ(log_, (std::vector<std::string>{"down", "up", "click"}));
  EXPECT_EQ(desktop_.Focused(), &window_.button);
}

TEST_F(Desk, ClickOnADisabledControlIsRefused) {
  window_.button.SetEnabled(false);
  EXPECT_THROW(user_.Click(window_.button), ActRefused);
}

TEST_F(Desk, ClickTurnsATickOver) {
  int seen = -1;
  window_.tick.on.click = [&] { seen = window_.tick.Value(); };
  user_.Click(window_.tick);
  EXPECT_EQ(seen, 1);
  user_.Click(window_.tick);
  EXPECT_EQ(seen, 0);
}

TEST_F(Desk, FocusLeavesBeforeItArrives) {
  user_.Focus(window_.one);
  window_.one.on.lost_focus = [&] { log_.push_back("lost one"); };
  window_.two.on.got_focus = [&] { log_.push_back("got two"); };
  user_.Focus(window_.two);
  EXPECT_EQ(log_, (std::vector<std::string>{"lost one", "got two"}));
}

TEST_F(Desk, TypingGoesBehindTheTextKeyByKey) {
  window_.one.SetText("0");
  window_.one.on.key_press = [&](char& key) {
    if (key == 'x') key = 0;
  };
  window_.one.on.key_up = [&](int code) { log_.push_back(std::to_string(code)); };
  user_.Type(window_.one, "1x2{Back}3");
  EXPECT_EQ(window_.one.Text(), "013");
  EXPECT_EQ(log_, (std::vector<std::string>{"49", "120", "50", "8", "51"}));
}

TEST_F(Desk, TypingFollowsTheFocus) {
  user_.Type(window_.one, "1{Tab}2");
  EXPECT_EQ(window_.one.Text(), "1");
  EXPECT_EQ(window_.two.Text(), "2");
}

TEST_F(Desk, TabPassesOverWhatIsDisabled) {
  window_.two.SetEnabled(false);
  user_.Focus(window_.one);
  desktop_.FocusNext();
  EXPECT_EQ(desktop_.Focused(), &window_.button);
}

TEST_F(Desk, PasteIsChangeThenMouseUp) {
  window_.one.SetText("old");
  window_.one.on.change = [&] { log_.push_back("change " + window_.one.Text()); };
  window_.one.on.mouse_up = [&](MouseButton) { log_.push_back("up"); };
  user_.Paste(window_.one, "1 2 3");
  EXPECT_EQ(log_, (std::vector<std::string>{"change 1 2 3", "up"}));
}

TEST_F(Desk, PickingTheRowOnShowFiresItsClick) {
  int clicks = 0;
  window_.list.AddItem("a");
  window_.list.on.click = [&] { ++clicks; };
  user_.Pick(window_.list, 0);
  user_.Pick(window_.list, 0);
  EXPECT_EQ(clicks, 2);
  EXPECT_THROW(user_.Pick(window_.list, 1), ActRefused);
}

TEST_F(Desk, AnUntrappedErrorEndsTheEventInABox) {
  window_.button.on.click = [] { throw Error(kSubscript); };
  user_.Click(window_.button);
  EXPECT_EQ(boxes_.texts,
            std::vector<std::string>{"Run-time error '9':\r\n\r\nSubscript out of range"});
  EXPECT_EQ(desktop_.Depth(), 0);
}

TEST_F(Desk, ShowingTheFrontWindowDoesNotActivateItAgain) {
  int activations = 0;
  window_.on.activate = [&] { ++activations; };
  Window second("Second");
  desktop_.Show(second);
  desktop_.Show(window_);
  desktop_.Show(window_);
  EXPECT_EQ(activations, 1);
  user_.Switch(window_);
  EXPECT_EQ(activations, 2);
  EXPECT_EQ(desktop_.OpenForms().front(), &window_);
  EXPECT_EQ(desktop_.LoadOrder().front(), &window_);
}

TEST_F(Desk, AYieldOfAClosedWindowEndsItsProcedure) {
  bool reached = false;
  window_.button.on.click = [&] {
    desktop_.Unload(window_);
    desktop_.YieldFor(window_);
    reached = true;
  };
  user_.Click(window_.button);
  EXPECT_FALSE(reached);
  EXPECT_TRUE(boxes_.texts.empty());
  EXPECT_EQ(desktop_.Focused(), nullptr);
}

TEST_F(Desk, AClosedWindowLivesUntilNoEventCanUseIt) {
  struct Owned : Window {
    explicit Owned(bool& gone) : gone_(gone) {}
    ~Owned() override { gone_ = true; }
    bool& gone_;
  };
  bool gone = false;
  desktop_.Add("Owned", [&] { return std::make_shared<Owned>(gone); });
  const WindowOf<Owned> window(desktop_, "Owned");
  Owned& owned = window.Get();
  desktop_.Show("OWNED");
  bool gone_inside = true;
  owned.button.on.click = [&] {
    desktop_.Unload(owned);
    gone_inside = gone;
  };
  user_.Click(owned.button);
  EXPECT_FALSE(gone_inside);
  EXPECT_TRUE(gone);
  EXPECT_EQ(window.Peek(), nullptr);
  EXPECT_NE(&window.Get(), nullptr);
}

}  // namespace
}  // namespace base
