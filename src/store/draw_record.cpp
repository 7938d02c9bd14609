#include "store/draw_record.h"

#include <algorithm>
#include <utility>

#include "base/language/error.h"
#include "base/language/numbers.h"
#include "base/language/text.h"

namespace store {
namespace {

constexpr std::size_t kDateColumn = 22;
constexpr std::size_t kDateLength = 8;
constexpr std::size_t kDayColumn = 33;
constexpr std::size_t kDayLength = 2;

constexpr std::size_t BallColumn(int k) { return 1 + 3 * static_cast<std::size_t>(k); }

void AppendWord(std::string& bytes, unsigned value) {
  bytes.push_back(static_cast<char>(value & 0xFF));
  bytes.push_back(static_cast<char>(value >> 8 & 0xFF));
}

void AppendText(std::string& bytes, std::string_view text) {
  if (text.size() > 0xFFFF) throw base::Error(base::kOverflow);
  AppendWord(bytes, static_cast<unsigned>(text.size()));
  bytes.append(text);
}

// Takes the fields of a record one by one out of bytes that may end inside it.
class RecordReader {
 public:
  RecordReader(std::string_view bytes, std::size_t offset)
      : bytes_(bytes), end_{.offset = std::min(offset, bytes.size())} {
    there_is_one_ = end_.offset < bytes.size();
  }

  // 0 where not both of its bytes are there.
  unsigned Word() {
    const std::string_view word = Take(2, '\0');
    if (word.size() < 2) return 0;
    return static_cast<unsigned char>(word[0]) |
           static_cast<unsigned>(static_cast<unsigned char>(word[1])) << 8;
  }
  void Text(std::string& text) {
    const std::size_t start = end_.offset;
    const unsigned length = Word();
    // One byte of a length, once made whole, is a length too.
    const std::size_t got = end_.offset - start;
    text.assign(Take(got == 1 ? LowByte(start) : length, ' '));
  }
  RecordEnd End() && {
    if (!there_is_one_) end_.missing.clear();
    return std::move(end_);
  }

 private:
  std::size_t LowByte(std::size_t offset) const {
    return static_cast<unsigned char>(bytes_[offset]);
  }
  std::string_view Take(std::size_t count, char stand_in) {
    const std::string_view there = bytes_.substr(end_.offset, count);
    end_.offset += there.size();
    if (there.size() < count) end_.missing.append(count - there.size(), stand_in);
    return there;
  }

  std::string_view bytes_;
  RecordEnd end_;
  bool there_is_one_ = false;
};

}  // namespace

std::string PadBall(std::string_view text) {
  if (text.empty()) return "00";
  if (text.size() == 1) return "0" + std::string(text);
  return std::string(text);
}

std::string DrawLine(const DrawRecord& record) {
  std::string line;
  line.reserve(34);
  for (int k = 0; k < kBalls; ++k) {
    line += PadBall(record.Ball(k));
    line += ' ';
  }
  line += record.date;
  line += ' ';
  line += base::IntegerText(record.spare);
  line += ' ';
  line += record.day;
  return line;
}

void ParseDrawLine(std::string_view line, DrawRecord& record) {
  for (int k = 0; k < kBalls; ++k) record.Ball(k) = base::Mid(line, BallColumn(k), 2);
  record.date = base::Mid(line, kDateColumn, kDateLength);
  record.day = base::Mid(line, kDayColumn, kDayLength);
}

std::string EncodeRecord(const DrawRecord& record) {
  std::string bytes;
  bytes.reserve(44);
  AppendWord(bytes, static_cast<std::uint16_t>(record.spare));
  for (const std::string& ball : record.b) AppendText(bytes, ball);
  AppendText(bytes, record.day);
  AppendText(bytes, record.bb);
  AppendText(bytes, record.date);
  return bytes;
}

RecordEnd DecodeRecord(std::string_view bytes, std::size_t offset, DrawRecord& record) {
  RecordReader reader(bytes, offset);
  record.spare = static_cast<std::int16_t>(reader.Word());
  for (std::string& ball : record.b) reader.Text(ball);
  reader.Text(record.day);
  reader.Text(record.bb);
  reader.Text(record.date);
  return std::move(reader).End();
}

}  // namespace store
