#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/language/error.h"
#include "base/ports/file_system.h"

namespace sessions {

// One call that changes a file, with its bytes before and after it.
struct WriteSeen {
  std::string path{};
  std::optional<std::string> before{};
  std::optional<std::string> after{};
  bool is_append = false;
};

// The machine's disk as one desk sees it: each of its writes is told, and one operation can be made
// to fail.
class WatchedDisk : public base::FileSystem {
 public:
  class Watcher {
   public:
    virtual ~Watcher() = default;
    virtual std::optional<std::string> BytesOf(const std::string& path) = 0;
    virtual void Opened(const std::string& path, bool came_into_being) = 0;
    // Just before the desk keeps, replaces or appends to a file; another program may do something
    // now.
    virtual void BeforeWrite(const std::string& path, bool is_append) = 0;
    virtual void Wrote(const WriteSeen& write) = 0;
    virtual void Kept(const std::string& path, const std::string& second_path) = 0;
    virtual void Removed(const std::string& path, const std::string& bytes) = 0;
    virtual void Renamed(const std::string& path, const std::string& new_path) = 0;
  };

  WatchedDisk(base::FileSystem& disk, Watcher& watcher) : disk_(disk), watcher_(watcher) {}

  // The nth operation from now throws this error, once.
  void FailFromNow(int n, int error) {
    left_ = n;
    error_ = error;
  }
  // How often that came true.
  int Failures() const { return failures_; }

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

  // For the files that it opens.
  void Count();
  Watcher& Eyes() { return watcher_; }

 private:
  void Write(const std::string& path, const std::function<void()>& write);

  base::FileSystem& disk_;
  Watcher& watcher_;
  int left_ = 0;
  int error_ = 0;
  int failures_ = 0;
};

}  // namespace sessions
