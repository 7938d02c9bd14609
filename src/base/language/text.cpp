#include "base/language/text.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/language/error.h"

namespace base {

namespace {

using LetterTable = std::array<char, 256>;

// Capitals of Windows-1252 beyond ASCII; the small letter of each is `distance` further on.
struct LetterRun {
  int first;
  int last;
  int distance;
};
constexpr LetterRun kLetterRuns[] = {
    {'A', 'Z', 0x20},   {0xC0, 0xD6, 0x20}, {0xD8, 0xDE, 0x20}, {0x8A, 0x8A, 0x10},
    {0x8C, 0x8C, 0x10}, {0x8E, 0x8E, 0x10}, {0x9F, 0x9F, 0x60},
};

constexpr LetterTable MakeTable(bool to_lower) {
  LetterTable table{};
  for (int c = 0; c < 256; ++c) table[static_cast<std::size_t>(c)] = static_cast<char>(c);
  for (const LetterRun& run : kLetterRuns) {
    for (int capital = run.first; capital <= run.last; ++capital) {
      const int small = capital + run.distance;
      const int from = to_lower ? capital : small;
      const int to = to_lower ? small : capital;
      table[static_cast<std::size_t>(from)] = static_cast<char>(to);
    }
  }
  return table;
}

constexpr LetterTable kLower = MakeTable(true);
constexpr LetterTable kUpper = MakeTable(false);

char LowerOf(char c) { return kLower[static_cast<unsigned char>(c)]; }

std::string Mapped(std::string_view text, const LetterTable& table) {
  std::string result(text);
  for (char& c : result) c = table[static_cast<unsigned char>(c)];
  return result;
}

// `searched` and `from` are in the same case; what is not replaced comes from `text`.
std::string Replaced(std::string text, std::string_view searched, std::string_view from,
                     std::string_view to) {
  std::size_t found = from.empty() ? std::string_view::npos : searched.find(from);
  if (found == std::string_view::npos) return text;
  std::string result;
  result.reserve(text.size());
  std::size_t at = 0;
  while (found != std::string_view::npos) {
    result.append(text, at, found - at);
    result += to;
    at = found + from.size();
    found = searched.find(from, at);
  }
  result.append(text, at);
  return result;
}

}  // namespace

std::string Left(std::string_view text, std::size_t n) { return std::string(text.substr(0, n)); }

std::string Right(std::string_view text, std::size_t n) {
  return std::string(text.substr(text.size() - std::min(n, text.size())));
}

std::string Mid(std::string_view text, std::size_t start, std::size_t n) {
  if (start == 0) throw Error(kInvalidCall);
  if (start > text.size()) return {};
  return std::string(text.substr(start - 1, n));
}

std::string_view Trim(std::string_view text, std::string_view blanks) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string Lower(std::string_view text) { return Mapped(text, kLower); }
std::string Upper(std::string_view text) { return Mapped(text, kUpper); }

bool EqualNoCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return LowerOf(x) == LowerOf(y);
         });
}

std::string ReplaceAll(std::string text, std::string_view from, std::string_view to) {
  const std::string searched = text;
  return Replaced(std::move(text), searched, from, to);
}

std::string ReplaceAllNoCase(std::string text, std::string_view from, std::string_view to) {
  const std::string searched = Lower(text);
  return Replaced(std::move(text), searched, Lower(from), to);
}

std::string UpToFirst(std::string_view text, char end) {
  return std::string(text.substr(0, text.find(end)));
}

std::string UpToLast(std::string_view text, char end) {
  return std::string(text.substr(0, text.rfind(end)));
}

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  std::size_t at = 0;
  std::size_t found = separator.empty() ? std::string_view::npos : text.find(separator);
  while (found != std::string_view::npos) {
    pieces.emplace_back(text.substr(at, found - at));
    at = found + separator.size();
    found = text.find(separator, at);
  }
  pieces.emplace_back(text.substr(at));
  return pieces;
}

}  // namespace base
