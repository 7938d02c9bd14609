#include "base/language/text_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace base {
namespace {

TEST(CompareText, OrdersBlankPunctuationDigitLetter) {
  const char* rising[] = {"",  " ",   "\t",  "!",  "#",   "*",  "/",  ":",     "_",
                          "~", "+",   "=",   "0",  "0 1", "00", "01", "045 7", "9",
                          "a", "a b", "a.b", "a1", "aa",  "ab", "b",  "z"};
  const std::size_t count = std::size(rising);
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t j = 0; j < count; ++j) {
      const int expected = i < j ? -1 : i > j ? 1 : 0;
      EXPECT_EQ(CompareText(rising[i], rising[j]), expected) << rising[i] << " | " << rising[j];
    }
  }
}

TEST(CompareText, HasNoCase) {
  EXPECT_EQ(CompareText("Lotto", "lOTTO"), 0);
  EXPECT_EQ(CompareText("\xC9T\xC9", "\xE9t\xE9"), 0);
  EXPECT_EQ(CompareText("B", "a"), 1);
  EXPECT_EQ(CompareText("a", "B"), -1);
}

TEST(CompareText, OrdersRankingRowsAsTheirPaddedCounts) {
  EXPECT_EQ(CompareText("045 7", "045 12"), 1);
  EXPECT_EQ(CompareText("045 7", "046 1"), -1);
  EXPECT_EQ(CompareText("045 07", "045 12"), -1);
  EXPECT_EQ(CompareText("045 1", "045 12"), -1);
}

TEST(CompareText, CountsHyphenAndApostropheLast) {
  EXPECT_EQ(CompareText("co-op", "coop"), 1);
  EXPECT_EQ(CompareText("co-op", "coot"), -1);
  EXPECT_EQ(CompareText("co-op", "coon"), 1);
  EXPECT_EQ(CompareText("can't", "cant"), 1);
  EXPECT_EQ(CompareText("can't", "can-t"), -1);
  EXPECT_EQ(CompareText("a-b", "ab-"), -1);
  EXPECT_EQ(CompareText("-", ""), 1);
  EXPECT_EQ(CompareText("--", "-"), 1);
  EXPECT_EQ(CompareText("-5", "4"), 1);
  EXPECT_EQ(CompareText("Co-Op", "cO-oP"), 0);
}

TEST(CompareText, PutsAccentedLettersBehindTheirLetter) {
  EXPECT_EQ(CompareText("\xE9", "e"), 1);
  EXPECT_EQ(CompareText("\xE9", "f"), -1);
  EXPECT_EQ(CompareText("\xE9"
                        "a",
                        "eb"),
            -1);
  EXPECT_EQ(CompareText("\xFF", "Y"), 1);
  EXPECT_EQ(CompareText("\x9F", "\xFF"), 0);
  EXPECT_EQ(CompareText("\xE6", "az"), 1);
  EXPECT_EQ(CompareText("\xE6", "b"), -1);
  EXPECT_EQ(CompareText("\xDF", "t"), -1);
  EXPECT_EQ(CompareText("e-", "\xE9"), -1);
}

TEST(CompareText, PutsControlCharactersFirst) {
  EXPECT_EQ(CompareText(std::string_view("\0", 1), " "), -1);
  EXPECT_EQ(CompareText(std::string_view("\0", 1), ""), 1);
  EXPECT_EQ(CompareText("\x81", "!"), -1);
}

TEST(CompareText, IsAnOrder) {
  std::mt19937 random(20051205);
  constexpr std::string_view kLetters =
      "aAbB\xE9"
      "e-' 10.";
  std::vector<std::string> texts;
  for (int i = 0; i < 120; ++i) {
    std::string text;
    for (auto length = random() % 4; length > 0; --length) {
      text += kLetters[random() % kLetters.size()];
    }
    texts.push_back(text);
  }
  for (const auto& a : texts) {
    EXPECT_EQ(CompareText(a, a), 0);
    for (const auto& b : texts) {
      const int ab = CompareText(a, b);
      ASSERT_EQ(ab, -CompareText(b, a)) << a << " | " << b;
      for (const auto& c : texts) {
        if (ab <= 0 && CompareText(b, c) <= 0) {
          ASSERT_EQ(CompareText(a, c), std::min(ab, CompareText(b, c)))
              << a << " | " << b << " | " << c;
        }
      }
    }
  }
}

TEST(CompareText, TellsAllCharactersApartButForCase) {
  int level = 0;
  for (int i = 0; i < 256; ++i) {
    for (int j = i + 1; j < 256; ++j) {
      const std::string a(1, static_cast<char>(i)), b(1, static_cast<char>(j));
      if (CompareText(a, b) == 0) ++level;
    }
  }
  constexpr int kLettersOfTwoCases = 26 + 30 + 4;
  EXPECT_EQ(level, kLettersOfTwoCases);
}

TEST(SortTexts, KeepsTheOrderOfLevelTexts) {
  std::vector<std::string> texts = {"b", "A", "a", "co-op", "B", "10", "9", "coop", " x"};
  SortTexts(texts);
  EXPECT_EQ(texts,
            (std::vector<std::string>{" x", "10", "9", "A", "a", "b", "B", "coop", "co-op"}));
}

}  // namespace
}  // namespace base
