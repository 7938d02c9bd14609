#pragma once

#include <iosfwd>
#include <string>
#include <vector>

// One function for each command. Each takes the arguments behind the command's name, returns the
// exit status, and throws WrongInput for arguments and base::Error for files that it cannot use.

namespace wheels::tool {

using Arguments = std::vector<std::string>;

// DESIGNS-FOLDER OUT-FILE: makes the library, unless a design has flaws.
int Build(const Arguments& arguments, std::ostream& out, std::ostream& err);

// FILE: proves a library.
int Check(const Arguments& arguments, std::ostream& out, std::ostream& err);

// V K T [--seconds S] [--steps N] [--seed N] [--from FILE]: looks for a wheel of fewer lines.
int Search(const Arguments& arguments, std::ostream& out, std::ostream& err);

}  // namespace wheels::tool
