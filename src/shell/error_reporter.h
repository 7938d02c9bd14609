#pragma once

#include <string>
#include <string_view>

#include "base/language/error.h"
#include "base/ports/ports.h"
#include "main/workplace.h"
#include "shell/version.h"

namespace shell {

// What a trap knows of the error that it caught.
struct ErrorReport {
  std::string title;
  std::string procedure;
  int number = 0;
  std::string source;
  std::string description;
  int last_system_error = 0;
};

// The lines from the title down to the system's last error, a line break after each.
std::string ErrorDetails(const ErrorReport& report);

// The end of every trap: tells the user what failed, where, and offers to mail it. Never throws an
// Error; a mail that cannot be sent is passed over in silence.
class DeskErrorReporter : public base::ErrorReporter {
 public:
  DeskErrorReporter(base::Ports ports, Version version) : ports_(ports), version_(version) {}
  void Report(std::string_view procedure, const base::Error& error) override;

 private:
  void Mail(const ErrorReport& report);

  base::Ports ports_;
  Version version_;
};

}  // namespace shell
