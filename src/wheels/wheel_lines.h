#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// From a line of places to a line of tickets.

namespace wheels {

// At most `most` pieces between the blanks, the last one with all that is left. An empty text has
// no piece.
std::vector<std::string> PiecesAtBlanks(std::string_view text, std::size_t most);

// The text with the first `most` occurrences of `from` replaced, letters compared without case.
std::string ReplaceFirst(std::string text, std::string_view from, std::string_view to, int most);

// A wheel line with its commas, at most 20, turned into blanks.
std::string SortValues(std::string line);

// A line of places as a line of the numbers that stand at these places, each with a blank behind.
// `numbers` holds place 1 first; a piece that names no place adds nothing.
std::string ConvertToUserNumbers(std::string_view line, std::span<const std::string> numbers);

// A cell: trimmed, a single character with "0" before it, and one blank behind.
std::string AddToLenght(std::string_view cell);

// The cells of a line of numbers, at most 8, each through AddToLenght. A line of fewer than two
// numbers has none.
std::vector<std::string> CellsOf(std::string_view line);

// The cells as the printed wheel has them, each behind a tab.
std::string TabbedLine(const std::vector<std::string>& cells);

}  // namespace wheels
