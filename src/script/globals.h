#pragma once

#include <optional>
#include <string_view>

#include "script/json_values.h"
#include "shell/desk.h"

namespace script {

// The piece of shared state of this name (any case), arrays whole from their first element; nothing
// when no piece is called so.
std::optional<Json> GlobalJson(shell::Desk& desk, std::string_view name);

}  // namespace script
