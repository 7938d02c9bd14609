#pragma once

#include <functional>
#include <string>

#include "script/arguments.h"
#include "script/stage.h"

namespace script {

// A command that does something and prints nothing.
using Act = std::function<void(Stage&, const Arguments&)>;

// The act of this name, empty when there is none. An act throws WrongScript for words that it
// cannot use, and WrongScript or base::ActRefused for what a person could not do.
const Act& FindAct(const std::string& name);

}  // namespace script
