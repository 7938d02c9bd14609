#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Conversions between numbers and text, and from real numbers to whole ones.

namespace base {

// To a whole number, half to even. The unrounded value is held against the range first: 32767.4999
// fits 16 bits, 32767.5 does not. Throws kOverflow outside the range and for what is no finite
// number, kTypeMismatch for a text that ToDouble refuses.
std::int16_t ToInt16(double value);
std::int16_t ToInt16(std::string_view text);
std::int32_t ToInt32(double value);
std::int32_t ToInt32(std::string_view text);
std::uint8_t ToByte(double value);
std::uint8_t ToByte(std::string_view text);

// The number that a text spells: white space around it (blank, tab, CR, LF), a sign, digits with
// one point, an exponent behind "E" or "D", in any case. Throws kTypeMismatch for any other text,
// the empty one included, and kOverflow for a number too great to hold.
double ToDouble(std::string_view text);
float ToSingle(std::string_view text);

// "True" and "False" in any case, otherwise whether the number that the text spells is not zero.
// Throws as ToDouble does.
bool ToBoolean(std::string_view text);
std::string BooleanText(bool value);  // "True", "False"

// Shortest decimal text of a number rounded to 15 significant digits (a float to 7), ties away from
// zero: "0.5", "-12", "1E+15", "3.33333333333333E-02". It is a plain decimal while 15 (7) places
// hold it on either side of the point, otherwise it has an exponent of two digits or more.
std::string DoubleText(double value);
std::string SingleText(float value);
std::string IntegerText(std::int64_t value);

// The number that a text begins with, 0 if it begins with none: a sign, digits with one point, an
// exponent. Blanks, tabs and line feeds are passed over wherever they stand, between digits too
// ("1 2" is 12); any other character ends the number. Never an error; a number too great to hold
// is the greatest double.
double NumericValue(std::string_view text);

// a + b. Throws kOverflow when 16 bits do not hold the sum.
std::int16_t AddInt16(std::int16_t a, int b);

// Value rounded half to even at the given number of decimals, 0 to 22. Throws kInvalidCall for
// other numbers of decimals.
double RoundHalfEven(double value, int decimals);

}  // namespace base
