#include "store/draw_record.h"

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

}  // namespace store
