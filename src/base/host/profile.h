#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "base/ports/file_system.h"

namespace base {

// A text of [sections] and key=value lines, taken apart once. Names are matched without regard to
// case, blanks round them and round "=" are dropped, and so is one pair of quotes round the value.
// A line that begins with ";" is a comment. The first of doubled sections and keys counts.
class Profile {
 public:
  Profile() = default;  // has no keys
  explicit Profile(std::string_view text);
  // The file as it stands now; a missing or unreadable file has no keys.
  Profile(FileSystem& files, const std::string& path);

  // The value of a key, cut to 254 characters; empty when there is none.
  std::string Value(std::string_view section, std::string_view key) const;

 private:
  using Values = std::unordered_map<std::string, std::string>;

  void ReadAll(std::string_view text);

  std::unordered_map<std::string, Values> sections_;  // by names in small letters
};

// One value of a text or a file, read as Profile reads them.
std::string ReadIniText(std::string_view text, std::string_view section, std::string_view key);
std::string ReadIniString(FileSystem& files, std::string_view section, std::string_view key,
                          const std::string& path);

}  // namespace base
