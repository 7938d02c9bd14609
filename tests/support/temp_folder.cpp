#include "support/temp_folder.h"

#include <stdlib.h>

#include <filesystem>

namespace test {

TempFolder::TempFolder()
    : path_((std::filesystem::temp_directory_path() / "desk-XXXXXX").string()) {
  mkdtemp(path_.data());
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace test
