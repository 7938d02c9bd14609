#include "script/json_values.h"

#include <gtest/gtest.h>

namespace script {
namespace {

TEST(JsonValues, NumbersPrintShortest) {
  const struct {
    double number;
    const char* printed;
  } table[] = {
      {45, "45"},
      {-1, "-1"},
      {0, "0"},
      {-0.0, "0"},
      {0.5, "0.5"},
      {0.1, "0.1"},
      {2147483651, "2147483651"},
      {static_cast<double>(0.1F), "0.1"},
      {1.0 / 3, "0.3333333333333333"},
      {static_cast<double>(7.1F), "7.1"},
  };
  for (const auto& row : table) EXPECT_EQ(NumberJson(row.number).dump(), row.printed);
}

TEST(JsonValues, TextsBecomeUtf8) {
  EXPECT_EQ(TextJson("\xA3 5\r\n").dump(), "\"\xC2\xA3 5\\r\\n\"");
  EXPECT_EQ(TextsJson({"a", "\x80"}).dump(), "[\"a\",\"\xE2\x82\xAC\"]");
}

TEST(JsonValues, PropertiesKeepTheirKind) {
  EXPECT_EQ(PropertyJson(true).dump(), "true");
  EXPECT_EQ(PropertyJson(1.0).dump(), "1");
  EXPECT_EQ(PropertyJson(std::string("1")).dump(), "\"1\"");
  EXPECT_EQ(PropertyJson(std::vector<std::string>{"B1"}).dump(), "[\"B1\"]");
}

TEST(JsonValues, CompareAsValues) {
  using nlohmann::json;
  const Json object = {{"a", 1}, {"b", Json::array({2, 3})}};
  EXPECT_TRUE(SameJson(object, json::parse(R"( { "b" : [2, 3.0], "a":1.0 } )")));
  EXPECT_FALSE(SameJson(object, json::parse(R"({"a":1,"b":[3,2]})")));
  EXPECT_TRUE(SameJson(45, json::parse("45.0")));
  EXPECT_FALSE(SameJson(45, json::parse("\"45\"")));
  EXPECT_FALSE(SameJson(1, json::parse("true")));
  EXPECT_TRUE(SameJson(Json(), json::parse("null")));
}

}  // namespace
}  // namespace script
