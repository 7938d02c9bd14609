#pragma once

#include <string>
#include <vector>

#include "base/host/profile.h"

// The proof of a whole library, of whatever origin.

namespace wheels::tool {

struct LibraryCheck {
  int wheels = 0;  // that were found
  long lines = 0;
  std::vector<std::string> problems;  // in order of the file; empty when the library is proved
};

// Holds each wheel against its own counts and name and proves that it covers what it promises. Any
// text ends in a result.
LibraryCheck CheckLibrary(const base::Profile& library);

}  // namespace wheels::tool
