#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/host/profile.h"
#include "base/ports/settings.h"

// The library of ready-made wheels, wheels.ini: a section "Wheels" with their count, and a section
// of its ordinal for each wheel. It is read anew for each operation, so that a new library counts
// at once.

namespace wheels {

// Where the library lies: the stored preference, or the place beside the program, which is stored
// then. Empty when the store keeps nothing.
std::string LibraryPath(base::Settings& settings, const std::string& program_folder);

// How many wheels the library says that it has. Error 6 above 32,767.
std::int16_t WheelCount(const base::Profile& library);

// Tells the names of all wheels of this pick and match in the order of the file, pick compared as a
// number and match as text. Error 13 at a section whose pick is no number, with the names before it
// told.
void WheelNames(const base::Profile& library, std::int16_t pick, std::string_view match,
                const std::function<void(std::string name)>& tell);

// The pool that a wheel's name tells: the two characters behind the one that follows its first
// "]". Error 13 when they are no number.
std::uint8_t PoolOfName(const std::string& name);

// The section of the first wheel of this pool (compared as a number), pick and match (compared as
// texts); nothing when there is none. Error 13 at a section whose pool is no number.
std::optional<std::string> FindWheel(const base::Profile& library, int pool, std::string_view pick,
                                     std::string_view match);

}  // namespace wheels
