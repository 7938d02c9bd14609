#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

// The date test of the language, and dates by pattern. Names are English.

namespace base {

// The order in which the machine's region writes day and month.
enum class DateOrder { kDayFirst, kMonthFirst };

struct Date {
  int year, month, day;
  bool operator==(const Date&) const = default;
};

// A time without a date has the day 0 of the classic calendar.
struct DateTime {
  int year = 1899, month = 12, day = 30;
  int hour = 0, minute = 0, second = 0;
  auto operator<=>(const DateTime&) const = default;
};

// The date, the time or both that a text spells; nothing if it is no date.
//
// Date: two or three numbers, or one or two with the name of a month ("May", "december"), between
// them blanks or one of "/", "-" and ",". Three numbers are read in the region's order, otherwise
// with day and month changed over, otherwise with the year first; two as day and month of this
// year, otherwise as month and year. The first reading that makes a real day holds. Years 00 to 49
// are 20xx, 50 to 99 are 19xx. One number alone is no date.
// Time, before or behind the date or alone: two or three numbers with ":" or "." between them, then
// perhaps "AM" or "PM", with which one number is enough.
//
// this_year is the year of a date that names none, 0 for the year on the host's clock.
std::optional<DateTime> ReadDate(std::string_view text, DateOrder order, int this_year = 0);
bool IsDate(std::string_view text, DateOrder order);

// The date written by a pattern. Letters in any case: d day, dd in two digits, ddd its short name,
// dddd its name; m, mm, mmm, mmmm the same of the month; yy, yyyy year; h, hh hour of 24; n, nn
// minute, as are m and mm next behind the hour; s, ss second. All else stands for itself.
std::string FormatDate(const DateTime& date, std::string_view pattern);

// The same from text to text; a text that is no date comes back as it is.
std::string DateText(std::string_view date_text, std::string_view pattern, DateOrder order);

int DayOfWeek(Date date);  // 0 is Sunday
std::string WeekDayName(Date date);

}  // namespace base
