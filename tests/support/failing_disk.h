#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/language/error.h"
#include "base/ports/file_system.h"

namespace test {

// A disk whose nth operation fails, once. Every opening, reading, writing and removing is one.
class FailingDisk : public base::FileSystem {
 public:
  explicit FailingDisk(base::FileSystem& disk) : disk_(disk) {}

  // The nth operation from now (1 is the next one) throws this error.
  void FailFromNow(int n, base::Error error);
  // The same; if that operation is an Append, half of its bytes reach the disk all the same, as
  // when the power goes.
  void TearFromNow(int n, base::Error error);
  bool HasFailed() const { return has_failed_; }

  bool FileExists(const std::string& path) override { return disk_.FileExists(path); }
  bool FolderExists(const std::string& path) override { return disk_.FolderExists(path); }
  bool IsTaken(const std::string& path) override { return disk_.IsTaken(path); }
  std::optional<base::FileIdentity> Identify(const std::string& path) override;
  std::unique_ptr<base::File> Open(const std::string& path) override;
  std::string ReadAll(const std::string& path) override;
  void Replace(const std::string& path, std::string_view bytes) override;
  void ReplaceKept(const std::string& path, std::string_view bytes,
                   const std::string& kept) override;
  bool Create(const std::string& path, std::string_view bytes) override;
  void Remove(const std::string& path) override;
  void Rename(const std::string& path, const std::string& new_path) override;
  void MakeFolder(const std::string& path) override;
  void Keep(const std::string& path, const std::string& second_path) override;
  base::LockAttempt TryLock(const std::string& path) override { return disk_.TryLock(path); }
  std::vector<std::string> List(const std::string& folder, const std::string& ending) override {
    return disk_.List(folder, ending);
  }

  // Counts one operation; throws if it is the one that fails.
  void Count();
  bool Tears() const { return tears_; }

 private:
  base::FileSystem& disk_;
  std::optional<base::Error> error_;
  int left_ = 0;
  bool has_failed_ = false;
  bool tears_ = false;
};

}  // namespace test
