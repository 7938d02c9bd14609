#include "script/options.h"

#include <gtest/gtest.h>

#include "script/wrong_script.h"

namespace script {
namespace {

TEST(Options, Defaults) {
  const Options options = ReadOptions({});
  EXPECT_EQ(options.script, "");
  EXPECT_EQ(options.folder, "");
  EXPECT_EQ(options.settings, "");
  EXPECT_EQ(options.date_order, base::DateOrder::kMonthFirst);
  EXPECT_FALSE(options.keep_going);
  EXPECT_FALSE(options.strict);
}

TEST(Options, AreReadInBothForms) {
  const Options options = ReadOptions({"--folder", "a", "--settings=b", "week.desk", "--date-order",
                                       "uk", "--keep-going", "--strict", "--primary=ftp://u:p@h:1",
                                       "--alternative", "ftp://u:p@h:2"});
  EXPECT_EQ(options.folder, "a");
  EXPECT_EQ(options.settings, "b");
  EXPECT_EQ(options.script, "week.desk");
  EXPECT_EQ(options.date_order, base::DateOrder::kDayFirst);
  EXPECT_TRUE(options.keep_going);
  EXPECT_TRUE(options.keep_going);
  EXPECT_TRUE(options.strict);
  EXPECT_EQ(options.primary, "ftp://u:p@h:1");
  EXPECT_EQ(options.alternative, "ftp://u:p@h:2");
}

TEST(Options, ServersMayBeSecure) {
  const Options options = ReadOptions({"--primary=ftps://u:p@h:1", "--alternative", "ftps://h"});
  EXPECT_EQ(options.primary, "ftps://u:p@h:1");
  EXPECT_EQ(options.alternative, "ftps://h");
}

TEST(Options, ADashIsStandardInput) { EXPECT_EQ(ReadOptions({"-"}).script, ""); }

TEST(Options, RefuseWhatTheyDoNotKnow) {
  const std::vector<std::vector<std::string>> table{
      {"--x"},
      {"-k"},
      {"--folder"},
      {"--date-order", "fr"},
      {"a", "b"},
      {"--primary", "http://h"},
      {"--primary", "ftpss://h"},
      {"--alternative", "sftp://h"},
      {"--keep-going=yes"},
      {"--strict=yes"},
  };
  for (const auto& row : table) EXPECT_THROW(ReadOptions(row), WrongScript) << row.front();
}

}  // namespace
}  // namespace script
