#pragma once

#include <string>
#include <vector>

#include "base/language/dates.h"

namespace script {

// What the command line says. Empty texts stand for the defaults.
struct Options {
  std::string script;    // a file, or empty for standard input
  std::string folder;    // the program folder
  std::string settings;  // the folder of the settings
  std::string primary;   // the file servers
  std::string alternative;
  base::DateOrder date_order = base::DateOrder::kMonthFirst;
  bool keep_going = false;
  bool strict = false;
  bool help = false;
  bool version = false;
};

// How the program is called.
extern const char* const kUsage;

// Reads the arguments behind the program's name; "--name VALUE" and "--name=VALUE" are the same.
// Throws WrongScript for an unknown option, a missing or wrong value, and a second script.
Options ReadOptions(const std::vector<std::string>& arguments);

}  // namespace script
