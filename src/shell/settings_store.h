#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/language/error.h"
#include "base/ports/file_system.h"
#include "base/ports/settings.h"

namespace shell {

// One stored text with its address.
struct SettingsEntry {
  std::string application;
  std::string section;
  std::string key;
  std::string text;
};

// A line `application|section|key=text` of the settings file, UTF-8, with the escapes
// \\ \| \= \r \n in all four parts.
std::string EncodeSettingsLine(const SettingsEntry& entry);
// Nothing for a line that is damaged.
std::optional<SettingsEntry> DecodeSettingsLine(std::string_view line);

// The user's preferences in one text file, which is read once, at the start. Damaged lines are
// ignored and kept; of doubled keys the last counts. A missing file is an empty store. One that is
// there but cannot be read is never overwritten: the store is empty, and Save throws what reading
// threw.
class SettingsStore : public base::Settings {
 public:
  SettingsStore(base::FileSystem& files, std::string path);

  std::optional<std::string> Find(std::string_view application, std::string_view section,
                                  std::string_view key) override;
  void Save(std::string_view application, std::string_view section, std::string_view key,
            std::string_view text) override;
  std::optional<base::Error> Failure() const override { return failure_; }

 private:
  // A line as it stands in the file, and what it says if it says something.
  struct Line {
    std::string raw;
    std::optional<SettingsEntry> entry;
  };

  void Read();
  Line* FindLine(std::string_view application, std::string_view section, std::string_view key);

  base::FileSystem& files_;
  std::string path_;
  std::optional<base::Error> failure_;  // why the file could not be read
  std::vector<Line> lines_;
};

}  // namespace shell
