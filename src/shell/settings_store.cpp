#include "shell/settings_store.h"

#include <array>

#include "base/language/code_page.h"
#include "base/language/text.h"

namespace shell {
namespace {

constexpr std::size_t kParts = 4;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";  // some text editors put it in front

std::string Escaped(std::string_view text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
      case '\\':
      case '|':
      case '=':
        result += '\\';
        result += c;
        break;
      case '\r':
        result += "\\r";
        break;
      case '\n':
        result += "\\n";
        break;
      default:
        result += c;
    }
  }
  return result;
}

char Unescaped(char c) {
  switch (c) {
    case 'r':
      return '\r';
    case 'n':
      return '\n';
    default:
      return c;
  }
}

}  // namespace

std::string EncodeSettingsLine(const SettingsEntry& entry) {
  return base::ToUtf8(Escaped(entry.application) + "|" + Escaped(entry.section) + "|" +
                      Escaped(entry.key) + "=" + Escaped(entry.text));
}

std::optional<SettingsEntry> DecodeSettingsLine(std::string_view line) {
  const std::string text = base::FromUtf8(line);
  std::array<std::string, kParts> parts;
  std::size_t part = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char separator = part < 2 ? '|' : '=';
    if (text[i] == '\\') {
      if (++i == text.size()) return std::nullopt;
      parts[part] += Unescaped(text[i]);
    } else if (part + 1 < kParts && text[i] == separator) {
      ++part;
    } else {
      parts[part] += text[i];
    }
  }
  if (part + 1 != kParts || parts[2].empty()) return std::nullopt;
  return SettingsEntry{parts[0], parts[1], parts[2], parts[3]};
}

SettingsStore::SettingsStore(base::FileSystem& files, std::string path)
    : files_(files), path_(std::move(path)) {
  Read();
}

void SettingsStore::Read() {
  std::string text;
  try {
    text = files_.ReadAll(path_);
  } catch (const base::Error& error) {
    const bool missing =
        error.Number() == base::kFileNotFound || error.Number() == base::kPathNotFound;
    if (!missing) failure_ = error;
  }
  if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  if (text.ends_with('\n')) text.pop_back();
  for (const std::string& raw : base::Split(text, "\n")) {
    std::string_view line = raw;
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines_.push_back({raw, DecodeSettingsLine(line)});
  }
}

SettingsStore::Line* SettingsStore::FindLine(std::string_view application, std::string_view section,
                                             std::string_view key) {
  for (auto line = lines_.rbegin(); line != lines_.rend(); ++line) {
    if (line->entry && base::EqualNoCase(line->entry->key, key) &&
        base::EqualNoCase(line->entry->section, section) &&
        base::EqualNoCase(line->entry->application, application)) {
      return &*line;
    }
  }
  return nullptr;
}

std::optional<std::string> SettingsStore::Find(std::string_view application,
                                               std::string_view section, std::string_view key) {
  const Line* line = FindLine(application, section, key);
  if (!line) return std::nullopt;
  return line->entry->text;
}

void SettingsStore::Save(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view text) {
  if (failure_) throw base::Error(*failure_);
  Line* line = FindLine(application, section, key);
  if (line && line->entry->text == text) return;

  std::vector<Line> lines = lines_;
  if (line) {
    Line& changed = lines[static_cast<std::size_t>(line - lines_.data())];
    changed.entry->text = text;
    changed.raw = EncodeSettingsLine(*changed.entry);
  } else {
    const SettingsEntry entry{std::string(application), std::string(section), std::string(key),
                              std::string(text)};
    lines.push_back({EncodeSettingsLine(entry), entry});
  }
  std::string bytes;
  for (const Line& kept : lines) bytes += kept.raw + "\n";
  files_.Replace(path_, bytes);
  lines_ = std::move(lines);
}

}  // namespace shell
