#include "support/temp_folder.h"

#include <stdlib.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace test {

TempFolder::TempFolder()
    : path_((std::filesystem::temp_directory_path() / "desk-XXXXXX").string()) {
  if (!mkdtemp(path_.data())) throw std::system_error(errno, std::generic_category(), path_);
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace test
