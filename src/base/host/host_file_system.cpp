#include "base/host/host_file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <limits>
#include <optional>

#include "base/host/host_paths.h"
#include "base/language/code_page.h"
#include "base/language/error.h"
#include "base/language/text.h"

namespace base {
namespace {

constexpr mode_t kNewFileMode = 0644;
constexpr mode_t kNewFolderMode = 0755;
constexpr int kMostLinks = 40;

// Positions in the desk's files are 32 bits wide; no text of the desk is longer.
constexpr off_t kLongestText = std::numeric_limits<std::int32_t>::max();

// A call of the host, made again as long as a signal interrupts it: disks behind a network or a
// program answer so to every kind of call.
template <typename Call>
auto Retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

// A file descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_;
};

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

// errno keeps the host's number, which the error reporter tells.
[[noreturn]] void Throw(int number, int host_error, const std::string& host_path) {
  std::string words = Error(number).Description();
  if (number != kFileNotFound) {
    words += ": " + FromUtf8(std::strerror(host_error)) + ", " + ToDeskPath(host_path);
  }
  errno = host_error;
  throw Error(number, words);
}

std::string FolderOf(const std::string& host_path) {
  const std::size_t slash = host_path.rfind('/');
  return slash == std::string::npos ? "." : host_path.substr(0, slash + 1);
}

bool HasMode(const std::string& host_path, mode_t mode) {
  struct stat status {};
  return Retried([&] { return stat(host_path.c_str(), &status); }) == 0 &&
         (status.st_mode & S_IFMT) == mode;
}

// A missing file is one thing, a missing folder on the way to it another.
[[noreturn]] void Fail(int host_error, const std::string& host_path) {
  const bool no_folder = host_error == ENOENT && !HasMode(FolderOf(host_path), S_IFDIR);
  Throw(no_folder ? kPathNotFound : ClassicNumber(host_error), host_error, host_path);
}

// A file that was to come into being cannot be what is missing.
[[noreturn]] void FailToCreate(int host_error, const std::string& host_path) {
  Throw(host_error == ENOENT ? kPathNotFound : ClassicNumber(host_error), host_error, host_path);
}

// Never waits for the other end of a pipe.
int OpenHost(const std::string& host_path, int flags, mode_t mode = 0) {
  return Retried(
      [&] { return open(host_path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode); });
}

// Writes everything from an offset on; false leaves the reason in errno.
bool WriteAt(int descriptor, off_t offset, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written =
        Retried([&] { return pwrite(descriptor, bytes.data(), bytes.size(), offset); });
    if (written == 0) errno = ENOSPC;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
    offset += written;
  }
  return true;
}

bool Unlink(const std::string& path) {
  return Retried([&] { return unlink(path.c_str()); }) == 0;
}

bool Flush(int descriptor) {
  return Retried([&] { return fsync(descriptor); }) == 0;
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

void DemandRegular(mode_t mode, const std::string& path) {
  if (S_ISDIR(mode)) Fail(EISDIR, path);
  if (!S_ISREG(mode)) Fail(EOPNOTSUPP, path);
}

// Asked before a file is opened: opening a device may already do something.
void DemandRegularIfThere(const std::string& path) {
  struct stat status {};
  if (Retried([&] { return stat(path.c_str(), &status); }) == 0) {
    DemandRegular(status.st_mode, path);
  } else if (errno != ENOENT) {
    Fail(errno, path);
  }
}

struct stat StatusOf(int descriptor, const std::string& path) {
  struct stat status {};
  if (Retried([&] { return fstat(descriptor, &status); }) != 0) Fail(errno, path);
  DemandRegular(status.st_mode, path);
  return status;
}

off_t LengthOf(int descriptor, const std::string& path) {
  return StatusOf(descriptor, path).st_size;
}

FileIdentity IdentityOf(const struct stat& status) {
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  return {.device = status.st_dev,
          .number = status.st_ino,
          .size = status.st_size,
          .modified = status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec,
          .names = status.st_nlink};
}

class HostFile : public File {
 public:
  HostFile(int descriptor, std::string path) : file_(descriptor), path_(std::move(path)) {}

  std::int64_t Length() override { return LengthOf(file_.Number(), path_); }

  FileIdentity Identity() override { return IdentityOf(StatusOf(file_.Number(), path_)); }

  std::string ReadAt(std::int64_t offset, std::size_t count) override {
    return ReadFrom(file_.Number(), offset, count, path_);
  }

  void Append(std::string_view bytes) override {
    const off_t old_length = LengthOf(file_.Number(), path_);
    if (WriteAt(file_.Number(), old_length, bytes) && Flush(file_.Number())) return;
    const int host_error = errno == EBADF ? EACCES : errno;  // opened for reading only
    // Nothing half written may stay behind the last draw.
    if (Retried([&] { return ftruncate(file_.Number(), old_length); }) == 0) Flush(file_.Number());
    Fail(host_error, path_);
  }

 private:
  Descriptor file_;
  std::string path_;
};

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
  const int descriptor = OpenHost(path, kFlags, mode);
  if (descriptor >= 0 || errno != EEXIST || !Unlink(path)) return descriptor;
  return OpenHost(path, kFlags, mode);
}

// The host would take such a path as one that ends there.
bool HasZero(const std::string& path) { return path.find('\0') != std::string::npos; }

// Why a disk gives no file a second name: it knows none, not from there, not this file, or no more.
bool HasNoSecondNames(int host_error) {
  return host_error == EXDEV || host_error == EPERM || host_error == EOPNOTSUPP ||
         host_error == ENOSYS || host_error == EMLINK;
}

class HostLock : public FileLock {
 public:
  explicit HostLock(int descriptor) : file_(descriptor) {}

 private:
  Descriptor file_;  // closing it unlocks
};

void FlushFolderOf(const std::string& path) {
  const Descriptor descriptor(OpenHost(FolderOf(path), O_RDONLY | O_DIRECTORY));
  if (descriptor.IsOpen()) Flush(descriptor.Number());
}

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
  int descriptor = OpenHost(host_path, O_RDWR | O_CREAT, kNewFileMode);
  if (descriptor < 0) {
    const int host_error = errno;
    if (ClassicNumber(host_error) == kPermission) descriptor = OpenHost(host_path, O_RDONLY);
    if (descriptor < 0) FailToCreate(host_error, host_path);
  }
  auto file = std::make_unique<HostFile>(descriptor, host_path);
  file->Length();  // refuses what has come there meanwhile
  return file;
}

std::string HostFileSystem::ReadAll(const std::string& path) {
  const std::string host_path = ResolveHostPath(path);
  DemandRegularIfThere(host_path);
  const Descriptor file(OpenHost(host_path, O_RDONLY));
  if (!file.IsOpen()) Fail(errno, host_path);
  const off_t length = LengthOf(file.Number(), host_path);
  if (length > kLongestText) throw Error(kOutOfMemory);
  return ReadFrom(file.Number(), 0, static_cast<std::size_t>(length), host_path);
}

void HostFileSystem::Replace(const std::string& path, std::string_view bytes) {
  const std::string target = LinkTarget(ResolveHostPath(path));
  const std::optional<mode_t> mode = ModeToReplace(target);
  const std::string beside = target + ".new~" + std::to_string(getpid());
  int host_error = 0;
  {
    const Descriptor file(OpenAnew(beside, mode.value_or(kNewFileMode)));
    if (!file.IsOpen()) FailToCreate(errno, target);
    // What the process withholds from new files, an old one keeps. Not every disk knows modes.
    if (mode) (void)Retried([&] { return fchmod(file.Number(), *mode); });
    if (!WriteAt(file.Number(), 0, bytes) || !Flush(file.Number())) host_error = errno;
  }
  const auto put_in_place = [&] { return rename(beside.c_str(), target.c_str()); };
  if (host_error == 0 && Retried(put_in_place) != 0) host_error = errno;
  if (host_error != 0) {
    Unlink(beside);
    Fail(host_error, target);
  }
  FlushFolderOf(target);
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
  const std::string target = LinkTarget(ResolveHostPath(path));
  const std::string second = ResolveHostPath(second_path);
  if (Retried([&] { return link(target.c_str(), second.c_str()); }) == 0) {
    return FlushFolderOf(second);
  }
  if (!HasNoSecondNames(errno)) Fail(errno, target);
  Replace(second_path, ReadAll(path));
}

LockAttempt HostFileSystem::TryLock(const std::string& path) {
  const std::string host_path = ResolveHostPath(path);
  int descriptor = OpenHost(host_path, O_RDWR | O_CREAT | O_NOFOLLOW, kNewFileMode);
  if (descriptor < 0) descriptor = OpenHost(host_path, O_RDONLY | O_NOFOLLOW);
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
