#pragma once

#include <string_view>

#include "base/language/error.h"

namespace base {

// The end of every trap: tells the user what failed and where.
class ErrorReporter {
 public:
  virtual ~ErrorReporter() = default;
  virtual void Report(std::string_view procedure, const Error& error) = 0;
};

// Runs a procedure that has a trap: an Error ends it in the reporter under its name.
template <typename Body>
void Trapped(ErrorReporter& reporter, std::string_view procedure, Body body) {
  try {
    body();
  } catch (const Error& error) {
    reporter.Report(procedure, error);
  }
}

// An event procedure that has a trap, to be wired to an event of any kind; what the event brings is
// not for it. The reporter and the subject have to outlive the window; the name is a literal.
template <typename Body>
auto Trap(ErrorReporter& reporter, const char* procedure, Body body) {
  return [&reporter, procedure, body](auto&&...) { Trapped(reporter, procedure, body); };
}
template <typename Subject>
auto Trap(ErrorReporter& reporter, const char* procedure, Subject& subject,
          void (Subject::*body)()) {
  return Trap(reporter, procedure, [&subject, body] { (subject.*body)(); });
}

}  // namespace base
