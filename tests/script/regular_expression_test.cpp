#include "script/regular_expression.h"

#include <gtest/gtest.h>

#include "script/wrong_script.h"

namespace script {
namespace {

// Why a search is refused; empty when it is not.
std::string Refusal(const std::string& pattern, const std::string& text) {
  try {
    Found(pattern, text);
  } catch (const WrongScript& wrong) {
    return wrong.what();
  }
  return "";
}

TEST(RegularExpression, IsSearchedAnywhereInTheText) {
  EXPECT_TRUE(Found("draw \\d+", "\"the draw 45\""));
  EXPECT_TRUE(Found("^\"the .*\"$", "\"the draw 45\""));
  EXPECT_TRUE(Found("", "x"));
  EXPECT_FALSE(Found("^draw", "\"the draw 45\""));
  EXPECT_FALSE(Found("DRAW", "\"the draw 45\""));
}

TEST(RegularExpression, CountsCharactersAndNotBytes) {
  EXPECT_TRUE(Found("^.{2}$", "\xC2\xA3\xE2\x82\xAC"));
  EXPECT_TRUE(Found("[\xC2\xA3\xC2\xAC]\\d",
                    "\xC2\xA3"
                    "7"));
  EXPECT_FALSE(Found("[\xC2\xA3\xC2\xAC]", "\xC2\xA9"));
}

TEST(RegularExpression, SearchesLongTexts) {
  const std::string many(1'000'000, 'a');
  EXPECT_TRUE(Found("^\"a.*z\"$", "\"" + many + "z\""));
  EXPECT_FALSE(Found("^a.*[yz]", many));
}

TEST(RegularExpression, DoesNotOverflowTheStackOnLongTexts) {
  const std::string printed = "\"" + std::string(320'000, 'x') + "\"";
  EXPECT_FALSE(Found("^.(((((x)))))*z", printed));
  EXPECT_FALSE(Found("^.(((((x)))))*[yz]", printed));
  EXPECT_TRUE(Found("^.(((((x)))))*\"$", printed));
}

TEST(RegularExpression, ThatTakesTooManyStepsIsRefused) {
  EXPECT_EQ(Refusal("(a+)+$", std::string(40, 'a') + "!"),
            "the regular expression takes too many steps on this answer: (a+)+$");
  // Few steps from each place where a match may begin, but many places.
  EXPECT_EQ(Refusal("x*[yz]", std::string(320'000, 'x')),
            "the regular expression takes too many steps on this answer: x*[yz]");
}

TEST(RegularExpression, ThatTakesTooMuchMemoryIsRefused) {
  EXPECT_EQ(Refusal("^(((((((((x)))))))))*[yz]", std::string(1'000'000, 'x')),
            "the regular expression takes too much memory on this answer: "
            "^(((((((((x)))))))))*[yz]");
}

TEST(RegularExpression, ThatIsNoneIsRefused) {
  EXPECT_EQ(Refusal("(", "x"), "no regular expression: (: missing closing parenthesis");
  for (const char* pattern : {"[", "*", "a{2,1}", "\\", "(?<=a*)b", "[b-a]"}) {
    EXPECT_TRUE(Refusal(pattern, "x").starts_with("no regular expression: ")) << pattern;
  }
  EXPECT_TRUE(Refusal("(?R)?x", "y x").starts_with("the regular expression cannot be searched: "));
}

}  // namespace
}  // namespace script
