#include "tools/wheels/program.h"

#include <exception>
#include <ostream>

#include "tools/wheels/commands.h"

namespace wheels::tool {
namespace {

struct Command {
  const char* name;
  int (*run)(const Arguments&, std::ostream&, std::ostream&);
};

constexpr Command kCommands[] = {
    {"build", Build},
    {"check", Check},
    {"search", Search},
};

constexpr const char* kUsage =
    "Usage: wheels build DESIGNS-FOLDER OUT-FILE\n"
    "       wheels check FILE\n"
    "       wheels search POOL PICK MATCH [--seconds S] [--steps N] [--seed N] [--from FILE]\n"
    "\n"
    "build   makes the wheel library from design files\n"
    "check   proves a library: each subset is covered, each count and name is true\n"
    "search  looks for a wheel of fewer lines and prints it as a design file\n"
    "\n"
    "Exit status: 0 done, 1 something is no proved wheel, 2 wrong arguments or files.\n";

}  // namespace

int RunProgram(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
  if (arguments == Arguments{"--help"}) {
    out << kUsage;
    return kDone;
  }
  try {
    for (const Command& command : kCommands) {
      if (arguments.empty() || arguments.front() != command.name) continue;
      return command.run({arguments.begin() + 1, arguments.end()}, out, err);
    }
  } catch (const std::exception& error) {
    err << "wheels: " << error.what() << '\n';
    return kWrongCall;
  }
  err << kUsage;
  return kWrongCall;
}

}  // namespace wheels::tool
