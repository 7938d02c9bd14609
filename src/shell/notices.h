#pragma once

#include <string>
#include <vector>

#include "store/open_database.h"

namespace shell {

// What is true of the open database beside its figures, with what a person can do about it.
struct Notice {
  enum class Act { kNone, kStorePending, kUndo };
  std::string text;
  std::string link{};  // empty where there is nothing to do
  Act act = Act::kNone;
};

std::vector<Notice> NoticesOf(const store::OpenDatabase& database);

}  // namespace shell
