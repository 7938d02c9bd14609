#include "base/language/code_page.h"

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(CodePage, RoundTripsAllBytes) {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
}

TEST(CodePage, KnowsItsCharacters) {
  const struct {
    const char* cp1252;
    const char* utf8;
  } cases[] = {
      {"", ""},
      {"plain", "plain"},
      {"\x80", "\xE2\x82\xAC"},  // euro sign
      {"\xA3", "\xC2\xA3"},      // pound sign
      {"\xE9", "\xC3\xA9"},      // e acute
      {"\x9F", "\xC5\xB8"},      // Y with diaeresis
      {"\x85", "\xE2\x80\xA6"},  // ellipsis
      {"\x81", "\xC2\x81"},
      {"\x9D", "\xC2\x9D"},
      {"\xFF", "\xC3\xBF"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ToUtf8(c.cp1252), c.utf8);
    EXPECT_EQ(FromUtf8(c.utf8), c.cp1252);
  }
}

TEST(CodePage, WritesQuestionMarksForWhatItLacks) {
  EXPECT_EQ(FromUtf8("\xCE\xB1"), "?");              // alpha
  EXPECT_EQ(FromUtf8("a\xF0\x9F\x98\x80z"), "a?z");  // beyond 16 bits
  EXPECT_EQ(FromUtf8("\xC2\x80"), "?");              // control character 80
}

TEST(CodePage, WritesAQuestionMarkForEachBrokenByte) {
  const struct {
    const char* utf8;
    const char* expected;
  } cases[] = {{"\xE9", "?"},           {"a\x80z", "a?z"},
               {"\xE2\x82", "??"},      {"\xE2\x82z", "??z"},
               {"\xC0\xAF", "??"},      {"\xED\xA0\x80", "???"},
               {"\xE0\x80\xAF", "???"}, {"\xF4\x90\x80\x80", "????"},
               {"\xFF", "?"},           {"\xC3\xC3\xA9", "?\xE9"}};
  for (const auto& c : cases) EXPECT_EQ(FromUtf8(c.utf8), c.expected);
}

}  // namespace
}  // namespace base
