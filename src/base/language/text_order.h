#pragma once

#include <string>
#include <string_view>
#include <vector>

// The order of sorted lists.

namespace base {

// -1, 0 or 1 as a stands before, level with or behind b. Blank and tab weigh less than punctuation,
// punctuation less than digits, digits less than letters; case makes no difference. Accents count
// only between texts that are equal without them, and "-" and "'" only between texts that are equal
// otherwise: the text without them stands first.
int CompareText(std::string_view a, std::string_view b);

// Sorts by CompareText; texts that stand level keep their order.
void SortTexts(std::vector<std::string>& texts);

}  // namespace base
