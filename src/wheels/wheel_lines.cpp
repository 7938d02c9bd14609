#include "wheels/wheel_lines.h"

#include "base/language/numbers.h"
#include "base/language/text.h"

namespace wheels {
namespace {

constexpr int kMostCommas = 20;
constexpr std::size_t kMostPlaces = 20;
constexpr std::size_t kMostCells = 8;

}  // namespace

std::vector<std::string> PiecesAtBlanks(std::string_view text, std::size_t most) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  std::size_t blank = text.find(' ');
  while (blank != std::string_view::npos && pieces.size() + 1 < most) {
    pieces.emplace_back(text.substr(0, blank));
    text.remove_prefix(blank + 1);
    blank = text.find(' ');
  }
  pieces.emplace_back(text);
  return pieces;
}

std::string ReplaceFirst(std::string text, std::string_view from, std::string_view to, int most) {
  const std::string wanted = base::Lower(from);
  std::size_t place = 0;
  for (int n = 0; n < most; ++n) {
    place = base::Lower(text).find(wanted, place);
    if (place == std::string::npos) break;
    text.replace(place, from.size(), to);
    place += to.size();
  }
  return text;
}

std::string SortValues(std::string line) {
  return ReplaceFirst(std::move(line), ",", " ", kMostCommas);
}

std::string ConvertToUserNumbers(std::string_view line, std::span<const std::string> numbers) {
  std::string converted;
  for (const std::string& piece : PiecesAtBlanks(base::Trim(line), kMostPlaces)) {
    const double place = base::NumericValue(piece);
    for (std::size_t p = 0; p < numbers.size(); ++p) {
      if (place != static_cast<double>(p + 1)) continue;
      converted += numbers[p] + " ";
      break;
    }
  }
  return converted;
}

std::string AddToLenght(std::string_view cell) {
  const std::string_view trimmed = base::Trim(cell);
  return (trimmed.size() == 1 ? "0" : "") + std::string(trimmed) + " ";
}

std::vector<std::string> CellsOf(std::string_view line) {
  std::vector<std::string> cells = PiecesAtBlanks(base::Trim(line), kMostCells);
  if (cells.size() < 2) return {};
  for (std::string& cell : cells) cell = AddToLenght(cell);
  return cells;
}

std::string TabbedLine(const std::vector<std::string>& cells) {
  std::string line;
  for (const std::string& cell : cells) line += "\t" + cell;
  return line;
}

}  // namespace wheels
