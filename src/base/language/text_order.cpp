#include "base/language/text_order.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace base {

namespace {

// White space, punctuation and signs in rising order of weight.
constexpr std::string_view kSigns =
    " \xA0\t\n\v\f\r"
    "!\xA1\"#$%\x89&()*,./:;?\xBF@[\\]^\x88\xAF_`\xB4\xA8\xB8{|\xA6}~\x98\xB7"
    "\x82\x84\x85\x86\x87\x8B\x9B\x91\x92\x93\x94\x95\x96\x97\xAB\xBB\xA7\xB6\xA9\xAE\x99\xB0\xAC"
    "\xAD"
    "\xA2\xA3\xA4\xA5\x80+\xB1\xD7\xF7<=>";

// Digits and letters in rising order of weight. Those of one row weigh the same and differ by the
// accents only, from left to right; both cases of a letter count as one.
// clang-format off
constexpr std::string_view kRows[] = {
    "0", "1\xB9", "\xBC", "\xBD", "2\xB2", "3\xB3", "\xBE", "4", "5", "6", "7", "8", "9",
    "a\xAA\xE1\xE0\xE2\xE4\xE3\xE5", "\xE6", "b", "c\xE7", "d\xF0", "e\xE9\xE8\xEA\xEB", "f\x83",
    "g", "h", "i\xED\xEC\xEE\xEF", "j", "k", "l", "m", "n\xF1",
    "o\xBA\xF3\xF2\xF4\xF6\xF5\xF8", "\x9C", "p", "q", "r", "s\x9A", "\xDF", "t", "\xFE",
    "u\xFA\xF9\xFB\xFC", "\xB5", "v", "w", "x", "y\xFD\xFF", "z\x9E"};
// clang-format on

constexpr std::size_t At(char c) { return static_cast<unsigned char>(c); }

constexpr bool IsMark(char c) { return c == '-' || c == '\''; }

constexpr char CapitalOf(char c) {
  const std::size_t code = At(c);
  if ((code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7)) {
    return static_cast<char>(code - 0x20);
  }
  if (code == 0x9A || code == 0x9C || code == 0x9E) return static_cast<char>(code - 0x10);
  return code == 0xFF ? static_cast<char>(0x9F) : c;
}

struct Weights {
  std::array<std::uint8_t, 256> primary{};  // 0 for "-" and "'"
  std::array<std::uint8_t, 256> accent{};
};

// Room for the control characters and the undefined codes below the first row.
constexpr std::uint8_t kHeaviestControl = 63;

constexpr Weights MakeWeights() {
  Weights weights;
  std::array<bool, 256> listed{};
  std::uint8_t weight = kHeaviestControl;
  for (const char c : kSigns) {
    weights.primary[At(c)] = ++weight;
    listed[At(c)] = true;
  }
  for (const std::string_view row : kRows) {
    ++weight;
    std::uint8_t accent = 0;
    for (const char c : row) {
      for (const char form : {c, CapitalOf(c)}) {
        weights.primary[At(form)] = weight;
        weights.accent[At(form)] = accent;
        listed[At(form)] = true;
      }
      ++accent;
    }
  }
  std::uint8_t low = 0;
  for (std::size_t code = 0; code < 256; ++code) {
    if (!listed[code] && !IsMark(static_cast<char>(code))) weights.primary[code] = ++low;
  }
  return weights;
}

constexpr Weights kWeights = MakeWeights();
static_assert(kWeights.primary[At(' ')] == kHeaviestControl + 1);
static_assert(kWeights.primary[0xFF] == kWeights.primary[At('Y')]);

int Order(std::size_t a, std::size_t b) { return a < b ? -1 : a > b ? 1 : 0; }

// Walks the characters of a text that are no marks.
class Letters {
 public:
  explicit Letters(std::string_view text) : at_(text.data()), end_(at_ + text.size()) {}
  // Moves to the next one. Returns its weight, 0 at the end.
  std::uint8_t Next() {
    while (at_ != end_) {
      current_ = At(*at_++);
      if (const std::uint8_t weight = kWeights.primary[current_]) return weight;
    }
    return 0;
  }
  std::uint8_t Accent() const { return kWeights.accent[current_]; }

 private:
  const char* at_;
  const char* end_;
  std::size_t current_ = 0;
};

// Walks the marks of a text.
class Marks {
 public:
  explicit Marks(std::string_view text) : text_(text) {}
  // A figure for the next mark, the lesser the fewer letters stand before it; 0 at the end.
  std::size_t Next() {
    for (; at_ < text_.size(); ++at_) {
      if (!IsMark(text_[at_])) {
        ++letters_before_;
        continue;
      }
      const std::size_t hyphen = text_[at_++] == '-' ? 1 : 0;
      return 1 + letters_before_ * 2 + hyphen;
    }
    return 0;
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t letters_before_ = 0;
};

int CompareAccents(std::string_view a, std::string_view b) {
  Letters in_a(a), in_b(b);
  while (in_a.Next() != 0 && in_b.Next() != 0) {
    if (const int order = Order(in_a.Accent(), in_b.Accent())) return order;
  }
  return 0;
}

int CompareMarks(std::string_view a, std::string_view b) {
  Marks in_a(a), in_b(b);
  for (;;) {
    const std::size_t mark_a = in_a.Next();
    const std::size_t mark_b = in_b.Next();
    if (const int order = Order(mark_a, mark_b)) return order;
    if (mark_a == 0) return 0;
  }
}

}  // namespace

int CompareText(std::string_view a, std::string_view b) {
  Letters in_a(a), in_b(b);
  for (;;) {
    const std::uint8_t weight_a = in_a.Next();
    const std::uint8_t weight_b = in_b.Next();
    if (const int order = Order(weight_a, weight_b)) return order;
    if (weight_a == 0) break;
  }
  if (a == b) return 0;
  if (const int order = CompareAccents(a, b)) return order;
  return CompareMarks(a, b);
}

void SortTexts(std::vector<std::string>& texts) {
  std::stable_sort(texts.begin(), texts.end(), [](const std::string& a, const std::string& b) {
    return CompareText(a, b) < 0;
  });
}

}  // namespace base
