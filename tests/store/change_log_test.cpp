#include "store/change_log.h"

#include <gtest/gtest.h>

#include <random>

namespace test {
namespace {

using store::ByteChange;
using store::ChangeLog;
using store::ChangeOf;
using store::PendingRows;

TEST(ByteChange, IsWhatLiesBetweenTheSharedEnds) {
  struct Case {
    const char* before;
    const char* after;
    std::size_t offset;
    const char* old_bytes;
    const char* new_bytes;
  };
  const Case cases[] = {
      {"", "", 0, "", ""},         {"abc", "abc", 3, "", ""},           {"", "abc", 0, "", "abc"},
      {"abc", "", 0, "abc", ""},   {"abc", "aXc", 1, "b", "X"},         {"abc", "abcd", 3, "", "d"},
      {"abc", "bc", 0, "a", ""},   {"abc", "Xabc", 0, "", "X"},         {"aaa", "aa", 2, "a", ""},
      {"aa", "aaaa", 2, "", "aa"}, {"abcd", "dcba", 0, "abcd", "dcba"}, {"abab", "ab", 2, "ab", ""},
  };
  for (const Case& test_case : cases) {
    SCOPED_TRACE(std::string(test_case.before) + " to " + test_case.after);
    const ByteChange change = ChangeOf(test_case.before, test_case.after);
    EXPECT_EQ(change.offset, test_case.offset);
    EXPECT_EQ(change.old_bytes, test_case.old_bytes);
    EXPECT_EQ(change.new_bytes, test_case.new_bytes);
    EXPECT_EQ(change.IsNone(), std::string(test_case.before) == test_case.after);
    EXPECT_EQ(TakenBack(change, test_case.after), test_case.before);
  }
}

TEST(ByteChange, TakenBackGivesTheBytesBackWhateverTheyAre) {
  std::mt19937 random(11);
  const auto bytes = [&] {
    std::string text(random() % 12, '\0');
    for (char& byte : text) byte = static_cast<char>('a' + random() % 2);
    return text;
  };
  for (int round = 0; round < 5000; ++round) {
    const std::string before = bytes();
    const std::string after = bytes();
    ASSERT_EQ(TakenBack(ChangeOf(before, after), after), before) << before << " to " << after;
  }
}

// The log of a file whose bytes go through these states, one change after each of them.
struct States {
  ChangeLog log;
  std::string bytes = "0";
  PendingRows pending;

  void Write(const std::string& told, const std::string& now) {
    log.Add({.told = told,
             .bytes = ChangeOf(bytes, now),
             .pending_before = pending,
             .place = static_cast<int>(now.size())});
    bytes = now;
  }
  void Remove(const std::string& told, int place) {
    log.Add({.told = told, .pending_before = pending, .place = place});
    pending[place] = std::nullopt;
  }
  void Store(const std::string& now) {
    log.Add({.bytes = ChangeOf(bytes, now), .pending_before = pending});
    pending.clear();
    bytes = now;
  }
  // The text of what was taken back, empty where there was nothing.
  std::string TakeBack() {
    const auto plan = log.PlanUndo(bytes);
    if (!plan) return {};
    EXPECT_EQ(plan->told, log.Newest());
    log.Drop(plan->changes);
    bytes = plan->bytes;
    pending = plan->pending;
    return plan->told;
  }
};

TEST(ChangeLog, TakesBackTheNewestFirst) {
  States states;
  EXPECT_EQ(states.TakeBack(), "");
  states.Write("a", "01");
  states.Write("b", "0123");
  EXPECT_EQ(states.log.PlanUndo(states.bytes)->place, 4);
  EXPECT_EQ(states.TakeBack(), "b");
  EXPECT_EQ(states.bytes, "01");
  EXPECT_EQ(states.TakeBack(), "a");
  EXPECT_EQ(states.bytes, "0");
  EXPECT_EQ(states.TakeBack(), "");
  EXPECT_EQ(states.log.Newest(), "");
}

TEST(ChangeLog, WhatIsPendingComesBackWithoutTheFile) {
  States states;
  states.Remove("a", 3);
  states.Remove("b", 5);
  EXPECT_EQ(states.TakeBack(), "b");
  EXPECT_EQ(states.pending, (PendingRows{{3, std::nullopt}}));
  EXPECT_EQ(states.TakeBack(), "a");
  EXPECT_EQ(states.pending, PendingRows());
  EXPECT_EQ(states.bytes, "0");
}

TEST(ChangeLog, WhatWasStoredIsTakenBackWithTheChangeBeforeIt) {
  States states;
  states.Remove("a", 3);
  states.Remove("b", 5);
  states.Store("x");
  EXPECT_EQ(states.log.Newest(), "b");
  EXPECT_EQ(states.TakeBack(), "b");
  EXPECT_EQ(states.bytes, "0");
  EXPECT_EQ(states.pending, (PendingRows{{3, std::nullopt}}));
  states.Store("y");
  EXPECT_EQ(states.TakeBack(), "a");
  EXPECT_EQ(states.bytes, "0");
  EXPECT_EQ(states.pending, PendingRows());
}

TEST(ChangeLog, WhatWasGivenUpCannotBeTakenBack) {
  States states;
  states.Write("a", "01");
  states.Remove("b", 3);
  states.Write("c", "012");
  states.Remove("d", 5);
  states.log.ForgetPending();
  states.pending.clear();
  EXPECT_EQ(states.TakeBack(), "c");
  EXPECT_EQ(states.pending, PendingRows());
  EXPECT_EQ(states.TakeBack(), "a");
  EXPECT_EQ(states.bytes, "0");
  EXPECT_EQ(states.TakeBack(), "");
}

TEST(ChangeLog, WhatWasStoredBeforeIsNotGivenUp) {
  States states;
  states.Remove("a", 3);
  states.Store("x");
  states.Remove("b", 5);
  states.log.ForgetPending();
  states.pending.clear();
  EXPECT_EQ(states.log.Newest(), "a");
  EXPECT_EQ(states.TakeBack(), "a");
  EXPECT_EQ(states.bytes, "0");
  EXPECT_EQ(states.TakeBack(), "");
}

TEST(ChangeLog, ThatWasClearedHasNothing) {
  States states;
  states.Write("a", "01");
  states.log.Clear();
  EXPECT_EQ(states.log.Newest(), "");
  EXPECT_FALSE(states.log.PlanUndo(states.bytes));
}

}  // namespace
}  // namespace test
