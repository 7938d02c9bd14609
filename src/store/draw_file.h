#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/language/error.h"
#include "base/ports/file_system.h"
#include "store/draw_record.h"

namespace store {

// The bytes of one draw file, read from the disk once and from then on out of memory: what a walk
// has seen stays as it was, whatever becomes of the file. Byte positions count from 1. Every
// operation on a closed file is error 52.
class DrawFile {
 public:
  explicit DrawFile(base::FileSystem& files) : files_(files) {}

  // Closes the old file first. A missing file comes into being, empty.
  void Open(const std::string& path);
  void Close();
  bool IsOpen() const { return is_open_; }

  // Length in bytes as it was opened, or as it is after what was written here; error 6 beyond what
  // 32 signed bits hold.
  std::int32_t Length() const;

  // Forgets what was read. The file that was opened is read anew, also where its path has come to
  // name another one. What Adopt was given stays while its file is not open.
  void Forget();
  // Fills the record from a position and returns the position after it; see DecodeRecord. An error
  // of the disk comes where bytes of the record could not be read, and again until Forget.
  std::int32_t Read(std::int32_t position, DrawRecord& record);
  // Every byte of the file, read to its end.
  const std::string& Bytes();

  // Whether the path still leads to the file that was opened.
  bool IsTheFile(const base::FileIdentity& identity) const;
  // Opens the path again, for a file that holds the same bytes.
  void Reopen(const std::string& path);
  // Appends bytes to a file that was read to its end, in one step that succeeds whole or leaves the
  // file as it was.
  void Append(std::string_view bytes);
  // The path now has a file of these bytes, written by someone who renamed it into place. Needs no
  // disk: the new file is opened when it is next needed.
  void Adopt(std::string bytes);

 private:
  void DemandOpen() const;
  // Reads on until this many bytes are there, or the end, or an error that is kept.
  void FillTo(std::size_t size);

  base::FileSystem& files_;
  std::unique_ptr<base::File> file_;
  bool is_open_ = false;
  std::int64_t length_ = 0;
  std::string bytes_;
  bool at_end_ = false;
  std::optional<base::Error> failure_;
};

}  // namespace store
