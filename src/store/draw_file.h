#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/ports/file_system.h"
#include "store/draw_record.h"

namespace store {

// File number 1: the open database. Byte positions count from 1. Every operation on a closed file
// is error 52.
class DrawFile {
 public:
  explicit DrawFile(base::FileSystem& files) : files_(files) {}

  // Closes the old file first. A missing file comes into being, empty.
  void Open(const std::string& path);
  void Close();
  bool IsOpen() const { return file_ != nullptr; }

  // Length in bytes; error 6 beyond what 32 signed bits hold.
  std::int32_t Length();

  // Fills the record from a position and returns the position after it. Nothing is checked: the
  // lengths in the file are believed. In a file that ends inside the record a missing number reads
  // as 0 and a text gives what bytes there are.
  std::int32_t Read(std::int32_t position, DrawRecord& record);

  // What the file lacks for the record at this position to be whole: zero lengths, and blanks for
  // the rest of a text. Empty for a whole record, and where no byte of one stands.
  std::string MissingBytes(std::int32_t position);

  // Appends the record. Only `position` = length + 1 is a place to write; any other is error 5.
  void Write(std::int32_t position, const DrawRecord& record);
  // Appends records already encoded, in one step that succeeds whole or leaves the file as it was.
  void AppendBytes(std::string_view bytes);

 private:
  base::File& Opened();
  // Up to `count` bytes from a 0-based offset, out of a block of the file kept in memory.
  std::string_view Bytes(std::int64_t offset, std::size_t count);
  unsigned ReadWord(std::int64_t& offset);
  void ReadText(std::int64_t& offset, std::string& text);

  base::FileSystem& files_;
  std::unique_ptr<base::File> file_;
  std::string block_;
  std::int64_t block_offset_ = 0;
};

}  // namespace store
