#pragma once

#include <string>

#include "sessions/world.h"

namespace sessions {

// Another program, which does something to a database; a comment for the script, or nothing where
// nothing was to be done.
std::string ActFromOutside(World& world, const std::string& database);
// The same, of the kind that only adds draws.
std::string AppendFromOutside(World& world, const std::string& database);

}  // namespace sessions
