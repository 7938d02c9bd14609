#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace base {

// Which file of the disk it is, and in which state: a path can come to name another file, and a
// file can change under an open descriptor. Times are nanoseconds.
struct FileIdentity {
  std::uint64_t device = 0;
  std::uint64_t number = 0;
  std::int64_t size = 0;
  std::int64_t modified = 0;
  std::uint64_t names = 0;  // that the disk has for it
  bool IsSameFile(const FileIdentity& other) const {
    return device == other.device && number == other.number;
  }
  bool operator==(const FileIdentity&) const = default;
};

// Keeps others out while it lives; a killed process lets go of it.
class FileLock {
 public:
  virtual ~FileLock() = default;
};

struct LockAttempt {
  std::unique_ptr<FileLock> lock;  // null when there is none to be had
  bool held_by_another = false;    // otherwise the disk, or the folder, allows none
};

// An open file of bytes. Offsets count from 0. Failures throw Error with the classic numbers
// (61 disk full, 70 permission, 75 path or access) and the host's own words where it has some.
class File {
 public:
  virtual ~File() = default;
  virtual std::int64_t Length() = 0;
  virtual FileIdentity Identity() = 0;
  // The bytes from offset on, at most `count`; fewer at the end of the file.
  virtual std::string ReadAt(std::int64_t offset, std::size_t count) = 0;
  // Writes behind the last byte and flushes to the disk. On failure the file is cut back to the
  // length it had, then the error is thrown: the old bytes are never touched.
  virtual void Append(std::string_view bytes) = 0;
};

// The files of the desk, by paths as the desk writes them: either separator, names matched without
// regard to case. A name with a zero byte is borne by nothing, and to use it is error 75. The whole
// interface is what the desk needs and no more.
class FileSystem {
 public:
  virtual ~FileSystem() = default;
  virtual bool FileExists(const std::string& path) = 0;
  virtual bool FolderExists(const std::string& path) = 0;
  // Whether anything bears this name, be it a link that leads nowhere.
  virtual bool IsTaken(const std::string& path) = 0;
  // The file that a path leads to now; nothing where no file is. Throws where none can be looked
  // at.
  virtual std::optional<FileIdentity> Identify(const std::string& path) = 0;
  // Opens for reading and appending. A missing file comes into being, empty; a file that may not be
  // written opens for reading, and its Append throws. What is no regular file is never opened (75).
  virtual std::unique_ptr<File> Open(const std::string& path) = 0;
  // Error 53 when there is none.
  virtual std::string ReadAll(const std::string& path) = 0;
  // Puts a file with these bytes in place of the old one: the new file is written beside it,
  // flushed to the disk and renamed over it. On failure the old file is whole.
  virtual void Replace(const std::string& path, std::string_view bytes) = 0;
  // Replace for a file that Keep gave the name `kept`. Afterwards that name is borne by whatever
  // stood at the path in the moment of the change: another program may have put its own there.
  virtual void ReplaceKept(const std::string& path, std::string_view bytes,
                           const std::string& kept) = 0;
  // Puts a file with these bytes where none is, in the same way; false, and nothing done, where
  // something bears the name.
  virtual bool Create(const std::string& path, std::string_view bytes) = 0;
  // Error 53 when there is none.
  virtual void Remove(const std::string& path) = 0;
  // Gives a file, a link or whatever bears the name another one, in the same folder. A name that is
  // taken is error 75.
  virtual void Rename(const std::string& path, const std::string& new_path) = 0;
  // Makes a folder in one that is there. One that is there already is welcome.
  virtual void MakeFolder(const std::string& path) = 0;
  // Gives the file a second name, which keeps its bytes when the first comes to stand for others; a
  // copy where the disk has no such names. Its folder has to be there.
  virtual void Keep(const std::string& path, const std::string& second_path) = 0;
  // Locks a file that serves no other purpose; it comes into being and is never deleted. Waits for
  // nothing, and never throws.
  virtual LockAttempt TryLock(const std::string& path) = 0;
  // Names (not paths) of the files in a folder that end in `ending`, without regard to case,
  // sorted.
  virtual std::vector<std::string> List(const std::string& folder, const std::string& ending) = 0;
};

// No disk at all: nothing exists, nothing can be opened or written (error 76).
class NoFiles : public FileSystem {
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
