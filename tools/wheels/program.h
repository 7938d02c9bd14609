#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace wheels::tool {

enum ExitStatus : int {
  kDone = 0,
  kFlawed = 1,     // what was looked at is no proved wheel
  kWrongCall = 2,  // wrong arguments, a file that cannot be read or written
};

// The whole of wheels: takes the arguments behind the program's name and returns the exit status.
int RunProgram(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace wheels::tool
