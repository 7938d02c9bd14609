#pragma once

#include <cstdint>
#include <filesystem>

#include "sessions/report.h"

namespace sessions {

// One session of random acts on a fresh program folder, the same for the same seed.
Report PlaySession(const std::filesystem::path& folder, std::uint64_t seed, bool is_talking);

}  // namespace sessions
