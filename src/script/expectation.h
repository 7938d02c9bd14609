#pragma once

#include <optional>
#include <string>

#include "script/json_values.h"
#include "script/line_parser.h"

namespace script {

// What an expectation has against an answer, with both values; nothing when it is met. Throws
// WrongScript when its right side is no JSON, no regular expression, or one whose search goes
// beyond its bounds.
std::optional<std::string> Difference(const Expectation& expectation, const Json& answer);

}  // namespace script
