#include "main/headings.h"

#include <array>

#include "store/setting_names.h"

namespace main_window {
namespace {

struct Heading {
  std::string_view key;
  std::string_view default_text;
  int member;  // of the group Label7
};

constexpr std::array<Heading, 7> kHeadings{{
    {"Hd1", "B1", 12},
    {"Hd2", "B2", 11},
    {"Hd3", "B3", 10},
    {"Hd4", "B4", 9},
    {"Hd5", "B5", 8},
    {"Hd6", "B6", 7},
    {"Hd7", "BB", 5},
}};

bool HasHeadings(base::Settings& settings, std::string_view file_name) {
  return !settings.Get(store::kDeskApplication, file_name, kHeadings[0].key).empty();
}

}  // namespace

std::string DataBaseNameSetting(base::Settings& settings) {
  return settings.Get(store::kDeskApplication, store::kDataSection, store::kDataBaseNameKey);
}

void EnsureHeadings(base::Settings& settings, std::string_view file_name) {
  settings.Save(store::kDeskApplication, store::kDataSection, store::kDataBaseNameKey, file_name);
  if (HasHeadings(settings, file_name)) return;
  for (const Heading& heading : kHeadings) {
    settings.Save(store::kDeskApplication, file_name, heading.key, heading.default_text);
  }
}

void FillHeadings(base::Settings& settings, std::string_view file_name, MainWindow& window) {
  const bool stored = HasHeadings(settings, file_name);
  for (const Heading& heading : kHeadings) {
    window.Label7(heading.member)
        .SetCaption(stored ? settings.Get(store::kDeskApplication, file_name, heading.key)
                           : std::string(heading.default_text));
  }
}

}  // namespace main_window
