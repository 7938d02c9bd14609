#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace script {

// The whole of number-desk-script: reads the arguments behind the program's name, plays the script
// (from `in` when no file is named) and returns the exit status.
int RunProgram(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out,
               std::ostream& err);

}  // namespace script
