#pragma once

#include <string>
#include <string_view>

#include "base/ports/file_system.h"

namespace base {

// The value of a key in a text of [sections] and key=value lines; empty when there is none. Names
// are matched without regard to case, blanks round them and round "=" are dropped, and so is one
// pair of quotes round the value. A line that begins with ";" is a comment. The first of doubled
// sections and keys counts. A value is cut to 254 characters.
std::string ReadIniText(std::string_view text, std::string_view section, std::string_view key);

// The same from a file; a missing or unreadable file has no keys.
std::string ReadIniString(FileSystem& files, std::string_view section, std::string_view key,
                          const std::string& path);

}  // namespace base
