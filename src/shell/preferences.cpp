#include "shell/preferences.h"

#include <algorithm>

#include "base/language/error.h"
#include "base/language/numbers.h"
#include "store/setting_names.h"

namespace shell {

using store::kDeskApplication;

namespace {

constexpr std::string_view kRegionKey = "Region";

}  // namespace

double ReadNumber(base::Settings& settings, std::string_view application, std::string_view section,
                  std::string_view key, double default_value) {
  const auto text = settings.Find(application, section, key);
  if (!text) return default_value;
  try {
    return base::ToDouble(*text);
  } catch (const base::Error&) {
    return default_value;  // a broken text counts as none
  }
}

bool ReadBoolean(base::Settings& settings, std::string_view application, std::string_view section,
                 std::string_view key, bool default_value) {
  const auto text = settings.Find(application, section, key);
  if (!text) return default_value;
  try {
    return base::ToBoolean(*text);
  } catch (const base::Error&) {
    return default_value;
  }
}

std::string VersionSection(const Version& version) {
  return base::IntegerText(version.major) + base::IntegerText(version.minor) +
         base::IntegerText(version.revision);
}

std::string VersionText(const Version& version) {
  return base::IntegerText(version.major) + "." + base::IntegerText(version.minor) + "." +
         base::IntegerText(version.revision);
}

void ReadRegion(base::Settings& settings, store::Session& session) {
  session.date_format_text = kMonthFirstPattern;  // what a broken setting falls back to
  for (const std::string_view pattern : {kDayFirstPattern, kMonthFirstPattern}) {
    if (settings.Get(kDeskApplication, session.version_section, kRegionKey, pattern) == pattern) {
      session.date_format_text = pattern;
    }
  }
}

void StoreRegion(base::Settings& settings, base::DateOrder order) {
  const std::string section = VersionSection(Version{});
  if (settings.Find(kDeskApplication, section, kRegionKey)) return;
  settings.Save(kDeskApplication, section, kRegionKey,
                order == base::DateOrder::kDayFirst ? kDayFirstPattern : kMonthFirstPattern);
}

void ReadPreferences(base::Settings& settings, store::Session& session) {
  ReadRegion(settings, session);
  session.tips_on = ReadBoolean(settings, kDeskApplication, session.version_section, "Tips", true);
  session.prompt_on_range_change = ReadBoolean(settings, kDeskApplication, session.version_section,
                                               "QND.PromptOnRangeChange", true);
}

}  // namespace shell
