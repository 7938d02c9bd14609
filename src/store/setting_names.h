#pragma once

#include <string_view>

// Names under which the desk keeps its preferences.

namespace store {

inline constexpr std::string_view kDeskApplication = "Velmonte";
inline constexpr std::string_view kTitleApplication = "Quorbit Number Desk";

inline constexpr std::string_view kDataSection = "Data";
inline constexpr std::string_view kDataBaseNameKey = "DataBaseName";

inline constexpr std::string_view kDefaultDataBase = "UK-National-Lottery.dat";
inline constexpr std::string_view kDefaultUsDataBase = "US-MultiState-Powerball.dat";
inline constexpr std::string_view kWindowTitle = "Quorbit Number Desk ";

}  // namespace store
