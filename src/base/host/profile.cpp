#include "base/host/profile.h"

#include "base/language/error.h"
#include "base/language/text.h"

namespace base {
namespace {

constexpr std::size_t kLongestValue = 254;
constexpr std::string_view kBlanks = " \t\r\v\f";

std::string_view TrimBlanks(std::string_view text) { return Trim(text, kBlanks); }

std::string_view WithoutQuotes(std::string_view value) {
  const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                      value.back() == value.front();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

// The name between the brackets of a heading line; false for any other line.
bool ReadHeading(std::string_view line, std::string_view& name) {
  if (line.empty() || line.front() != '[') return false;
  const std::size_t end = line.find(']');
  name = TrimBlanks(line.substr(1, end == std::string_view::npos ? end : end - 1));
  return true;
}

}  // namespace

Profile::Profile(std::string_view text) { ReadAll(text); }

Profile::Profile(FileSystem& files, const std::string& path) {
  try {
    ReadAll(files.ReadAll(path));
  } catch (const Error&) {
    sections_.clear();
  }
}

void Profile::ReadAll(std::string_view text) {
  Values* section = nullptr;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = TrimBlanks(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    std::string_view heading;
    if (ReadHeading(line, heading)) {
      const auto [place, is_first] = sections_.try_emplace(Lower(heading));
      section = is_first ? &place->second : nullptr;
      continue;
    }
    if (section == nullptr || line.empty() || line.front() == ';') continue;
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view value = WithoutQuotes(TrimBlanks(line.substr(equals + 1)));
    section->try_emplace(Lower(TrimBlanks(line.substr(0, equals))), value.substr(0, kLongestValue));
  }
}

std::string Profile::Value(std::string_view section, std::string_view key) const {
  const auto values = sections_.find(Lower(section));
  if (values == sections_.end()) return {};
  const auto value = values->second.find(Lower(key));
  return value == values->second.end() ? std::string() : value->second;
}

std::string ReadIniText(std::string_view text, std::string_view section, std::string_view key) {
  return Profile(text).Value(section, key);
}

std::string ReadIniString(FileSystem& files, std::string_view section, std::string_view key,
                          const std::string& path) {
  return Profile(files, path).Value(section, key);
}

}  // namespace base
