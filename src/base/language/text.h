#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Cutting, comparing and replacing in texts. A text is bytes of Windows-1252.

namespace base {

// Line break in everything that the desk writes.
constexpr std::string_view kLineBreak = "\r\n";

// The first or last n characters, or the whole text if it has fewer.
std::string Left(std::string_view text, std::size_t n);
std::string Right(std::string_view text, std::size_t n);

// n characters from the given place, which counts from 1, or what there is of them. Throws
// kInvalidCall for place 0.
std::string Mid(std::string_view text, std::size_t start, std::size_t n);

// Without the blanks at both ends; `blanks` are the characters that count as such.
std::string_view Trim(std::string_view text, std::string_view blanks = " ");

// Accented letters change too; letters without a partner in Windows-1252 stay.
std::string Lower(std::string_view text);
std::string Upper(std::string_view text);
bool EqualNoCase(std::string_view a, std::string_view b);

// Replaces every occurrence, left to right; what was put in is not searched again. An empty `from`
// replaces nothing.
std::string ReplaceAll(std::string text, std::string_view from, std::string_view to);
std::string ReplaceAllNoCase(std::string text, std::string_view from, std::string_view to);

// The text before the first or last occurrence of the character, the whole text if it has none.
std::string UpToFirst(std::string_view text, char end);
std::string UpToLast(std::string_view text, char end);

// The pieces between the separators, empty ones included: one more than there are separators. An
// empty text has no piece at all; an empty separator leaves the text in one piece.
std::vector<std::string> Split(std::string_view text, std::string_view separator);

}  // namespace base
