#pragma once

#include <stdexcept>

namespace script {

// The script itself is wrong: it names something that does not exist or does what a person could
// not do. The text says why, in UTF-8.
class WrongScript : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace script
