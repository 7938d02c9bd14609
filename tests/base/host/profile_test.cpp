#include "base/host/profile.h"

#include <gtest/gtest.h>

#include <random>

namespace base {
namespace {

struct Case {
  const char* name;
  std::string text;
  std::string value;
};

TEST(Profile, ReadsAsThePlatformDoes) {
  const Case cases[] = {
      {"plain", "[s]\nk=v\n", "v"},
      {"case aside", "[S]\r\nK=v\r\n", "v"},
      {"blanks round names", "[ s ]\n  k \t=  v w  \n", "v w"},
      {"double quotes", "[s]\nk=\" v \"\n", " v "},
      {"single quotes", "[s]\nk='v'\n", "v"},
      {"one pair only", "[s]\nk=\"\"v\"\"\n", "\"v\""},
      {"unequal quotes", "[s]\nk=\"v'\n", "\"v'"},
      {"comment line", "[s]\n;k=no\nk=v;w\n", "v;w"},
      {"first of doubled keys", "[s]\nk=1\nk=2\n", "1"},
      {"first of doubled sections", "[s]\na=1\n[s]\nk=2\n", ""},
      {"another section", "[t]\nk=no\n[s]\nk=v\n", "v"},
      {"key after the next section", "[s]\n[t]\nk=no\n", ""},
      {"no end of line", "[s]\nk=v", "v"},
      {"no section", "k=v\n", ""},
      {"value with equals", "[s]\nk=a=b\n", "a=b"},
      {"line without equals", "[s]\nk\nk=v\n", "v"},
      {"unclosed heading", "[s\nk=v\n", "v"},
      {"NUL bytes", std::string("[s]\n\0\0=x\nk=v\0w\n", 16), std::string("v\0w", 3)},
  };
  for (const Case& c : cases) EXPECT_EQ(ReadIniText(c.text, "s", "k"), c.value) << c.name;
}

TEST(Profile, CutsAValueTo254Characters) {
  EXPECT_EQ(ReadIniText("[s]\nk=" + std::string(10000, 'x') + "\n", "s", "k"),
            std::string(254, 'x'));
}

// Whatever bytes a file holds, reading it ends, with no more than the longest value.
TEST(Profile, SurvivesRandomBytes) {
  std::mt19937 random(1);
  const std::string bytes = std::string("[]=;\"' \r\n\tsk") + '\0' + '\xFF';
  for (int round = 0; round < 2000; ++round) {
    std::string text(random() % 600, ' ');
    for (char& c : text) c = bytes[random() % bytes.size()];
    EXPECT_LE(ReadIniText("[s]\nk=" + text, "s", "k").size(), 254u);
    EXPECT_LE(ReadIniText(text, "s", "k").size(), 254u);
  }
}

TEST(Profile, AMissingFileHasNoKeys) {
  NoFiles files;
  EXPECT_EQ(ReadIniString(files, "s", "k", "nowhere.ini"), "");
}

}  // namespace
}  // namespace base
