#include "base/language/text.h"

#include <gtest/gtest.h>

#include "base/language/error.h"

namespace base {
namespace {

using Pieces = std::vector<std::string>;

TEST(Text, LeftTakesTheFirstCharacters) {
  EXPECT_EQ(Left("abcdef", 3), "abc");
  EXPECT_EQ(Left("ab", 3), "ab");
  EXPECT_EQ(Left("ab", 0), "");
  EXPECT_EQ(Left("", 5), "");
}

TEST(Text, RightTakesTheLastCharacters) {
  EXPECT_EQ(Right("abcdef", 3), "def");
  EXPECT_EQ(Right("ab", 3), "ab");
  EXPECT_EQ(Right("ab", 0), "");
  EXPECT_EQ(Right("", 5), "");
}

TEST(Text, MidCountsFromOneAndGivesWhatThereIs) {
  EXPECT_EQ(Mid("abcdef", 1, 2), "ab");
  EXPECT_EQ(Mid("abcdef", 3, 2), "cd");
  EXPECT_EQ(Mid("abcdef", 5, 9), "ef");
  EXPECT_EQ(Mid("abcdef", 6, 1), "f");
  EXPECT_EQ(Mid("abcdef", 7, 1), "");
  EXPECT_EQ(Mid("abcdef", 99, 1), "");
  EXPECT_EQ(Mid("", 1, 1), "");
  EXPECT_THROW(Mid("abc", 0, 1), Error);
}

TEST(Text, LowerAndUpperKnowTheLettersOfTheCodePage) {
  const struct {
    const char* upper;
    const char* lower;
  } cases[] = {{"AZ", "az"},     {"\xC0\xD6\xD8\xDE", "\xE0\xF6\xF8\xFE"},
               {"\x8A", "\x9A"}, {"\x8C", "\x9C"},
               {"\x8E", "\x9E"}, {"\x9F", "\xFF"}};
  for (const auto& c : cases) {
    EXPECT_EQ(Lower(c.upper), c.lower);
    EXPECT_EQ(Upper(c.lower), c.upper);
  }
  for (const char* neither : {"0-9 @[`{", "\xD7", "\xF7", "\xDF", "\x83", "\x80", "\xAA"}) {
    EXPECT_EQ(Lower(neither), neither);
    EXPECT_EQ(Upper(neither), neither);
  }
}

TEST(Text, EqualNoCaseComparesWholeTexts) {
  EXPECT_TRUE(EqualNoCase("", ""));
  EXPECT_TRUE(EqualNoCase("Temp.DAT", "tEMP.dat"));
  EXPECT_TRUE(EqualNoCase("\xC9T\xC9", "\xE9t\xE9"));
  EXPECT_FALSE(EqualNoCase("ab", "abc"));
  EXPECT_FALSE(EqualNoCase("\xE9", "e"));
}

TEST(Text, ReplaceAllGoesOnBehindWhatItPutIn) {
  EXPECT_EQ(ReplaceAll("a--b----c", "--", "-"), "a-b--c");
  EXPECT_EQ(ReplaceAll("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(ReplaceAll("aaa", "aa", ""), "a");
  EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
  EXPECT_EQ(ReplaceAll("", "a", "x"), "");
  EXPECT_EQ(ReplaceAll("Abc", "a", "x"), "Abc");
}

TEST(Text, ReplaceAllNoCaseFindsBothCases) {
  EXPECT_EQ(ReplaceAllNoCase("Draw dRAW", "dRaW", "Line"), "Line Line");
  EXPECT_EQ(ReplaceAllNoCase("\xC9t\xE9", "\xE9", "e"), "ete");
  EXPECT_EQ(ReplaceAllNoCase("Other Text", "x", "x"), "Other Text");
  EXPECT_EQ(ReplaceAllNoCase("Other", "", "x"), "Other");
}

TEST(Text, UpToFirstAndLastGiveTheWholeTextWithoutTheCharacter) {
  EXPECT_EQ(UpToFirst("a.b.c", '.'), "a");
  EXPECT_EQ(UpToLast("a.b.c", '.'), "a.b");
  EXPECT_EQ(UpToFirst("abc", '.'), "abc");
  EXPECT_EQ(UpToLast("abc", '.'), "abc");
  EXPECT_EQ(UpToFirst(".abc", '.'), "");
  EXPECT_EQ(UpToLast("", '.'), "");
}

TEST(Text, SplitKeepsEmptyPieces) {
  EXPECT_EQ(Split("a b c", " "), (Pieces{"a", "b", "c"}));
  EXPECT_EQ(Split(" a  b ", " "), (Pieces{"", "a", "", "b", ""}));
  EXPECT_EQ(Split("a\r\nb\r", "\r\n"), (Pieces{"a", "b\r"}));
  EXPECT_EQ(Split("abc", ","), (Pieces{"abc"}));
  EXPECT_EQ(Split(",", ","), (Pieces{"", ""}));
  EXPECT_EQ(Split("abc", ""), (Pieces{"abc"}));
}

TEST(Text, SplitOfNothingHasNoPiece) { EXPECT_TRUE(Split("", ",").empty()); }

}  // namespace
}  // namespace base
