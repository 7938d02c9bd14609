#include "script/ports.h"

#include <gtest/gtest.h>

#include "script/wrong_script.h"

namespace script {
namespace {

TEST(ScriptedBoxes, TakeTheirAnswersInTurnAndThenTheDefault) {
  ScriptedBoxes boxes;
  boxes.answers = {{base::Answer::kNo}};
  const base::MessageBox question{.text = "Sure?", .buttons = base::BoxButtons::kYesNo};
  EXPECT_EQ(boxes.Ask(question), base::Answer::kNo);
  EXPECT_EQ(boxes.Ask(question), base::Answer::kYes);
  ASSERT_EQ(boxes.shown.size(), 2u);
  EXPECT_EQ(boxes.shown[0].answer, base::Answer::kNo);
}

TEST(ScriptedBoxes, AnAnswerWithoutAButtonIsAWrongScript) {
  ScriptedBoxes boxes;
  boxes.answers = {{base::Answer::kNo}};
  EXPECT_THROW(boxes.Ask({.text = "Saved"}), WrongScript);
}

TEST(ScriptedBoxes, InputIsTypedCancelledOrConfirmed) {
  ScriptedBoxes boxes;
  boxes.inputs = {{"7"}, {std::nullopt}};
  const base::InputBox box{.prompt = "How many?", .default_text = "1"};
  EXPECT_EQ(boxes.Input(box), "7");
  EXPECT_EQ(boxes.Input(box), std::nullopt);
  EXPECT_EQ(boxes.Input(box), "1");
}

TEST(ScriptedPump, RunsEachActionInItsYield) {
  ScriptedPump pump;
  std::string order;
  const auto write = [&](const char* text) { return [&order, text] { order += text; }; };
  pump.Pump();
  pump.InYield(2, write("b"), 1);
  pump.InYield(
      1,
      [&] {
        order += "a";
        pump.InYield(1, write("c"), 2);
      },
      2);
  pump.InYield(2, write("d"), 3);
  pump.Pump();
  EXPECT_EQ(order, "a");
  pump.Pump();
  EXPECT_EQ(order, "abdc");
  pump.Pump();
  EXPECT_EQ(order, "abdc");
}

TEST(ScriptedPump, TellsTheLinesThatWait) {
  ScriptedPump pump;
  pump.InYield(
      2, [] {}, 7);
  pump.InYield(
      1, [] {}, 8);
  pump.InYield(
      2, [] {}, 9);
  EXPECT_EQ(pump.Waiting(), (std::vector<int>{8, 7, 9}));
  pump.Pump();
  EXPECT_EQ(pump.Waiting(), (std::vector<int>{7, 9}));
}

TEST(ScriptedPump, CountsNestedYields) {
  ScriptedPump pump;
  std::string order;
  pump.InYield(
      1,
      [&] {
        order += "(";
        pump.Pump();
        order += ")";
      },
      1);
  pump.InYield(
      2, [&] { order += "nested"; }, 2);
  pump.Pump();
  EXPECT_EQ(order, "(nested)");
}

TEST(ScriptedClock, StandsWhereItIsSet) {
  ScriptedClock clock;
  EXPECT_GE(clock.Now().year, 2024);
  clock.standing = base::DateTime{2005, 12, 5, 14, 30, 0};
  EXPECT_EQ(clock.Now(), *clock.standing);
}

TEST(Names, OfAnswersGoBothWays) {
  for (const char* name : {"ok", "cancel", "yes", "no", "retry"}) {
    ASSERT_TRUE(AnswerNamed(name));
    EXPECT_STREQ(Name(*AnswerNamed(name)), name);
  }
  EXPECT_FALSE(AnswerNamed("maybe"));
}

}  // namespace
}  // namespace script
