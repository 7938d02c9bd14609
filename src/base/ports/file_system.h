#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace base {

// An open file of bytes. Offsets count from 0. Failures throw Error with the classic numbers
// (61 disk full, 70 permission, 75 path or access) and the host's own words where it has some.
class File {
 public:
  virtual ~File() = default;
  virtual std::int64_t Length() = 0;
  // The bytes from offset on, at most `count`; fewer at the end of the file.
  virtual std::string ReadAt(std::int64_t offset, std::size_t count) = 0;
  // Writes behind the last byte and flushes to the disk. On failure the file is cut back to the
  // length it had, then the error is thrown: the old bytes are never touched.
  virtual void Append(std::string_view bytes) = 0;
};

// The files of the desk, by paths as the desk writes them: either separator, names matched without
// regard to case. The whole interface is what the desk needs and no more.
class FileSystem {
 public:
  virtual ~FileSystem() = default;
  virtual bool FileExists(const std::string& path) = 0;
  virtual bool FolderExists(const std::string& path) = 0;
  // Opens for reading and appending. A missing file comes into being, empty; a file that may not be
  // written opens for reading, and its Append throws.
  virtual std::unique_ptr<File> Open(const std::string& path) = 0;
  // Error 53 when there is none.
  virtual std::string ReadAll(const std::string& path) = 0;
  // Puts a file with these bytes in place of the old one: the new file is written beside it,
  // flushed to the disk and renamed over it. On failure the old file is whole.
  virtual void Replace(const std::string& path, std::string_view bytes) = 0;
  // Error 53 when there is none.
  virtual void Remove(const std::string& path) = 0;
  // Names (not paths) of the files in a folder that end in `ending`, without regard to case,
  // sorted.
  virtual std::vector<std::string> List(const std::string& folder, const std::string& ending) = 0;
};

// No disk at all: nothing exists, nothing can be opened or written (error 76).
class NoFiles : public FileSystem {
 public:
  bool FileExists(const std::string& path) override;
  bool FolderExists(const std::string& path) override;
  std::unique_ptr<File> Open(const std::string& path) override;
  std::string ReadAll(const std::string& path) override;
  void Replace(const std::string& path, std::string_view bytes) override;
  void Remove(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder, const std::string& ending) override;
};

}  // namespace base
