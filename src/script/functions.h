#pragma once

#include "script/arguments.h"
#include "script/json_values.h"
#include "script/stage.h"

namespace script {

// `call NAME ARG...`: the result of a plain function of the desk (any case). A run-time error is a
// result too: {"error":6,"description":"Overflow"}. Throws WrongScript for an unknown function and
// for a wrong number of arguments.
Json CallFunction(Stage& stage, const Arguments& words);

}  // namespace script
