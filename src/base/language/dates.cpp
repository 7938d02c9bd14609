#include "base/language/dates.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <vector>

#include "base/language/numbers.h"
#include "base/language/text.h"

namespace base {

namespace {

constexpr std::array<std::string_view, 12> kMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<std::string_view, 7> kWeekDays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};
constexpr std::size_t kShortName = 3;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool IsBlank(char c) { return std::string_view(" \t\r\n\xA0").find(c) != std::string_view::npos; }

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + IntegerText(number); }

int YearOnHostClock() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local.tm_year + 1900;
}

std::chrono::year_month_day Calendar(const Date& date) {
  return std::chrono::year(date.year) / std::chrono::month(static_cast<unsigned>(date.month)) /
         std::chrono::day(static_cast<unsigned>(date.day));
}

std::optional<Date> RealDay(int year, int month, int day) {
  if (year < 100) year += year < 50 ? 2000 : 1900;
  if (year > 9999 || month > 12 || day > 31) return std::nullopt;
  const Date date{year, month, day};
  if (!Calendar(date).ok()) return std::nullopt;
  return date;
}

enum class Kind { kNumber, kMonth, kMorning, kAfternoon, kDateSeparator, kTimeSeparator };

struct Token {
  Kind kind;
  int value = 0;  // of a number; of a month, 1 to 12
};

std::optional<Token> WordToken(std::string_view word) {
  if (EqualNoCase(word, "AM")) return Token{Kind::kMorning};
  if (EqualNoCase(word, "PM")) return Token{Kind::kAfternoon};
  for (std::size_t i = 0; i < kMonths.size(); ++i) {
    if (EqualNoCase(word, kMonths[i]) || EqualNoCase(word, kMonths[i].substr(0, kShortName))) {
      return Token{Kind::kMonth, static_cast<int>(i) + 1};
    }
  }
  return std::nullopt;
}

std::optional<Token> NumberToken(std::string_view digits) {
  constexpr std::size_t kLongest = 4;
  if (digits.size() > kLongest) return std::nullopt;
  return Token{Kind::kNumber, static_cast<int>(NumericValue(digits))};
}

std::optional<Token> SignToken(char sign) {
  if (sign == '/' || sign == '-' || sign == ',') return Token{Kind::kDateSeparator};
  if (sign == ':' || sign == '.') return Token{Kind::kTimeSeparator};
  return std::nullopt;
}

// The tokens of a text; none if something in it belongs to no date, or if it is too long for one.
std::vector<Token> Tokens(std::string_view text) {
  constexpr std::size_t kMostTokens = 16;
  std::vector<Token> tokens;
  std::size_t at = 0;
  while (at < text.size()) {
    const char c = text[at];
    if (IsBlank(c)) {
      ++at;
      continue;
    }
    const std::size_t begin = at++;
    if (IsDigit(c) || IsLetter(c)) {
      const auto belongs = IsDigit(c) ? IsDigit : IsLetter;
      while (at < text.size() && belongs(text[at])) ++at;
    }
    const std::string_view piece = text.substr(begin, at - begin);
    const std::optional<Token> token = IsDigit(c)    ? NumberToken(piece)
                                       : IsLetter(c) ? WordToken(piece)
                                                     : SignToken(c);
    if (!token || tokens.size() == kMostTokens) return {};
    tokens.push_back(*token);
  }
  return tokens;
}

// Sorts the tokens of a text into date numbers, month name and time.
class Parts {
 public:
  // False if the tokens stand in no order that a date or time has.
  bool Read(const std::vector<Token>& tokens);

  bool HasDate() const { return !numbers_.empty() || month_ != 0; }
  const DateTime& Time() const { return time_; }
  // The day that the numbers and the name make.
  std::optional<Date> Day(DateOrder order, int this_year) const;

 private:
  Kind KindAt(std::size_t at) const { return at < tokens_->size() ? (*tokens_)[at].kind : kNone; }
  bool ReadItem();
  bool ReadTime();
  bool SetTime(const std::vector<int>& figures, Kind half_of_day);
  std::optional<Date> DayOfNumbers(DateOrder order, int this_year) const;
  std::optional<Date> DayOfName(int this_year) const;

  // What stands behind the last token: a separator, so that nothing takes it for an item.
  static constexpr Kind kNone = Kind::kDateSeparator;

  const std::vector<Token>* tokens_ = nullptr;
  std::size_t at_ = 0;
  std::vector<int> numbers_;
  int month_ = 0;
  bool has_time_ = false;
  DateTime time_;
};

bool Parts::Read(const std::vector<Token>& tokens) {
  tokens_ = &tokens;
  if (tokens.empty()) return false;
  for (;;) {
    if (!ReadItem()) return false;
    if (at_ == tokens.size()) return true;
    if (KindAt(at_) == Kind::kDateSeparator) ++at_;
  }
}

bool Parts::ReadItem() {
  const Kind next = KindAt(at_ + 1);
  if (KindAt(at_) == Kind::kMonth) {
    if (month_ != 0) return false;
    month_ = (*tokens_)[at_++].value;
    return true;
  }
  if (KindAt(at_) != Kind::kNumber) return false;
  if (next == Kind::kTimeSeparator || next == Kind::kMorning || next == Kind::kAfternoon) {
    return ReadTime();
  }
  numbers_.push_back((*tokens_)[at_++].value);
  return true;
}

bool Parts::ReadTime() {
  if (has_time_) return false;
  std::vector<int> figures = {(*tokens_)[at_++].value};
  while (KindAt(at_) == Kind::kTimeSeparator) {
    if (KindAt(at_ + 1) != Kind::kNumber) return false;
    figures.push_back((*tokens_)[at_ + 1].value);
    at_ += 2;
  }
  const Kind half_of_day = KindAt(at_);
  if (half_of_day == Kind::kMorning || half_of_day == Kind::kAfternoon) ++at_;
  return SetTime(figures, half_of_day);
}

bool Parts::SetTime(const std::vector<int>& figures, Kind half_of_day) {
  if (figures.size() > 3) return false;
  time_.hour = figures[0];
  if (figures.size() > 1) time_.minute = figures[1];
  if (figures.size() > 2) time_.second = figures[2];
  if (time_.hour > 23 || time_.minute > 59 || time_.second > 59) return false;
  if (half_of_day == Kind::kMorning) {
    if (time_.hour > 12) return false;
    if (time_.hour == 12) time_.hour = 0;
  }
  if (half_of_day == Kind::kAfternoon && time_.hour < 12) time_.hour += 12;
  has_time_ = true;
  return true;
}

std::optional<Date> Parts::Day(DateOrder order, int this_year) const {
  return month_ == 0 ? DayOfNumbers(order, this_year) : DayOfName(this_year);
}

std::optional<Date> Parts::DayOfNumbers(DateOrder order, int this_year) const {
  if (numbers_.size() != 2 && numbers_.size() != 3) return std::nullopt;
  const int a = numbers_[0], b = numbers_[1];
  const bool year_given = numbers_.size() == 3;
  const int year = year_given ? numbers_[2] : this_year;
  const bool day_first = order == DateOrder::kDayFirst;
  if (const auto day = RealDay(year, day_first ? b : a, day_first ? a : b)) return day;
  if (const auto day = RealDay(year, day_first ? a : b, day_first ? b : a)) return day;
  if (year_given) {
    if (const auto day = RealDay(a, b, numbers_[2])) return day;
    return RealDay(a, numbers_[2], b);
  }
  if (const auto day = RealDay(b, a, 1)) return day;
  return RealDay(a, b, 1);
}

std::optional<Date> Parts::DayOfName(int this_year) const {
  if (numbers_.size() == 1) {
    if (const auto day = RealDay(this_year, month_, numbers_[0])) return day;
    return RealDay(numbers_[0], month_, 1);
  }
  if (numbers_.size() != 2) return std::nullopt;
  if (const auto day = RealDay(numbers_[1], month_, numbers_[0])) return day;
  return RealDay(numbers_[0], month_, numbers_[1]);
}

// One run of the same letter in a pattern, written out. behind_hour: the hour was written last.
std::string Field(const DateTime& date, char letter, std::size_t length, bool behind_hour) {
  const auto number = [length](int value) {
    return length == 1 ? IntegerText(value) : TwoDigits(value);
  };
  const auto name = [length](std::string_view full) {
    return length == kShortName ? Left(full, kShortName) : std::string(full);
  };
  const Date day{date.year, date.month, date.day};
  switch (letter) {
    case 'd':
      return length < kShortName ? number(date.day) : name(WeekDayName(day));
    case 'm':
      if (length >= kShortName) return name(kMonths[static_cast<std::size_t>(date.month - 1)]);
      return number(behind_hour ? date.minute : date.month);
    case 'y':
      return length < kShortName ? TwoDigits(date.year % 100) : IntegerText(date.year);
    case 'h':
      return number(date.hour);
    case 'n':
      return number(date.minute);
    default:
      return number(date.second);
  }
}

}  // namespace

std::optional<DateTime> ReadDate(std::string_view text, DateOrder order, int this_year) {
  Parts parts;
  const std::vector<Token> tokens = Tokens(text);
  if (!parts.Read(tokens)) return std::nullopt;
  DateTime result = parts.Time();
  if (!parts.HasDate()) return result;
  const auto day = parts.Day(order, this_year != 0 ? this_year : YearOnHostClock());
  if (!day) return std::nullopt;
  result.year = day->year;
  result.month = day->month;
  result.day = day->day;
  return result;
}

bool IsDate(std::string_view text, DateOrder order) { return ReadDate(text, order).has_value(); }

std::string FormatDate(const DateTime& date, std::string_view pattern) {
  constexpr std::string_view kFieldLetters = "dmyhns";
  std::string text;
  bool behind_hour = false;
  const std::string lower = Lower(pattern);
  for (std::size_t at = 0; at < lower.size();) {
    const char letter = lower[at];
    if (kFieldLetters.find(letter) == std::string_view::npos) {
      text += pattern[at++];
      continue;
    }
    const std::size_t end = std::min(lower.find_first_not_of(letter, at), lower.size());
    text += Field(date, letter, end - at, behind_hour);
    behind_hour = letter == 'h';
    at = end;
  }
  return text;
}

std::string DateText(std::string_view date_text, std::string_view pattern, DateOrder order) {
  const std::optional<DateTime> date = ReadDate(date_text, order);
  return date ? FormatDate(*date, pattern) : std::string(date_text);
}

int DayOfWeek(Date date) {
  const std::chrono::weekday day{std::chrono::sys_days(Calendar(date))};
  return static_cast<int>(day.c_encoding());
}

std::string WeekDayName(Date date) {
  return std::string(kWeekDays[static_cast<std::size_t>(DayOfWeek(date))]);
}

}  // namespace base
