#include "store/draw_file.h"

#include <algorithm>
#include <limits>

#include "base/language/error.h"

namespace store {
namespace {

constexpr int kTexts = 9;  // of a record

// Large enough that a walk reads the disk rarely, small enough to stay in the processor's cache.
constexpr std::size_t kBlock = std::size_t{128} * 1024;

unsigned WordOf(std::string_view two_bytes) {
  return static_cast<unsigned char>(two_bytes[0]) |
         static_cast<unsigned>(static_cast<unsigned char>(two_bytes[1])) << 8;
}

}  // namespace

void DrawFile::Open(const std::string& path) {
  Close();
  file_ = files_.Open(path);
}

void DrawFile::Close() {
  file_.reset();
  block_.clear();
  block_offset_ = 0;
}

base::File& DrawFile::Opened() {
  if (!file_) throw base::Error(base::kBadFileName);
  return *file_;
}

std::int32_t DrawFile::Length() {
  const std::int64_t length = Opened().Length();
  if (length > std::numeric_limits<std::int32_t>::max()) throw base::Error(base::kOverflow);
  return static_cast<std::int32_t>(length);
}

std::string_view DrawFile::Bytes(std::int64_t offset, std::size_t count) {
  const std::int64_t block_end = block_offset_ + static_cast<std::int64_t>(block_.size());
  if (offset < block_offset_ || offset + static_cast<std::int64_t>(count) > block_end) {
    block_ = Opened().ReadAt(offset, std::max(count, kBlock));
    block_offset_ = offset;
  }
  const auto start = static_cast<std::size_t>(offset - block_offset_);
  return std::string_view(block_).substr(std::min(start, block_.size()), count);
}

unsigned DrawFile::ReadWord(std::int64_t& offset) {
  const std::string_view bytes = Bytes(offset, 2);
  offset += static_cast<std::int64_t>(bytes.size());
  return bytes.size() < 2 ? 0 : WordOf(bytes);
}

void DrawFile::ReadText(std::int64_t& offset, std::string& text) {
  const std::size_t length = ReadWord(offset);
  const std::string_view bytes = Bytes(offset, length);
  text.assign(bytes);
  offset += static_cast<std::int64_t>(bytes.size());
}

std::int32_t DrawFile::Read(std::int32_t position, DrawRecord& record) {
  Opened();
  if (position < 1) throw base::Error(base::kInvalidCall);
  std::int64_t offset = position - 1;
  record.spare = static_cast<std::int16_t>(ReadWord(offset));
  for (std::string& ball : record.b) ReadText(offset, ball);
  ReadText(offset, record.day);
  ReadText(offset, record.bb);
  ReadText(offset, record.date);
  if (offset >= std::numeric_limits<std::int32_t>::max()) throw base::Error(base::kOverflow);
  return static_cast<std::int32_t>(offset + 1);
}

std::string DrawFile::MissingBytes(std::int32_t position) {
  std::string missing;
  std::int64_t offset = position - 1;
  if (position < 1 || Bytes(offset, 1).empty()) return missing;
  const auto word = [&] {
    std::string bytes(Bytes(offset, 2));
    offset += static_cast<std::int64_t>(bytes.size());
    missing.append(2 - bytes.size(), '\0');
    bytes.resize(2);
    return WordOf(bytes);
  };
  word();
  for (int text = 0; text < kTexts; ++text) {
    const std::size_t length = word();
    const std::size_t there = Bytes(offset, length).size();
    missing.append(length - there, ' ');
    offset += static_cast<std::int64_t>(there);
  }
  return missing;
}

void DrawFile::Write(std::int32_t position, const DrawRecord& record) {
  if (position != Length() + 1) throw base::Error(base::kInvalidCall);
  AppendBytes(EncodeRecord(record));
}

void DrawFile::AppendBytes(std::string_view bytes) {
  Opened().Append(bytes);
  block_.clear();
}

}  // namespace store
