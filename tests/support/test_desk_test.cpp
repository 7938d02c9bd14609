#include "support/test_desk.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace test {
namespace {

TEST(TestDesk, FailsItsTestOverWhatWasNeverReached) {
  EXPECT_NONFATAL_FAILURE(TestDesk().pump.At(7, [] {}), "never reached: an action in yield 7; ");
  EXPECT_NONFATAL_FAILURE(TestDesk().boxes.answers = {base::Answer::kNo}, "the answer ");
  EXPECT_NONFATAL_FAILURE(TestDesk().boxes.inputs = {"1 2"}, "the input \"1 2\"");
  EXPECT_NONFATAL_FAILURE(TestDesk().boxes.inputs = {std::nullopt}, "the input that cancels");
  EXPECT_NONFATAL_FAILURE(TestDesk().clock.looks.emplace_back(), "1 looks at the clock");
}

TEST(TestDesk, LeavesWhatItsTestSaysItMay) {
  TestDesk desk;
  desk.may_leave_unused = true;
  desk.pump.At(7, [] { FAIL(); });
  desk.boxes.answers = {base::Answer::kNo};
}

}  // namespace
}  // namespace test
