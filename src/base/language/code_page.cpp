#include "base/language/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace base {

namespace {

// The characters of the codes 80 to 9F; all other codes are their own code points.
constexpr std::size_t kFirst = 0x80;
constexpr std::array<char32_t, 32> kCharacters = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t CharacterOf(char byte) {
  const std::size_t code = static_cast<unsigned char>(byte);
  const bool listed = code >= kFirst && code < kFirst + kCharacters.size();
  return listed ? kCharacters[code - kFirst] : static_cast<char32_t>(code);
}

char CodeOf(char32_t character) {
  const auto* found = std::find(kCharacters.begin(), kCharacters.end(), character);
  if (found != kCharacters.end()) {
    return static_cast<char>(kFirst + static_cast<std::size_t>(found - kCharacters.begin()));
  }
  const bool own_code = character < 0x80 || (character >= 0xA0 && character <= 0xFF);
  return own_code ? static_cast<char>(character) : '?';
}

// One character of UTF-8 and its length in bytes; length 0 if the bytes are not valid.
struct Decoded {
  char32_t character = 0;
  std::size_t length = 0;
};

Decoded Decode(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return {};
  char32_t character = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0u) != 0x80) return {};
    character = (character << 6) | (byte(i) & 0x3Fu);
  }
  constexpr std::array<char32_t, 5> kLeastOfLength = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < kLeastOfLength[length] || character > 0x10FFFF || surrogate) return {};
  return {character, length};
}

}  // namespace

std::string ToUtf8(std::string_view cp1252) {
  std::string utf8;
  utf8.reserve(cp1252.size());
  for (const char byte : cp1252) {
    const char32_t character = CharacterOf(byte);
    if (character < 0x80) {
      utf8 += byte;
      continue;
    }
    if (character < 0x800) {
      utf8 += static_cast<char>(0xC0u | (character >> 6));
    } else {
      utf8 += static_cast<char>(0xE0u | (character >> 12));
      utf8 += static_cast<char>(0x80u | ((character >> 6) & 0x3Fu));
    }
    utf8 += static_cast<char>(0x80u | (character & 0x3Fu));
  }
  return utf8;
}

std::string FromUtf8(std::string_view utf8) {
  std::string cp1252;
  cp1252.reserve(utf8.size());
  while (!utf8.empty()) {
    const Decoded decoded = Decode(utf8);
    cp1252 += decoded.length == 0 ? '?' : CodeOf(decoded.character);
    utf8.remove_prefix(std::max<std::size_t>(decoded.length, 1));
  }
  return cp1252;
}

}  // namespace base
