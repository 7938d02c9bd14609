#include "base/language/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "base/language/error.h"

namespace base {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

// The number of the error that the call ends in, 0 if it ends well.
int ErrorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(ToInt16, RoundsHalfToEven) {
  const struct {
    double value;
    int expected;
  } cases[] = {{0, 0},
               {0.5, 0},
               {1.5, 2},
               {2.5, 2},
               {24.5, 24},
               {16.67, 17},
               {-0.5, 0},
               {-1.5, -2},
               {-2.5, -2},
               {0.4999999999999999, 0},
               {2.5001, 3},
               {-0.6, -1},
               {32767.4999, 32767},
               {-32768.5, -32768},
               {-32768, -32768},
               {-32767.5, -32768}};
  for (const auto& c : cases) EXPECT_EQ(ToInt16(c.value), c.expected) << c.value;
}

TEST(ToInt16, HoldsTheUnroundedValueAgainstTheRange) {
  for (const double value : {32767.5, 32768.0, -32768.500001, -40000.0, 1e300, -1e300, kInfinity,
                             -kInfinity, kNoNumber}) {
    EXPECT_EQ(ErrorOf([&] { ToInt16(value); }), kOverflow) << value;
  }
}

TEST(ToInt16, ReadsText) {
  EXPECT_EQ(ToInt16("7\r"), 7);
  EXPECT_EQ(ToInt16(" 2.5 "), 2);
  EXPECT_EQ(ToInt16("-3.5"), -4);
  EXPECT_EQ(ToInt16("32767.4999"), 32767);
  EXPECT_EQ(ToInt16("00012"), 12);
  EXPECT_EQ(ErrorOf([] { ToInt16("32767.5"); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { ToInt16("99999"); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { ToInt16("1E999"); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { ToInt16(""); }), kTypeMismatch);
  EXPECT_EQ(ErrorOf([] { ToInt16("12a"); }), kTypeMismatch);
}

TEST(ToInt32, RoundsAndHoldsItsRange) {
  EXPECT_EQ(ToInt32(2147483647.4999), 2147483647);
  EXPECT_EQ(ToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ToInt32("100000.5"), 100000);
  EXPECT_EQ(ToInt32("2147483647"), 2147483647);
  EXPECT_EQ(ErrorOf([] { ToInt32(2147483647.5); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { ToInt32("-2147483649"); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { ToInt32("x"); }), kTypeMismatch);
}

TEST(ToByte, RoundsAndHoldsItsRange) {
  EXPECT_EQ(ToByte(-0.5), 0);
  EXPECT_EQ(ToByte(254.5), 254);
  EXPECT_EQ(ToByte(255.4999), 255);
  EXPECT_EQ(ToByte("00"), 0);
  EXPECT_EQ(ToByte("49"), 49);
  EXPECT_EQ(ToByte("255"), 255);
  EXPECT_EQ(ToByte(" 7"), 7);
  EXPECT_EQ(ToByte("0255"), 255);
  for (const double value : {255.5, -0.51, -1.0, 256.0, kNoNumber}) {
    EXPECT_EQ(ErrorOf([&] { ToByte(value); }), kOverflow) << value;
  }
  EXPECT_EQ(ErrorOf([] { ToByte("256"); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { ToByte("-1"); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { ToByte(""); }), kTypeMismatch);
  EXPECT_EQ(ErrorOf([] { ToByte("  "); }), kTypeMismatch);
}

TEST(ToDouble, ReadsEverySpelling) {
  const struct {
    const char* text;
    double expected;
  } cases[] = {{"0", 0},
               {"7", 7},
               {"12345", 12345},
               {"-5", -5},
               {"+5", 5},
               {".5", 0.5},
               {"5.", 5},
               {"-.25", -0.25},
               {"1E3", 1000},
               {"1e+3", 1000},
               {"25d-1", 2.5},
               {"1.5D2", 150},
               {" \t8\r\n", 8},
               {"\r\n8", 8},
               {"000000123", 123},
               {"1E-400", 0},
               {"0E999999999", 0},
               {"0.1", 0.1},
               {"1.7976931348623157E308", 1.7976931348623157e308},
               {"4.9E-324", 5e-324},
               {"1E-99999999999999999999", 0},
               {"-1E-999", 0}};
  for (const auto& c : cases) EXPECT_EQ(ToDouble(c.text), c.expected) << c.text;
}

TEST(ToDouble, RefusesWhatIsNoNumber) {
  for (const char* text :
       {"",  " ", "\r\n", "12a", "a12", "1 2",   "- 5", "--5", "5-",   "1.2.3", ".",
        "-", "+", "1E",   "1E+", "E5",  "1,234", "nan", "inf", "0x1F", "1e5.5"}) {
    EXPECT_EQ(ErrorOf([&] { ToDouble(text); }), kTypeMismatch) << text;
  }
  EXPECT_EQ(ErrorOf([] { ToDouble(std::string_view("1\0", 2)); }), kTypeMismatch);
}

TEST(ToDouble, OverflowsBeyondTheGreatestNumber) {
  for (const std::string& text : {std::string("1E309"), std::string("-1D400"),
                                  std::string("1E99999999999999999999"), std::string(400, '9')}) {
    EXPECT_EQ(ErrorOf([&] { ToDouble(text); }), kOverflow) << text;
  }
}

TEST(ToDouble, ReadsLongTextsByTheirPlace) {
  EXPECT_EQ(ToDouble("0." + std::string(500, '0') + "1"), 0);
  EXPECT_EQ(ToDouble("0." + std::string(500, '0') + "1E501"), 1);
  EXPECT_EQ(ToDouble("1" + std::string(500, '0') + "E-500"), 1);
}

TEST(ToSingle, RoundsToFloatAndOverflows) {
  EXPECT_EQ(ToSingle("0.1"), 0.1f);
  EXPECT_EQ(ToSingle("16777217"), 16777216.0f);
  EXPECT_EQ(ToSingle("3.4028234E38"), 3.4028234e38f);
  EXPECT_EQ(ToSingle("1E-60"), 0.0f);
  EXPECT_EQ(ErrorOf([] { ToSingle("3.5E38"); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { ToSingle("-1E39"); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { ToSingle("word"); }), kTypeMismatch);
}

TEST(ToBoolean, ReadsWordsAndNumbers) {
  for (const char* text : {"True", "true", "TRUE", "1", "-1", "0.1", " True\r\n"}) {
    EXPECT_TRUE(ToBoolean(text)) << text;
  }
  for (const char* text : {"False", "false", "FALSE", "0", "0.0", "-0"}) {
    EXPECT_FALSE(ToBoolean(text)) << text;
  }
  for (const char* text : {"", "yes", "Truex", "Tru", "1x"}) {
    EXPECT_EQ(ErrorOf([&] { ToBoolean(text); }), kTypeMismatch) << text;
  }
}

TEST(BooleanText, PrintsTheWords) {
  EXPECT_EQ(BooleanText(true), "True");
  EXPECT_EQ(BooleanText(false), "False");
}

TEST(DoubleText, PrintsThirtiethWithExponent) {
  EXPECT_EQ(DoubleText(1.0 / 30), "3.33333333333333E-02");
}

TEST(DoubleText, PrintsPlainDecimalsWhilePlacesSuffice) {
  const struct {
    double value;
    const char* expected;
  } cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {7, "7"},
      {-12, "-12"},
      {0.5, "0.5"},
      {0.1, "0.1"},
      {-0.25, "-0.25"},
      {0.00001, "0.00001"},
      {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333333333"},
      {2.0 / 3, "0.666666666666667"},
      {100.0 / 3, "33.3333333333333"},
      {6.125, "6.125"},
      {1234567890.125, "1234567890.125"},
      {999999999999999, "999999999999999"},
      {123456789012345, "123456789012345"},
      {12345678901234.56, "12345678901234.6"},
      {1e-15, "0.000000000000001"},
      {1.5e-14, "0.000000000000015"},
      {0.999999999999999, "0.999999999999999"},
      {0.9999999999999999, "1"},
      {99999.99999999999, "100000"},
  };
  for (const auto& c : cases) EXPECT_EQ(DoubleText(c.value), c.expected);
}

TEST(DoubleText, PrintsAnExponentOtherwise) {
  const struct {
    double value;
    const char* expected;
  } cases[] = {
      {1e15, "1E+15"},
      {-1e15, "-1E+15"},
      {1.5e15, "1.5E+15"},
      {999999999999999.9, "1E+15"},
      {123456789012345678.0, "1.23456789012346E+17"},
      {1e100, "1E+100"},
      {1.0 / 17, "5.88235294117647E-02"},
      {-1.0 / 30, "-3.33333333333333E-02"},
      {1e-16, "1E-16"},
      {1.5e-15, "1.5E-15"},
      {1.7976931348623157e308, "1.79769313486232E+308"},
      {5e-324, "4.94065645841247E-324"},
      {0.0999999999999999, "9.99999999999999E-02"},
  };
  for (const auto& c : cases) EXPECT_EQ(DoubleText(c.value), c.expected);
}

TEST(DoubleText, RoundsTiesAwayFromZero) {
  EXPECT_EQ(DoubleText(100000000000000.5), "100000000000001");
  EXPECT_EQ(DoubleText(100000000000001.5), "100000000000002");
  EXPECT_EQ(DoubleText(-100000000000002.5), "-100000000000003");
  EXPECT_EQ(DoubleText(1000000000000005.0), "1.00000000000001E+15");
  EXPECT_EQ(DoubleText(1000000000000004.9), "1E+15");
  EXPECT_EQ(DoubleText(999999999999999.5), "1E+15");
}

TEST(DoubleText, NamesWhatIsNoNumber) {
  EXPECT_EQ(DoubleText(kInfinity), "1.#INF");
  EXPECT_EQ(DoubleText(-kInfinity), "-1.#INF");
  EXPECT_EQ(DoubleText(kNoNumber), "-1.#IND");
}

TEST(SingleText, HasSevenDigits) {
  const struct {
    float value;
    const char* expected;
  } cases[] = {
      {0.0f, "0"},
      {-0.0f, "0"},
      {49.0f, "49"},
      {-3.0f, "-3"},
      {0.1f, "0.1"},
      {6.5f, "6.5"},
      {1.0f / 3, "0.3333333"},
      {1.0f / 256, "3.90625E-03"},
      {0.00390625f * 2, "0.0078125"},
      {1.0f / 30, "3.333334E-02"},
      {9999999.0f, "9999999"},
      {1e7f, "1E+07"},
      {16777216.0f, "1.677722E+07"},
      {0.0000001f, "0.0000001"},
      {3.4028234e38f, "3.402823E+38"},
      {32767.0f, "32767"},
      {1234567.5f, "1234568"},
      {1234566.5f, "1234567"},
      {-1234566.5f, "-1234567"},
  };
  for (const auto& c : cases) EXPECT_EQ(SingleText(c.value), c.expected);
}

TEST(IntegerText, PrintsTheWholeRange) {
  EXPECT_EQ(IntegerText(0), "0");
  EXPECT_EQ(IntegerText(-1), "-1");
  EXPECT_EQ(IntegerText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
  EXPECT_EQ(IntegerText(std::numeric_limits<std::int64_t>::max()), "9223372036854775807");
}

TEST(NumericValue, ReadsTheLeadingNumber) {
  const struct {
    const char* text;
    double expected;
  } cases[] = {{"", 0},
               {"abc", 0},
               {"7", 7},
               {"07", 7},
               {"12a", 12},
               {"7\r", 7},
               {"  42", 42},
               {"\t\n42", 42},
               {"\r42", 0},
               {"1 2", 12},
               {"- 5", -5},
               {"-5x", -5},
               {"+5", 5},
               {"--5", 0},
               {"3.14.15", 3.14},
               {".5", 0.5},
               {".", 0},
               {"-.", 0},
               {"5.", 5},
               {"1E3", 1000},
               {"1d2", 100},
               {"1E", 1},
               {"1E+", 1},
               {"1E+x", 1},
               {"1,234", 1},
               {"12345678", 12345678},
               {"1E-999", 0},
               {"inf", 0},
               {"nan", 0},
               {"0x10", 0},
               {"4 draws", 4},
               {"\xA0"
                "5",
                0}};
  for (const auto& c : cases) EXPECT_EQ(NumericValue(c.text), c.expected) << c.text;
}

TEST(NumericValue, TakesTheGreatestNumberForOneTooGreat) {
  constexpr double kGreatest = std::numeric_limits<double>::max();
  EXPECT_EQ(NumericValue("1E999"), kGreatest);
  EXPECT_EQ(NumericValue("-1E999 "), -kGreatest);
}

TEST(AddInt16, OverflowsOutsideItsRange) {
  EXPECT_EQ(AddInt16(32766, 1), 32767);
  EXPECT_EQ(AddInt16(-32767, -1), -32768);
  EXPECT_EQ(AddInt16(5, -5), 0);
  EXPECT_EQ(ErrorOf([] { AddInt16(32767, 1); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { AddInt16(-32768, -1); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { AddInt16(32767, std::numeric_limits<int>::max()); }), kOverflow);
}

TEST(RoundHalfEven, RoundsAtTheDecimal) {
  EXPECT_EQ(RoundHalfEven(2.5, 0), 2);
  EXPECT_EQ(RoundHalfEven(3.5, 0), 4);
  EXPECT_EQ(RoundHalfEven(0.125, 2), 0.12);
  EXPECT_EQ(RoundHalfEven(0.375, 2), 0.38);
  EXPECT_EQ(RoundHalfEven(-0.125, 2), -0.12);
  EXPECT_EQ(RoundHalfEven(12.34567, 4), 12.3457);
  EXPECT_EQ(RoundHalfEven(1e300, 2), 1e300);
  EXPECT_EQ(RoundHalfEven(kInfinity, 2), kInfinity);
  EXPECT_EQ(ErrorOf([] { RoundHalfEven(1, -1); }), kInvalidCall);
  EXPECT_EQ(ErrorOf([] { RoundHalfEven(1, 23); }), kInvalidCall);
}

}  // namespace
}  // namespace base
