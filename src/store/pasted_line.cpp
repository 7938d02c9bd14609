#include "store/pasted_line.h"

#include <vector>

#include "base/language/text.h"

namespace store {
namespace {

constexpr std::string_view kLetters = "qwertyuiopasdfghjklzxcvbnm";
constexpr std::string_view kSymbols = "[]{}\xA3$!%^&*()+-=";
constexpr std::size_t kFewestParts = 3;
constexpr std::size_t kShortestDate = 7;

// Four, then three, then two blanks become one, one pass each.
std::string ShortenBlanks(std::string text) {
  for (const char* blanks : {"    ", "   ", "  "}) text = base::ReplaceAll(text, blanks, " ");
  return std::string(base::Trim(text));
}

std::vector<std::string> Parts(std::string_view line) {
  std::vector<std::string> parts;
  for (const char* separator : {" ", ",", "\t"}) {
    parts = base::Split(line, separator);
    if (parts.size() >= kFewestParts) break;
  }
  return parts;
}

std::size_t DatePosition(const std::vector<std::string>& parts, base::DateOrder order) {
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (parts[i].size() >= kShortestDate && base::IsDate(parts[i], order)) return i;
  }
  return 0;
}

// Which balls a line has, by the place of its date.
struct Layout {
  std::size_t first_part;
  std::size_t balls;
};

Layout LayoutFor(std::size_t date_position) {
  switch (date_position) {
    case 0:
      return {1, 7};
    case 4:
    case 5:
    case 6:
    case 7:
      return {0, date_position};
    default:
      return {0, 0};
  }
}

}  // namespace

std::string StripLetters(std::string_view text) {
  std::string result = base::Lower(text);
  std::erase_if(result, [](char c) { return kLetters.find(c) != std::string_view::npos; });
  return ShortenBlanks(result);
}

std::string StripSymbols(std::string_view text) {
  std::string result = base::Lower(text);
  result = base::ReplaceAll(result, "\x03 \x02", " ");
  result = base::ReplaceAll(result, "\x02 \x02", " ");
  result = base::ReplaceAll(result, "\x02", ",");
  result = base::ReplaceAll(result, "\x03 ,", ",");
  result = base::ReplaceAll(result, "\x03", " ");
  result = base::ReplaceAll(result, ",", " ");
  for (const char symbol : kSymbols) {
    result = base::ReplaceAll(result, std::string_view(&symbol, 1), " ");
  }
  return ShortenBlanks(result);
}

std::string StripControls(std::string_view text) {
  std::string result = base::ReplaceAll(std::string(text), "\x08", base::kLineBreak);
  result = base::ReplaceAll(result, "\t", " ");
  // A line break that is one already gains a second carriage return.
  for (const char* mark : {"\n", "\v", "\f"}) {
    result = base::ReplaceAll(result, mark, base::kLineBreak);
  }
  return ShortenBlanks(base::Lower(result));
}

PastedLine TakeApart(std::string_view cleaned, base::DateOrder order) {
  const std::vector<std::string> parts = Parts(cleaned);
  PastedLine line;
  if (parts.empty()) return line;
  const std::size_t date_position = parts.size() < kFewestParts ? 0 : DatePosition(parts, order);
  line.date_part = parts[date_position];
  const Layout layout = LayoutFor(date_position);
  for (std::size_t k = 0; k < layout.balls; ++k) {
    const std::size_t part = layout.first_part + k;
    if (part < parts.size()) line.balls[k] = parts[part];
  }
  return line;
}

}  // namespace store
