#pragma once

#include <string>

namespace test {

// An empty folder that is removed with everything in it at the end.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace test
