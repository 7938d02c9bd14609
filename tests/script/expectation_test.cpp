#include "script/expectation.h"

#include <gtest/gtest.h>

#include "script/wrong_script.h"

namespace script {
namespace {

std::optional<std::string> Compare(const char* text, const Json& answer) {
  return Difference(ParseExpectation(text), answer);
}

TEST(Difference, TellsBothValues) {
  EXPECT_EQ(Compare("beeps = 45.0", 45), std::nullopt);
  EXPECT_EQ(Compare("beeps = 4", 45), "beeps is 45 and not 4");
  EXPECT_EQ(Compare(R"(get A.B = "x")", "y"), R"(get A.B is "y" and not "x")");
}

TEST(Difference, SearchesThePrintedLine) {
  EXPECT_EQ(Compare(R"(get A.B ~ "draw \\d+")", "the draw 45"), std::nullopt);
  EXPECT_EQ(Compare(R"(get A.B ~ "^\"the .*\"$")", "the draw"), std::nullopt);
  EXPECT_EQ(Compare(R"(get A.B ~ "x")", "y"), R"(get A.B is "y" and does not match "x")");
}

TEST(Difference, RefusesAWrongRightSide) {
  for (const char* text : {"beeps = x", "beeps = ", "beeps = 1 2", "beeps ~ x", "beeps ~ \"(\"",
                           "beeps ~ \"a\" \"b\""}) {
    EXPECT_THROW(Compare(text, 1), WrongScript) << text;
  }
}

}  // namespace
}  // namespace script
