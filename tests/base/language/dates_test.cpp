#include "base/language/dates.h"

#include <gtest/gtest.h>

namespace base {
namespace {

constexpr DateOrder kDay = DateOrder::kDayFirst;
constexpr DateOrder kMonth = DateOrder::kMonthFirst;
constexpr int kThisYear = 2007;

// The date of a text as "2005-12-05", with " 14:30:00" behind it where it has a time; "none".
std::string Read(std::string_view text, DateOrder order) {
  const auto date = ReadDate(text, order, kThisYear);
  if (!date) return "none";
  const bool midnight = date->hour == 0 && date->minute == 0 && date->second == 0;
  return FormatDate(*date, midnight ? "yyyy-mm-dd" : "yyyy-mm-dd hh:nn:ss");
}

TEST(ReadDate, TriesRegionThenChangedOverThenYearFirst) {
  const struct {
    const char* text;
    const char* day_first;
    const char* month_first;
  } cases[] = {
      {"05/12/2005", "2005-12-05", "2005-05-12"},
      {"5/1/05", "2005-01-05", "2005-05-01"},
      {"12/31/05", "2005-12-31", "2005-12-31"},
      {"31/12/05", "2005-12-31", "2005-12-31"},
      {"13/13/05", "2013-05-13", "2013-05-13"},
      {"31/02/05", "2031-02-05", "2031-02-05"},
      {"31/02/2005", "none", "none"},
      {"30/02/2004", "none", "none"},
      {"2005/12/05", "2005-12-05", "2005-12-05"},
      {"2005-02-29", "none", "none"},
      {"2004-02-29", "2004-02-29", "2004-02-29"},
      {"29/02/05", "2029-02-05", "2029-02-05"},
      {"29/02/04", "2004-02-29", "2004-02-29"},
      {"2005/31/12", "2005-12-31", "2005-12-31"},
      {"99/99/99", "none", "none"},
      {"00/00/00", "none", "none"},
      {"01/01/205", "205-01-01", "205-01-01"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Read(c.text, kDay), c.day_first) << c.text;
    EXPECT_EQ(Read(c.text, kMonth), c.month_first) << c.text;
  }
}

TEST(ReadDate, PutsTwoDigitYearsIntoTheirCentury) {
  EXPECT_EQ(Read("01/02/00", kDay), "2000-02-01");
  EXPECT_EQ(Read("01/02/49", kDay), "2049-02-01");
  EXPECT_EQ(Read("01/02/50", kDay), "1950-02-01");
  EXPECT_EQ(Read("01/02/99", kDay), "1999-02-01");
  EXPECT_EQ(Read("01/02/9999", kDay), "9999-02-01");
}

TEST(ReadDate, TakesTwoNumbers) {
  const struct {
    const char* text;
    const char* day_first;
    const char* month_first;
  } cases[] = {
      {"12/2005", "2005-12-01", "2005-12-01"},
      {"2005/12", "2005-12-01", "2005-12-01"},
      {"5/12", "2007-12-05", "2007-05-12"},
      {"31/5", "2007-05-31", "2007-05-31"},
      {"12-34", "2034-12-01", "2034-12-01"},
      {"34 12", "2034-12-01", "2034-12-01"},
      {"29/2", "2029-02-01", "2029-02-01"},
      {"13/2005", "none", "none"},
      {"40-41", "none", "none"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Read(c.text, kDay), c.day_first) << c.text;
    EXPECT_EQ(Read(c.text, kMonth), c.month_first) << c.text;
  }
}

TEST(ReadDate, TakesNamesOfMonths) {
  const struct {
    const char* text;
    const char* expected;
  } cases[] = {
      {"12 May 2005", "2005-05-12"}, {"May 12, 2005", "2005-05-12"},
      {"12-may-05", "2005-05-12"},   {"12May2005", "2005-05-12"},
      {"2005 May 12", "2005-05-12"}, {"31 DECEMBER 99", "1999-12-31"},
      {"sep 1 2001", "2001-09-01"},  {"May 2005", "2005-05-01"},
      {"2005 May", "2005-05-01"},    {"12 May", "2007-05-12"},
      {"May 12", "2007-05-12"},      {"Feb 30", "2030-02-01"},
      {"31 Feb 05", "2031-02-05"},   {"May", "none"},
      {"May June 2005", "none"},     {"1 2 May 2005", "none"},
      {"Mai 12 2005", "none"},       {"Monday 5 December 2005", "none"},
      {"31 Feb 2005", "none"},       {"12th May 2005", "none"},
  };
  for (const auto& c : cases) EXPECT_EQ(Read(c.text, kDay), c.expected) << c.text;
}

TEST(ReadDate, TakesItsSeparators) {
  for (const char* text :
       {"5/12/2005", "5-12-2005", "5,12,2005", "5 12 2005", "5, 12, 2005", "5 / 12 / 2005",
        "5-12/2005", "  5/12/2005  ", "5/12/2005\r\n", "5\t12\t2005"}) {
    EXPECT_EQ(Read(text, kDay), "2005-12-05") << text;
  }
  for (const char* text : {"5//12/2005", "/5/12/2005", "5/12/2005/", "5/12/2005,", "-5/12/2005",
                           "5;12;2005", "5_12_2005", "5/12/2005x", "(5/12/2005)", "5\\12\\2005"}) {
    EXPECT_EQ(Read(text, kDay), "none") << text;
  }
}

TEST(ReadDate, TakesTimes) {
  const struct {
    const char* text;
    const char* expected;
  } cases[] = {
      {"14:30", "1899-12-30 14:30:00"},
      {"12.30", "1899-12-30 12:30:00"},
      {"1:02:03", "1899-12-30 01:02:03"},
      {"0:00", "1899-12-30"},
      {"2:30 PM", "1899-12-30 14:30:00"},
      {"2:30pm", "1899-12-30 14:30:00"},
      {"12:30 am", "1899-12-30 00:30:00"},
      {"12:30 PM", "1899-12-30 12:30:00"},
      {"5 pm", "1899-12-30 17:00:00"},
      {"5/12/2005 14:30", "2005-12-05 14:30:00"},
      {"14:30:15 5/12/2005", "2005-12-05 14:30:15"},
      {"5 December 2005, 9.05", "2005-12-05 09:05:00"},
      {"5.12.05", "1899-12-30 05:12:05"},
      {"5.12.2005", "none"},
      {"24:00", "none"},
      {"12.60", "none"},
      {"12:30:60", "none"},
      {"14:30 am", "none"},
      {"1:2:3:4", "none"},
      {"14:", "none"},
      {":30", "none"},
      {"14:30 15:30", "none"},
      {"5 14:30", "none"},
      {"pm", "none"},
      {"14:30 pm am", "none"},
  };
  for (const auto& c : cases) EXPECT_EQ(Read(c.text, kDay), c.expected) << c.text;
}

TEST(IsDate, RefusesOneNumberAndOtherTexts) {
  for (const char* text : {"", " ", "5", "05", "2005", "051205", "20051205", "1E5", "abc", "/", "-",
                           "1 2 3 4", "01 02 03 04 05 06", "12345/1/1", "5/12/10000", "\xE9",
                           "1/1/1/1", "1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1"}) {
    EXPECT_FALSE(IsDate(text, kDay)) << text;
    EXPECT_FALSE(IsDate(text, kMonth)) << text;
  }
}

TEST(IsDate, AcceptsDatesAndTimes) {
  for (const char* text : {"12/31/05", "31/12/05", "12/2005", "5/12", "12.30", "14:30", "1,2,3"}) {
    EXPECT_TRUE(IsDate(text, kDay)) << text;
    EXPECT_TRUE(IsDate(text, kMonth)) << text;
  }
}

TEST(ReadDate, TakesTheYearOfTheClockWhereNoneIsGiven) {
  const auto date = ReadDate("5/12", kDay);
  ASSERT_TRUE(date);
  EXPECT_GE(date->year, 2024);
}

TEST(DateText, TellsTheRegionByTheDayOfTheWeek) {
  EXPECT_EQ(DateText("05/12/2005", "dddd", kDay), "Monday");
  EXPECT_EQ(DateText("05/12/2005", "dddd", kMonth), "Thursday");
}

TEST(DateText, WritesTheRegionsPatterns) {
  EXPECT_EQ(DateText("5 Dec 2005", "DD/MM/YY", kDay), "05/12/05");
  EXPECT_EQ(DateText("5 Dec 2005", "MM/DD/YY", kDay), "12/05/05");
  EXPECT_EQ(DateText("12/31/05", "DD/MM/YY", kDay), "31/12/05");
  EXPECT_EQ(DateText("5/12/2005", "DDDD", kDay), "Monday");
}

TEST(DateText, LeavesWhatIsNoDate) {
  EXPECT_EQ(DateText("", "dddd", kDay), "");
  EXPECT_EQ(DateText("no date", "dddd", kDay), "no date");
  EXPECT_EQ(DateText(" 31/02/2005 ", "DD/MM/YY", kDay), " 31/02/2005 ");
}

TEST(FormatDate, KnowsItsPatterns) {
  const DateTime date{2005, 3, 7, 9, 4, 8};
  const struct {
    const char* pattern;
    const char* expected;
  } cases[] = {
      {"", ""},
      {"d", "7"},
      {"dd", "07"},
      {"ddd", "Mon"},
      {"dddd", "Monday"},
      {"m", "3"},
      {"mm", "03"},
      {"mmm", "Mar"},
      {"mmmm", "March"},
      {"yy", "05"},
      {"yyyy", "2005"},
      {"h", "9"},
      {"hh", "09"},
      {"n", "4"},
      {"nn", "04"},
      {"s", "8"},
      {"ss", "08"},
      {"yyyy/mm/dd hh:nn", "2005/03/07 09:04"},
      {"hh:mm:ss", "09:04:08"},
      {"hh:mm mm", "09:04 03"},
      {"dd mm hh", "07 03 09"},
      {"dddd, d MMMM YYYY", "Monday, 7 March 2005"},
      {"[dd|mm]", "[07|03]"},
      {"DdMmYy", "070305"},
  };
  for (const auto& c : cases) EXPECT_EQ(FormatDate(date, c.pattern), c.expected) << c.pattern;
}

TEST(DateTime, OrdersByTime) {
  EXPECT_LT(*ReadDate("31/12/1999", kDay), *ReadDate("1/1/2000", kDay));
  EXPECT_LT(*ReadDate("1/1/2000", kDay), *ReadDate("1/1/2000 0:01", kDay));
  EXPECT_EQ(*ReadDate("1/1/2000", kDay), *ReadDate("2000-01-01", kDay));
}

TEST(WeekDayName, NamesTheDay) {
  EXPECT_EQ(WeekDayName({2005, 12, 5}), "Monday");
  EXPECT_EQ(WeekDayName({2005, 5, 12}), "Thursday");
  EXPECT_EQ(WeekDayName({1994, 11, 19}), "Saturday");
  EXPECT_EQ(WeekDayName({1899, 12, 30}), "Saturday");
  EXPECT_EQ(DayOfWeek({2000, 1, 2}), 0);
  EXPECT_EQ(DayOfWeek({2000, 1, 8}), 6);
}

}  // namespace
}  // namespace base
