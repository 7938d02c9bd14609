#include "base/language/error.h"

#include <utility>

namespace base {

namespace {

const char* StandardDescription(int number) {
  switch (number) {
    case kInvalidCall:
      return "Invalid procedure call or argument";
    case kOverflow:
      return "Overflow";
    case kOutOfMemory:
      return "Out of memory";
    case kSubscript:
      return "Subscript out of range";
    case kDivisionByZero:
      return "Division by zero";
    case kTypeMismatch:
      return "Type mismatch";
    case kBadFileName:
      return "Bad file name or number";
    case kFileNotFound:
      return "File not found";
    case kDiskFull:
      return "Disk full";
    case kPastEnd:
      return "Input past end of file";
    case kPermission:
      return "Permission denied";
    case kPathAccess:
      return "Path/File access error";
    case kPathNotFound:
      return "Path not found";
    case kNoSuchMember:
      return "Control array element doesn't exist";
    case kInvalidProperty:
      return "Invalid property value";
    default:
      return "Application-defined or object-defined error";
  }
}

}  // namespace

Error::Error(int number) : Error(number, StandardDescription(number)) {}

Error::Error(int number, std::string description)
    : std::runtime_error(description), number_(number), description_(std::move(description)) {}

}  // namespace base
