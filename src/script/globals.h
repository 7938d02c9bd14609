#pragma once

#include <optional>
#include <string_view>

#include "script/json_values.h"
#include "store/session.h"

namespace script {

// The piece of shared state of this name (any case), arrays whole from their first element; nothing
// when no piece is called so.
std::optional<Json> GlobalJson(const store::Session& session, std::string_view name);

}  // namespace script
