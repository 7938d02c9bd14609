#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/ports/file_system.h"

namespace base {

// The files of this machine. Errors carry the classic number; where the host has words of its own
// (permission, full disk, path), they stand behind the classic ones, with the path. A file in a
// folder that does not exist is error 76, a folder in place of a file 75, a file of 2 GiB or more
// read as one text 7. A write-protected file is not replaced (70). What is no regular file (a pipe,
// a device) is never opened or waited for (75). Whatever is opened closes with the process, also
// where that starts another.
class HostFileSystem : public FileSystem {
 public:
  bool FileExists(const std::string& path) override;
  bool FolderExists(const std::string& path) override;
  bool IsTaken(const std::string& path) override;
  std::optional<FileIdentity> Identify(const std::string& path) override;
  std::unique_ptr<File> Open(const std::string& path) override;
  std::string ReadAll(const std::string& path) override;
  void Replace(const std::string& path, std::string_view bytes) override;
  void ReplaceKept(const std::string& path, std::string_view bytes,
                   const std::string& kept) override;
  bool Create(const std::string& path, std::string_view bytes) override;
  void Remove(const std::string& path) override;
  void Rename(const std::string& path, const std::string& new_path) override;
  void MakeFolder(const std::string& path) override;
  void Keep(const std::string& path, const std::string& second_path) override;
  LockAttempt TryLock(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder, const std::string& ending) override;
};

}  // namespace base
