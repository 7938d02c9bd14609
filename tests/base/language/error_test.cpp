#include "base/language/error.h"

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(Error, HasTheStandardDescriptionOfItsNumber) {
  const struct {
    int number;
    const char* description;
  } cases[] = {
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {7, "Out of memory"},
      {9, "Subscript out of range"},
      {11, "Division by zero"},
      {13, "Type mismatch"},
      {52, "Bad file name or number"},
      {53, "File not found"},
      {61, "Disk full"},
      {62, "Input past end of file"},
      {70, "Permission denied"},
      {75, "Path/File access error"},
      {76, "Path not found"},
      {340, "Control array element doesn't exist"},
      {380, "Invalid property value"},
      {1, "Application-defined or object-defined error"},
      {-7, "Application-defined or object-defined error"},
  };
  for (const auto& c : cases) {
    const Error error(c.number);
    EXPECT_EQ(error.Number(), c.number);
    EXPECT_EQ(error.Description(), c.description);
    EXPECT_STREQ(error.what(), c.description);
  }
}

TEST(Error, KeepsTheWordsOfTheHost) {
  const Error error(kDiskFull, "No space left on device");
  EXPECT_EQ(error.Number(), 61);
  EXPECT_EQ(error.Description(), "No space left on device");
  EXPECT_STREQ(error.what(), "No space left on device");
}

}  // namespace
}  // namespace base
