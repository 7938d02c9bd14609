#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace store {

// One draw as it lies in a database file. Every value that a person would call a number is text.
struct DrawRecord {
  std::int16_t spare = 0;
  std::array<std::string, 6> b;  // B1..B6, two characters each, "00" for a slot without a ball
  std::string day;               // two letters, "Mo".."Su"
  std::string bb;                // bonus ball, "00" for none
  std::string date;              // eight characters at most, "00/00/00" in form

  // Ball k of seven: 0..5 are B1..B6, 6 is BB.
  const std::string& Ball(int k) const { return k < 6 ? b[static_cast<std::size_t>(k)] : bb; }
  std::string& Ball(int k) { return k < 6 ? b[static_cast<std::size_t>(k)] : bb; }
  bool operator==(const DrawRecord&) const = default;
};

inline constexpr int kBalls = 7;

// Text of length 2 stays, empty text becomes "00", one character gets a leading "0", any other
// length stays.
std::string PadBall(std::string_view text);

// The fixed-column text of a record: B1..B6 BB Date Spare Day, balls padded, joined by blanks.
std::string DrawLine(const DrawRecord& record);

// Takes every field but `spare` from the fixed columns of a draw line; columns beyond the end of
// the line give empty text.
void ParseDrawLine(std::string_view line, DrawRecord& record);

// The bytes of a record: spare as 16 bits little-endian, then nine texts, each behind its 16-bit
// length: B1..B6, Day, BB, Date. Error 6 for a text of more than 65,535 bytes.
std::string EncodeRecord(const DrawRecord& record);

// The most bytes that a record can have.
inline constexpr std::size_t kLongestRecord = 2 + 9 * (2 + 0xFFFF);

// Where a record in a run of bytes ends, and what these lack for it to be whole: zero lengths, and
// blanks for the rest of a text. Nothing is lacking where no byte of it stands.
struct RecordEnd {
  std::size_t offset = 0;
  std::string missing{};
};

// Fills the record from an offset. Nothing is checked: the lengths are believed. Where the bytes
// end inside it a missing number reads as 0 and a text gives what bytes there are.
RecordEnd DecodeRecord(std::string_view bytes, std::size_t offset, DrawRecord& record);

}  // namespace store
