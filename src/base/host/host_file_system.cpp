#include "base/host/host_file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "base/host/host_paths.h"
#include "base/language/code_page.h"
#include "base/language/error.h"
#include "base/language/text.h"

namespace base {
namespace {

constexpr mode_t kNewFileMode = 0644;

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

[[noreturn]] void Fail(int host_error, const std::string& host_path) {
  const int number = ClassicNumber(host_error);
  const std::string classic = Error(number).Description();
  errno = host_error;
  if (number == kFileNotFound) throw Error(number);
  throw Error(number, classic + ": " + std::strerror(host_error) + ", " + ToDeskPath(host_path));
}

// A file that is to come into being in a folder that does not exist is a path not found.
[[noreturn]] void FailToCreate(int host_error, const std::string& host_path) {
  Fail(host_error == ENOENT ? ENOTDIR : host_error, host_path);
}

bool HasMode(const std::string& host_path, mode_t mode) {
  struct stat status {};
  return stat(host_path.c_str(), &status) == 0 && (status.st_mode & S_IFMT) == mode;
}

template <typename Call>
auto Retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

// Writes everything from an offset on; false leaves the reason in errno.
bool WriteAt(int descriptor, off_t offset, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written =
        Retried([&] { return pwrite(descriptor, bytes.data(), bytes.size(), offset); });
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
    offset += written;
  }
  return true;
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

off_t LengthOf(int descriptor, const std::string& path) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0) Fail(errno, path);
  return status.st_size;
}

class HostFile : public File {
 public:
  HostFile(int descriptor, std::string path) : file_(descriptor), path_(std::move(path)) {}

  std::int64_t Length() override { return LengthOf(file_.Number(), path_); }

  std::string ReadAt(std::int64_t offset, std::size_t count) override {
    return ReadFrom(file_.Number(), offset, count, path_);
  }

  void Append(std::string_view bytes) override {
    const off_t old_length = LengthOf(file_.Number(), path_);
    if (WriteAt(file_.Number(), old_length, bytes) && Flush(file_.Number())) return;
    const int host_error = errno == EBADF ? EACCES : errno;  // opened for reading only
    // Nothing half written may stay behind the last draw.
    if (LengthOf(file_.Number(), path_) != old_length) {
      Retried([&] { return ftruncate(file_.Number(), old_length); });
    }
    Fail(host_error, path_);
  }

 private:
  Descriptor file_;
  std::string path_;
};

// The file that a chain of links ends in, so that replacing it leaves the links alone.
std::string LinkTarget(const std::string& path) {
  char* const target = realpath(path.c_str(), nullptr);
  if (!target) return path;
  std::string result(target);
  free(target);  // NOLINT: realpath allocates with malloc
  return result;
}

mode_t ModeFor(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : kNewFileMode;
}

void FlushFolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  const Descriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.IsOpen()) Flush(descriptor.Number());
}

}  // namespace

bool HostFileSystem::FileExists(const std::string& path) {
  return HasMode(ResolveHostPath(path), S_IFREG);
}

bool HostFileSystem::FolderExists(const std::string& path) {
  return HasMode(ResolveHostPath(path), S_IFDIR);
}

std::unique_ptr<File> HostFileSystem::Open(const std::string& path) {
  const std::string host_path = ResolveHostPath(path);
  if (HasMode(host_path, S_IFDIR)) Fail(EISDIR, host_path);
  int descriptor = open(host_path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kNewFileMode);
  if (descriptor < 0 && (errno == EACCES || errno == EROFS)) {
    descriptor = open(host_path.c_str(), O_RDONLY | O_CLOEXEC);
  }
  if (descriptor < 0) FailToCreate(errno, host_path);
  return std::make_unique<HostFile>(descriptor, host_path);
}

std::string HostFileSystem::ReadAll(const std::string& path) {
  const std::string host_path = ResolveHostPath(path);
  const Descriptor file(open(host_path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.IsOpen()) Fail(errno, host_path);
  const auto length = static_cast<std::size_t>(LengthOf(file.Number(), host_path));
  return ReadFrom(file.Number(), 0, length, host_path);
}

void HostFileSystem::Replace(const std::string& path, std::string_view bytes) {
  const std::string target = LinkTarget(ResolveHostPath(path));
  if (HasMode(target, S_IFDIR)) Fail(EISDIR, target);
  const std::string beside = target + ".new~" + std::to_string(getpid());
  int host_error = 0;
  {
    const Descriptor file(
        open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, ModeFor(target)));
    if (!file.IsOpen()) FailToCreate(errno, target);
    if (!WriteAt(file.Number(), 0, bytes) || !Flush(file.Number())) host_error = errno;
  }
  if (host_error == 0 && rename(beside.c_str(), target.c_str()) != 0) host_error = errno;
  if (host_error != 0) {
    unlink(beside.c_str());
    Fail(host_error, target);
  }
  FlushFolderOf(target);
}

void HostFileSystem::Remove(const std::string& path) {
  const std::string host_path = ResolveHostPath(path);
  if (unlink(host_path.c_str()) != 0) Fail(errno, host_path);
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
