#pragma once

namespace shell {

// The version of the program; its three numbers without separators name a section of the settings.
struct Version {
  int major = 3;
  int minor = 9;
  int revision = 0;
};

}  // namespace shell
