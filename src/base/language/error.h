#pragma once

#include <stdexcept>
#include <string>

namespace base {

enum ErrorNumber : int {
  kInvalidCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscript = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kBadFileName = 52,
  kFileNotFound = 53,
  kDiskFull = 61,
  kPastEnd = 62,
  kPermission = 70,
  kPathAccess = 75,
  kPathNotFound = 76,
  kNoSuchMember = 340,
  kInvalidProperty = 380,
};

// A run-time error: what a procedure with a trap hands to the error reporter, and what is told in
// a box where no trap takes it.
class Error : public std::runtime_error {
 public:
  // With the standard description of that number.
  explicit Error(int number);
  // With words of its own, for example those of the host.
  Error(int number, std::string description);

  int Number() const { return number_; }
  const std::string& Description() const { return description_; }

 private:
  int number_;
  std::string description_;
};

}  // namespace base
