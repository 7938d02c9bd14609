#include "base/host/host_replacement.h"

#include <fcntl.h>
#include <stdio.h>

#include <filesystem>
#include <optional>

#include "base/host/host_calls.h"
#include "base/language/error.h"

namespace base::host {
namespace {

constexpr mode_t kNewFileMode = 0644;
constexpr int kMostLinks = 40;

// The file that a chain of links ends in, so that replacing it leaves the links alone.
std::string LinkTarget(const std::string& path) {
  std::filesystem::path target(path);
  for (int links = 0; links < kMostLinks; ++links) {
    std::error_code error;
    const std::filesystem::path next = std::filesystem::read_symlink(target, error);
    if (error == std::errc::interrupted) continue;
    if (error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory) {
      break;  // no link, or nothing at all
    }
    // It may be a link, and a file that was renamed over it would hide the one behind it.
    if (error) Fail(error.value(), target.string());
    target = target.parent_path() / next;
  }
  return target.string();
}

// The mode of a file that is to be replaced, if there is one. Throws where the file may not be
// replaced: a new one beside it could be renamed over a file that its owner has write-protected.
std::optional<mode_t> ModeToReplace(const std::string& path) {
  struct stat status {};
  if (Retried([&] { return stat(path.c_str(), &status); }) != 0) {
    if (errno == ENOENT) return std::nullopt;
    Fail(errno, path);
  }
  DemandRegular(status.st_mode, path);
  if (Retried([&] { return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS); }) != 0) {
    Fail(errno, path);
  }
  return status.st_mode & 07777;
}

// A new file. One of the same name was left by a process that was killed while it wrote.
int OpenAnew(const std::string& path, mode_t mode) {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL;
  const int descriptor = OpenFile(path, kFlags, mode);
  if (descriptor >= 0 || errno != EEXIST || !Unlink(path)) return descriptor;
  return OpenFile(path, kFlags, mode);
}

// Writes the new file beside the target; its path.
std::string WriteBeside(const std::string& target, std::string_view bytes) {
  const std::optional<mode_t> mode = ModeToReplace(target);
  std::string beside = target + ".new~" + std::to_string(getpid());
  const Descriptor file(OpenAnew(beside, mode.value_or(kNewFileMode)));
  if (!file.IsOpen()) FailToCreate(errno, target);
  // What the process withholds from new files, an old one keeps. Not every disk knows modes.
  if (mode) (void)Retried([&] { return fchmod(file.Number(), *mode); });
  if (Write(file.Number(), bytes) == bytes.size() && Flush(file.Number())) return beside;
  const int host_error = errno;
  Unlink(beside);
  Fail(host_error, target);
}

// What no disk is asked for twice: none of these calls, not for this file, or no more of them.
bool IsUnknownToTheDisk(int host_error) {
  return host_error == EXDEV || host_error == EPERM || host_error == EOPNOTSUPP ||
         host_error == ENOSYS || host_error == EMLINK || host_error == EINVAL;
}

#ifdef RENAME_EXCHANGE
constexpr unsigned int kExchange = RENAME_EXCHANGE;
constexpr unsigned int kNoReplace = RENAME_NOREPLACE;

bool RenameWith(unsigned int how, const std::string& path, const std::string& new_path) {
  const auto call = [&] {
    return renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, new_path.c_str(), how);
  };
  return Retried(call) == 0;
}
#else
constexpr unsigned int kExchange = 0;
constexpr unsigned int kNoReplace = 0;

bool RenameWith(unsigned int, const std::string&, const std::string&) {
  errno = ENOSYS;
  return false;
}
#endif

bool Rename(const std::string& path, const std::string& new_path) {
  return Retried([&] { return rename(path.c_str(), new_path.c_str()); }) == 0;
}

bool Link(const std::string& path, const std::string& second_path) {
  return Retried([&] { return link(path.c_str(), second_path.c_str()); }) == 0;
}

// Ends what WriteBeside began.
void DemandDone(bool done, const std::string& beside, const std::string& target) {
  if (done) return FlushFolderOf(target);
  const int host_error = errno;
  Unlink(beside);
  Fail(host_error, target);
}

// The file that was replaced gets the name under which it is kept. One that bears it already keeps
// both names through the rename.
void PutAway(const std::string& replaced, const std::string& kept) {
  if (!Rename(replaced, kept)) ReplaceFile(kept, ReadWhole(replaced));
  Unlink(replaced);  // where that fails, the next replacement does it
  FlushFolderOf(kept);
}

}  // namespace

void ReplaceFile(const std::string& path, std::string_view bytes) {
  const std::string target = LinkTarget(path);
  const std::string beside = WriteBeside(target, bytes);
  DemandDone(Rename(beside, target), beside, target);
}

void ReplaceKeptFile(const std::string& path, std::string_view bytes, const std::string& kept) {
  const std::string target = LinkTarget(path);
  const std::string beside = WriteBeside(target, bytes);
  if (RenameWith(kExchange, beside, target)) {
    try {
      PutAway(beside, kept);
    } catch (...) {
      if (RenameWith(kExchange, beside, target)) Unlink(beside);
      throw;
    }
    return FlushFolderOf(target);
  }
  const bool nothing_to_exchange = errno == ENOENT || IsUnknownToTheDisk(errno);
  DemandDone(nothing_to_exchange && Rename(beside, target), beside, target);
}

bool CreateFile(const std::string& path, std::string_view bytes) {
  const std::string target = LinkTarget(path);
  const std::string beside = WriteBeside(target, bytes);
  bool done = RenameWith(kNoReplace, beside, target);
  if (!done && IsUnknownToTheDisk(errno)) {
    done = Link(beside, target);
    if (done) {
      Unlink(beside);
    } else if (IsUnknownToTheDisk(errno)) {
      struct stat status {};
      const bool is_taken = lstat(target.c_str(), &status) == 0;
      done = !is_taken && Rename(beside, target);
      if (is_taken) errno = EEXIST;
    }
  }
  if (!done && errno == EEXIST) {
    Unlink(beside);
    return false;
  }
  DemandDone(done, beside, target);
  return true;
}

void KeepFile(const std::string& path, const std::string& second_path) {
  const std::string target = LinkTarget(path);
  if (Link(target, second_path)) return FlushFolderOf(second_path);
  if (!IsUnknownToTheDisk(errno)) Fail(errno, target);
  ReplaceFile(second_path, ReadWhole(path));
}

}  // namespace base::host
