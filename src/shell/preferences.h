#pragma once

#include <string>
#include <string_view>

#include "base/language/dates.h"
#include "base/ports/settings.h"
#include "shell/version.h"
#include "store/session.h"

namespace shell {

// The date patterns that a user can choose between.
inline constexpr std::string_view kDayFirstPattern = "DD/MM/YY";
inline constexpr std::string_view kMonthFirstPattern = "MM/DD/YY";

// A stored number or boolean; the default when the key is absent or its text is none.
double ReadNumber(base::Settings& settings, std::string_view application, std::string_view section,
                  std::string_view key, double default_value);
bool ReadBoolean(base::Settings& settings, std::string_view application, std::string_view section,
                 std::string_view key, bool default_value);

// The section of the version's own preferences, for example "390".
std::string VersionSection(const Version& version);
// "3.9.0"
std::string VersionText(const Version& version);

// Reads the stored date pattern into the session. Two comparisons with a default each: with nothing
// stored both hold, and month first, the second, wins.
void ReadRegion(base::Settings& settings, store::Session& session);
// Stores the date pattern of a machine's date order where none is stored yet. Throws where the
// store cannot be kept.
void StoreRegion(base::Settings& settings, base::DateOrder order);
// Reads what the start needs: date pattern, tips, and the question on changed draw rules.
void ReadPreferences(base::Settings& settings, store::Session& session);

}  // namespace shell
