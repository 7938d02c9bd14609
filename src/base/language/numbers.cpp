#include "base/language/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>

#include "base/language/error.h"
#include "base/language/text.h"

namespace base {

namespace {

constexpr int kDoubleDigits = 15;
constexpr int kSingleDigits = 7;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsSkippedByNumericValue(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool IsExponentLetter(char c) { return c == 'E' || c == 'e' || c == 'D' || c == 'd'; }

template <typename Whole>
Whole RoundInto(double value) {
  constexpr double kLow = static_cast<double>(std::numeric_limits<Whole>::min()) - 0.5;
  constexpr double kHigh = static_cast<double>(std::numeric_limits<Whole>::max()) + 0.5;
  if (!(value >= kLow && value < kHigh)) throw Error(kOverflow);
  auto whole = static_cast<std::int64_t>(value);
  const double rest = value - static_cast<double>(whole);
  const bool odd = (whole & 1) != 0;
  if (rest > 0.5 || (rest == 0.5 && odd)) {
    ++whole;
  } else if (rest < -0.5 || (rest == -0.5 && odd)) {
    --whole;
  }
  return static_cast<Whole>(whole);
}

// The value of a text of one to four digits and nothing else, otherwise -1. Balls, counts and draw
// numbers are such texts, and a scan reads millions of them.
int ShortNumber(std::string_view text) {
  if (text.empty() || text.size() > 4) return -1;
  int value = 0;
  for (const char c : text) {
    if (!IsDigit(c)) return -1;
    value = value * 10 + (c - '0');
  }
  return value;
}

std::string_view WithoutWhiteSpaceAround(std::string_view text) {
  constexpr std::string_view kWhiteSpace = " \t\r\n\v\f";
  const std::size_t first = text.find_first_not_of(kWhiteSpace);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);
}

// A number as it is spelt at the start of a text.
struct Spelling {
  std::size_t length = 0;          // characters of the text that belong to it, 0 if there is none
  std::string plain;               // what std::from_chars reads
  std::int64_t leading_place = 0;  // of the first digit that is not 0: value < 10^leading_place
};

std::size_t ScanExponent(std::string_view text, std::size_t at, Spelling& spelling) {
  if (at >= text.size() || !IsExponentLetter(text[at])) return at;
  std::size_t next = at + 1;
  const bool negative = next < text.size() && text[next] == '-';
  if (next < text.size() && (text[next] == '-' || text[next] == '+')) ++next;
  if (next >= text.size() || !IsDigit(text[next])) return at;
  constexpr std::int64_t kFarBeyondAnyText = std::int64_t{1} << 50;
  std::int64_t exponent = 0;
  for (; next < text.size() && IsDigit(text[next]); ++next) {
    if (exponent < kFarBeyondAnyText) exponent = exponent * 10 + (text[next] - '0');
  }
  if (negative) exponent = -exponent;
  spelling.leading_place += exponent;
  spelling.plain += 'e';
  spelling.plain += IntegerText(exponent);
  return next;
}

Spelling ScanNumber(std::string_view text) {
  Spelling spelling;
  std::size_t at = 0;
  if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
    if (text[0] == '-') spelling.plain += '-';
    ++at;
  }
  bool digit_seen = false, point_seen = false, significant = false;
  for (; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '.' && !point_seen) {
      point_seen = true;
    } else if (IsDigit(c)) {
      digit_seen = true;
      significant = significant || c != '0';
      if (significant && !point_seen) ++spelling.leading_place;
      if (!significant && point_seen) --spelling.leading_place;
    } else {
      break;
    }
    spelling.plain += c;
  }
  if (digit_seen) spelling.length = ScanExponent(text, at, spelling);
  return spelling;
}

// The value of a spelling; infinite when it is too great to hold, 0 when it is too small.
double Value(const Spelling& spelling) {
  const char* begin = spelling.plain.data();
  double value = 0;
  const auto result = std::from_chars(begin, begin + spelling.plain.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  if (spelling.leading_place < 0) return 0;
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  return spelling.plain.front() == '-' ? -kInfinity : kInfinity;
}

// A number as 0.d1d2d3... times 10 to the power of point.
struct Decimal {
  std::string digits;  // no zero at either end
  int point = 0;
};

// The exact decimal expansion of a magnitude, cut to nearest at so many digits.
Decimal Expand(double magnitude, int digits) {
  std::array<char, 800> buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                    std::chars_format::scientific, digits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
  const std::size_t letter = text.find('e');
  Decimal decimal;
  decimal.digits = text[0];
  decimal.digits += text.substr(2, letter - 2);
  const char* exponent = text.data() + letter + (text[letter + 1] == '+' ? 2 : 1);
  std::from_chars(exponent, text.data() + text.size(), decimal.point);
  ++decimal.point;
  return decimal;
}

// Rounds to so many digits, ties away from zero. Three digits more tell on which side of a tie the
// value lies, unless they look like the tie itself; then the whole expansion does.
Decimal RoundToDigits(double magnitude, int count) {
  constexpr int kLongestExpansion = 770;
  const auto kept = static_cast<std::size_t>(count);
  Decimal decimal = Expand(magnitude, count + 3);
  if (decimal.digits.compare(kept, 3, "500") == 0) decimal = Expand(magnitude, kLongestExpansion);
  const bool up = decimal.digits[kept] >= '5';
  decimal.digits.resize(kept);
  if (up) {
    while (!decimal.digits.empty() && decimal.digits.back() == '9') decimal.digits.pop_back();
    if (decimal.digits.empty()) {
      decimal.digits = "1";
      ++decimal.point;
    } else {
      ++decimal.digits.back();
    }
  }
  decimal.digits.resize(decimal.digits.find_last_not_of('0') + 1);
  return decimal;
}

std::string PlainText(const Decimal& decimal) {
  const int size = static_cast<int>(decimal.digits.size());
  if (decimal.point <= 0) {
    return "0." + std::string(static_cast<std::size_t>(-decimal.point), '0') + decimal.digits;
  }
  std::string text = decimal.digits;
  if (size > decimal.point) {
    text.insert(static_cast<std::size_t>(decimal.point), 1, '.');
  } else {
    text.append(static_cast<std::size_t>(decimal.point - size), '0');
  }
  return text;
}

std::string ExponentText(const Decimal& decimal) {
  std::string text = decimal.digits;
  if (text.size() > 1) text.insert(1, 1, '.');
  const int exponent = decimal.point - 1;
  text += exponent < 0 ? "E-" : "E+";
  if (std::abs(exponent) < 10) text += '0';
  return text + IntegerText(std::abs(exponent));
}

std::string RealText(double value, int digits, double whole_limit) {
  if (std::fabs(value) < whole_limit) {
    const auto whole = static_cast<std::int64_t>(value);
    if (static_cast<double>(whole) == value) return IntegerText(whole);
  }
  if (std::isnan(value)) return "-1.#IND";
  if (std::isinf(value)) return value < 0 ? "-1.#INF" : "1.#INF";
  const Decimal decimal = RoundToDigits(std::fabs(value), digits);
  const int places = static_cast<int>(decimal.digits.size()) - decimal.point;
  const bool plain = decimal.point <= digits && places <= digits;
  return (value < 0 ? "-" : "") + (plain ? PlainText(decimal) : ExponentText(decimal));
}

}  // namespace

std::int16_t ToInt16(double value) { return RoundInto<std::int16_t>(value); }
std::int32_t ToInt32(double value) { return RoundInto<std::int32_t>(value); }
std::uint8_t ToByte(double value) { return RoundInto<std::uint8_t>(value); }

std::int16_t ToInt16(std::string_view text) { return ToInt16(ToDouble(text)); }
std::int32_t ToInt32(std::string_view text) { return ToInt32(ToDouble(text)); }

std::uint8_t ToByte(std::string_view text) {
  const int number = ShortNumber(text);
  if (number >= 0 && number <= 255) return static_cast<std::uint8_t>(number);
  return ToByte(ToDouble(text));
}

double ToDouble(std::string_view text) {
  const int number = ShortNumber(text);
  if (number >= 0) return number;
  const std::string_view trimmed = WithoutWhiteSpaceAround(text);
  const Spelling spelling = ScanNumber(trimmed);
  if (spelling.length == 0 || spelling.length != trimmed.size()) throw Error(kTypeMismatch);
  const double value = Value(spelling);
  if (std::isinf(value)) throw Error(kOverflow);
  return value;
}

float ToSingle(std::string_view text) {
  const double value = ToDouble(text);
  if (std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
    throw Error(kOverflow);
  }
  return static_cast<float>(value);
}

bool ToBoolean(std::string_view text) {
  const std::string_view word = WithoutWhiteSpaceAround(text);
  if (EqualNoCase(word, "True")) return true;
  if (EqualNoCase(word, "False")) return false;
  return ToDouble(word) != 0;
}

std::string BooleanText(bool value) { return value ? "True" : "False"; }

std::string DoubleText(double value) { return RealText(value, kDoubleDigits, 1e15); }
std::string SingleText(float value) { return RealText(value, kSingleDigits, 1e7); }

std::string IntegerText(std::int64_t value) {
  std::array<char, 24> buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return std::string(buffer.data(), result.ptr);
}

double NumericValue(std::string_view text) {
  const int number = ShortNumber(text);
  if (number >= 0) return number;
  std::string stripped;
  stripped.reserve(text.size());
  for (const char c : text) {
    if (!IsSkippedByNumericValue(c)) stripped += c;
  }
  const Spelling spelling = ScanNumber(stripped);
  if (spelling.length == 0) return 0;
  const double value = Value(spelling);
  if (std::isinf(value)) return std::copysign(std::numeric_limits<double>::max(), value);
  return value;
}

std::int16_t AddInt16(std::int16_t a, int b) {
  const std::int64_t sum = std::int64_t{a} + b;
  if (sum < std::numeric_limits<std::int16_t>::min() ||
      sum > std::numeric_limits<std::int16_t>::max()) {
    throw Error(kOverflow);
  }
  return static_cast<std::int16_t>(sum);
}

double RoundHalfEven(double value, int decimals) {
  if (decimals < 0 || decimals > 22) throw Error(kInvalidCall);
  double scale = 1;
  for (int i = 0; i < decimals; ++i) scale *= 10;
  const double scaled = value * scale;
  constexpr double kAllWholeFrom = 4503599627370496.0;  // 2^52: no double beyond has a fraction
  if (!(std::fabs(scaled) < kAllWholeFrom)) return value;
  return std::nearbyint(scaled) / scale;
}

}  // namespace base
