#include "store/draw_file.h"

#include <limits>

namespace store {
namespace {

// Large enough that a walk reads the disk rarely, small enough that a broken disk costs few draws.
constexpr std::size_t kBlock = std::size_t{128} * 1024;

}  // namespace

void DrawFile::Open(const std::string& path) {
  Close();
  file_ = files_.Open(path);
  length_ = file_->Length();
  is_open_ = true;
}

void DrawFile::Close() {
  file_.reset();
  is_open_ = false;
  length_ = 0;
  Forget();
}

void DrawFile::DemandOpen() const {
  if (!is_open_) throw base::Error(base::kBadFileName);
}

std::int32_t DrawFile::Length() const {
  DemandOpen();
  if (length_ > std::numeric_limits<std::int32_t>::max()) throw base::Error(base::kOverflow);
  return static_cast<std::int32_t>(length_);
}

void DrawFile::Forget() {
  if (is_open_ && !file_) return;  // what was written stands for the file that is not open yet
  bytes_.clear();
  at_end_ = false;
  failure_.reset();
  if (file_) length_ = file_->Length();
}

void DrawFile::FillTo(std::size_t size) {
  try {
    while (bytes_.size() < size && !at_end_ && !failure_) {
      if (!file_) throw base::Error(base::kBadFileName);
      const std::string block = file_->ReadAt(static_cast<std::int64_t>(bytes_.size()), kBlock);
      at_end_ = block.size() < kBlock;
      bytes_ += block;
      // A file can grow or shrink while it is read; what counts is what came.
      if (at_end_) length_ = static_cast<std::int64_t>(bytes_.size());
    }
  } catch (const base::Error& error) {
    failure_ = error;
  }
}

std::int32_t DrawFile::Read(std::int32_t position, DrawRecord& record) {
  DemandOpen();
  if (position < 1) throw base::Error(base::kInvalidCall);
  const auto offset = static_cast<std::size_t>(position - 1);
  FillTo(offset + kLongestRecord);
  const RecordEnd end = DecodeRecord(bytes_, offset, record);
  const bool cut_by_failure = failure_ && (!end.missing.empty() || offset >= bytes_.size());
  if (cut_by_failure) throw base::Error(*failure_);
  if (end.offset >= std::numeric_limits<std::int32_t>::max()) throw base::Error(base::kOverflow);
  return static_cast<std::int32_t>(end.offset + 1);
}

const std::string& DrawFile::Bytes() {
  DemandOpen();
  FillTo(std::numeric_limits<std::size_t>::max());
  if (failure_) throw base::Error(*failure_);
  return bytes_;
}

bool DrawFile::IsTheFile(const base::FileIdentity& identity) const {
  return file_ && file_->Identity().IsSameFile(identity);
}

void DrawFile::Reopen(const std::string& path) { file_ = files_.Open(path); }

void DrawFile::Append(std::string_view bytes) {
  DemandOpen();
  if (!file_ || !at_end_) throw base::Error(base::kInvalidCall);
  file_->Append(bytes);
  bytes_ += bytes;
  length_ = static_cast<std::int64_t>(bytes_.size());
}

void DrawFile::Adopt(std::string bytes) {
  DemandOpen();
  file_.reset();
  bytes_ = std::move(bytes);
  at_end_ = true;
  failure_.reset();
  length_ = static_cast<std::int64_t>(bytes_.size());
}

}  // namespace store
