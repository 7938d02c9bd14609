#pragma once

#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <string>
#include <string_view>

#include "base/ports/file_system.h"

// The file calls of the host as the desk makes them: never interrupted, never waiting for the other
// end of a pipe, and failing with the classic numbers. Paths are the host's own.

namespace base::host {

// A call, made again as long as a signal interrupts it: disks behind a network or a program answer
// so to every kind of call.
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

// The classic number of an error of the host; errno keeps the host's, which the error reporter
// tells. A missing file is one thing (53), a missing folder on the way to it another (76).
[[noreturn]] void Fail(int host_error, const std::string& path);
// For a file that was to come into being, which cannot be what is missing.
[[noreturn]] void FailToCreate(int host_error, const std::string& path);
bool IsPermission(int host_error);

std::string FolderOf(const std::string& path);
bool HasMode(const std::string& path, mode_t mode);
void DemandRegular(mode_t mode, const std::string& path);
// Asked before a file is opened: opening a device may already do something.
void DemandRegularIfThere(const std::string& path);

int OpenFile(const std::string& path, int flags, mode_t mode = 0);
struct stat StatusOf(int descriptor, const std::string& path);
FileIdentity IdentityOf(const struct stat& status);
std::string ReadFrom(int descriptor, off_t offset, std::size_t count, const std::string& path);
// Error 53 when there is none.
std::string ReadWhole(const std::string& path);
// Writes on; how many bytes were written. Fewer than given leave the reason in errno.
std::size_t Write(int descriptor, std::string_view bytes);
bool Unlink(const std::string& path);
bool Flush(int descriptor);
void FlushFolderOf(const std::string& path);

}  // namespace base::host
