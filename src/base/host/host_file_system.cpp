#include "base/host/host_file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>

#include <algorithm>
#include <optional>

#include "base/host/host_calls.h"
#include "base/host/host_paths.h"
#include "base/host/host_replacement.h"
#include "base/language/code_page.h"
#include "base/language/error.h"
#include "base/language/text.h"

namespace base {

using namespace host;

namespace {

constexpr mode_t kNewFileMode = 0644;
constexpr mode_t kNewFolderMode = 0755;

class HostFile : public File {
 public:
  HostFile(int descriptor, std::string path) : file_(descriptor), path_(std::move(path)) {}

  std::int64_t Length() override { return StatusOf(file_.Number(), path_).st_size; }

  FileIdentity Identity() override { return IdentityOf(StatusOf(file_.Number(), path_)); }

  std::string ReadAt(std::int64_t offset, std::size_t count) override {
    return ReadFrom(file_.Number(), offset, count, path_);
  }

  void Append(std::string_view bytes) override {
    const off_t old_length = StatusOf(file_.Number(), path_).st_size;
    const std::size_t written = Write(file_.Number(), bytes);
    if (written == bytes.size() && Flush(file_.Number())) return;
    const int host_error = errno == EBADF ? EACCES : errno;  // opened for reading only
    CutBack(old_length, static_cast<off_t>(written));
    Fail(host_error, path_);
  }

 private:
  // Nothing half written may stay behind the last draw; what somebody else has written there does.
  void CutBack(off_t old_length, off_t written) {
    struct stat status {};
    if (Retried([&] { return fstat(file_.Number(), &status); }) != 0) return;
    if (status.st_size != old_length + written) return;
    if (Retried([&] { return ftruncate(file_.Number(), old_length); }) == 0) Flush(file_.Number());
  }

  Descriptor file_;
  std::string path_;
};

// The host would take such a path as one that ends there.
bool HasZero(const std::string& path) { return path.find('\0') != std::string::npos; }

class HostLock : public FileLock {
 public:
  explicit HostLock(int descriptor) : file_(descriptor) {}

 private:
  Descriptor file_;  // closing it unlocks
};

}  // namespace

bool HostFileSystem::FileExists(const std::string& path) {
  return !HasZero(path) && HasMode(ResolveHostPath(path), S_IFREG);
}

bool HostFileSystem::FolderExists(const std::string& path) {
  return !HasZero(path) && HasMode(ResolveHostPath(path), S_IFDIR);
}

bool HostFileSystem::IsTaken(const std::string& path) {
  struct stat status {};
  return !HasZero(path) && lstat(ResolveHostPath(path).c_str(), &status) == 0;
}

std::optional<FileIdentity> HostFileSystem::Identify(const std::string& path) {
  const std::string host_path = ResolveHostPath(path);
  struct stat status {};
  if (Retried([&] { return stat(host_path.c_str(), &status); }) == 0) {
    if (!S_ISREG(status.st_mode)) return std::nullopt;
    return IdentityOf(status);
  }
  if (errno == ENOENT || errno == ENOTDIR) return std::nullopt;
  Fail(errno, host_path);
}

std::unique_ptr<File> HostFileSystem::Open(const std::string& path) {
  const std::string host_path = ResolveHostPath(path);
  DemandRegularIfThere(host_path);
  int descriptor = OpenFile(host_path, O_RDWR | O_CREAT | O_APPEND, kNewFileMode);
  if (descriptor < 0) {
    const int host_error = errno;
    if (IsPermission(host_error)) descriptor = OpenFile(host_path, O_RDONLY);
    if (descriptor < 0) FailToCreate(host_error, host_path);
  }
  auto file = std::make_unique<HostFile>(descriptor, host_path);
  file->Length();  // refuses what has come there meanwhile
  return file;
}

std::string HostFileSystem::ReadAll(const std::string& path) {
  return ReadWhole(ResolveHostPath(path));
}

void HostFileSystem::Replace(const std::string& path, std::string_view bytes) {
  ReplaceFile(ResolveHostPath(path), bytes);
}

void HostFileSystem::ReplaceKept(const std::string& path, std::string_view bytes,
                                 const std::string& kept) {
  ReplaceKeptFile(ResolveHostPath(path), bytes, ResolveHostPath(kept));
}

bool HostFileSystem::Create(const std::string& path, std::string_view bytes) {
  return CreateFile(ResolveHostPath(path), bytes);
}

void HostFileSystem::Remove(const std::string& path) {
  const std::string host_path = ResolveHostPath(path);
  if (!Unlink(host_path)) Fail(errno, host_path);
}

void HostFileSystem::Rename(const std::string& path, const std::string& new_path) {
  const std::string host_path = ResolveHostPath(path);
  const std::string new_host_path = ResolveHostPath(new_path);
  if (IsTaken(new_path)) Fail(EEXIST, new_host_path);
  if (Retried([&] { return rename(host_path.c_str(), new_host_path.c_str()); }) != 0) {
    Fail(errno, host_path);
  }
}

void HostFileSystem::MakeFolder(const std::string& path) {
  const std::string folder = ResolveHostPath(path);
  if (Retried([&] { return mkdir(folder.c_str(), kNewFolderMode); }) == 0) {
    FlushFolderOf(folder);
  } else if (errno != EEXIST) {
    Fail(errno, folder);
  }
}

void HostFileSystem::Keep(const std::string& path, const std::string& second_path) {
  KeepFile(ResolveHostPath(path), ResolveHostPath(second_path));
}

LockAttempt HostFileSystem::TryLock(const std::string& path) {
  const std::string host_path = ResolveHostPath(path);
  int descriptor = OpenFile(host_path, O_RDWR | O_CREAT | O_NOFOLLOW, kNewFileMode);
  if (descriptor < 0) descriptor = OpenFile(host_path, O_RDONLY | O_NOFOLLOW);
  if (descriptor < 0) return {};
  auto lock = std::make_unique<HostLock>(descriptor);
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return {};
  // A lock of the open file, not of the process: two desks of one process keep each other out too.
  if (Retried([&] { return flock(descriptor, LOCK_EX | LOCK_NB); }) == 0) return {std::move(lock)};
  return {nullptr, errno == EWOULDBLOCK};
}

std::vector<std::string> HostFileSystem::List(const std::string& folder,
                                              const std::string& ending) {
  const std::string host_folder = ResolveHostPath(folder);
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(host_folder.c_str()), closedir);
  if (!listing) return names;
  while (const dirent* entry = readdir(listing.get())) {
    const std::string name = FromUtf8(entry->d_name);
    if (EqualNoCase(Right(name, ending.size()), ending) &&
        HasMode(host_folder + "/" + entry->d_name, S_IFREG)) {
      names.push_back(name);
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace base
