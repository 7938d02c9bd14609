#pragma once

#include <functional>
#include <string>

#include "script/arguments.h"
#include "script/json_values.h"
#include "script/stage.h"

namespace script {

// A command that asks. Its answer is printed as one line of JSON.
using Question = std::function<Json(Stage&, const Arguments&)>;

// The question of this name, empty when there is none. A question creates no window; it throws
// WrongScript when it asks of a window, control or property that does not exist.
const Question& FindQuestion(const std::string& name);

}  // namespace script
