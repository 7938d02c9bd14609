#pragma once

#include <string>
#include <string_view>

// Windows-1252, in which the desk holds its texts, to and from Unicode at its edges.

namespace base {

// Every byte has a character; the codes 81, 8D, 8F, 90 and 9D, which the code page leaves open,
// become the control characters of the same number.
std::string ToUtf8(std::string_view cp1252);

// A character that the code page lacks becomes "?", and so does each byte that is no valid UTF-8.
std::string FromUtf8(std::string_view utf8);

}  // namespace base
