#include "base/host/host_calls.h"

#include <fcntl.h>

#include <cstdint>
#include <cstring>
#include <limits>

#include "base/host/host_paths.h"
#include "base/language/code_page.h"
#include "base/language/error.h"

namespace base::host {
namespace {

// Positions in the desk's files are 32 bits wide; no text of the desk is longer.
constexpr off_t kLongestText = std::numeric_limits<std::int32_t>::max();

int ClassicNumber(int host_error) {
  switch (host_error) {
    case ENOENT:
      return kFileNotFound;
    case ENOTDIR:
      return kPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return kPermission;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kDiskFull;
    default:
      return kPathAccess;
  }
}

[[noreturn]] void Throw(int number, int host_error, const std::string& path) {
  std::string words = Error(number).Description();
  if (number != kFileNotFound) {
    words += ": " + FromUtf8(std::strerror(host_error)) + ", " + ToDeskPath(path);
  }
  errno = host_error;
  throw Error(number, words);
}

}  // namespace

void Fail(int host_error, const std::string& path) {
  const bool no_folder = host_error == ENOENT && !HasMode(FolderOf(path), S_IFDIR);
  Throw(no_folder ? kPathNotFound : ClassicNumber(host_error), host_error, path);
}

void FailToCreate(int host_error, const std::string& path) {
  Throw(host_error == ENOENT ? kPathNotFound : ClassicNumber(host_error), host_error, path);
}

bool IsPermission(int host_error) { return ClassicNumber(host_error) == kPermission; }

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

bool HasMode(const std::string& path, mode_t mode) {
  struct stat status {};
  return Retried([&] { return stat(path.c_str(), &status); }) == 0 &&
         (status.st_mode & S_IFMT) == mode;
}

void DemandRegular(mode_t mode, const std::string& path) {
  if (S_ISDIR(mode)) Fail(EISDIR, path);
  if (!S_ISREG(mode)) Fail(EOPNOTSUPP, path);
}

void DemandRegularIfThere(const std::string& path) {
  struct stat status {};
  if (Retried([&] { return stat(path.c_str(), &status); }) == 0) {
    DemandRegular(status.st_mode, path);
  } else if (errno != ENOENT) {
    Fail(errno, path);
  }
}

int OpenFile(const std::string& path, int flags, mode_t mode) {
  return Retried(
      [&] { return open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode); });
}

struct stat StatusOf(int descriptor, const std::string& path) {
  struct stat status {};
  if (Retried([&] { return fstat(descriptor, &status); }) != 0) Fail(errno, path);
  DemandRegular(status.st_mode, path);
  return status;
}

FileIdentity IdentityOf(const struct stat& status) {
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  return {.device = status.st_dev,
          .number = status.st_ino,
          .size = status.st_size,
          .modified = status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec,
          .names = status.st_nlink};
}

std::string ReadFrom(int descriptor, off_t offset, std::size_t count, const std::string& path) {
  std::string bytes(count, '\0');
  std::size_t filled = 0;
  while (filled < count) {
    const ssize_t got = Retried([&] {
      return pread(descriptor, bytes.data() + filled, count - filled,
                   offset + static_cast<off_t>(filled));
    });
    if (got < 0) Fail(errno, path);
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  bytes.resize(filled);
  return bytes;
}

std::string ReadWhole(const std::string& path) {
  DemandRegularIfThere(path);
  const Descriptor file(OpenFile(path, O_RDONLY));
  if (!file.IsOpen()) Fail(errno, path);
  const off_t length = StatusOf(file.Number(), path).st_size;
  if (length > kLongestText) throw Error(kOutOfMemory);
  return ReadFrom(file.Number(), 0, static_cast<std::size_t>(length), path);
}

std::size_t Write(int descriptor, std::string_view bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t written =
        Retried([&] { return write(descriptor, bytes.data() + done, bytes.size() - done); });
    if (written == 0) errno = ENOSPC;
    if (written <= 0) break;
    done += static_cast<std::size_t>(written);
  }
  return done;
}

bool Unlink(const std::string& path) {
  return Retried([&] { return unlink(path.c_str()); }) == 0;
}

bool Flush(int descriptor) {
  return Retried([&] { return fsync(descriptor); }) == 0;
}

void FlushFolderOf(const std::string& path) {
  const Descriptor descriptor(OpenFile(FolderOf(path), O_RDONLY | O_DIRECTORY));
  if (descriptor.IsOpen()) Flush(descriptor.Number());
}

}  // namespace base::host
