#include "tools/wheels/library_text.h"

#include <algorithm>

#include "base/language/text.h"

namespace wheels::tool {
namespace {

std::string KeyLine(const std::string& key, const std::string& value) {
  return key + "=" + value + std::string(base::kLineBreak);
}

std::string Section(int ordinal, const Design& design) {
  const Shape& shape = design.shape;
  std::string text = "[" + std::to_string(ordinal) + "]" + std::string(base::kLineBreak);
  text += KeyLine("Wheelname", WheelName(design));
  text += KeyLine("pick", std::to_string(shape.pick));
  text += KeyLine("pool", std::to_string(shape.pool));
  text += KeyLine("match", std::to_string(shape.match));
  text += KeyLine("combos", std::to_string(Choose(shape.pool, shape.match)));
  text += KeyLine("tickets", std::to_string(design.lines.size()));
  int line = 0;
  for (const Places& places : design.lines) {
    text += KeyLine(std::to_string(++line), PlacesText(places));
  }
  return text;
}

}  // namespace

std::string WheelName(const Design& design) {
  return "[" + std::to_string(design.shape.match) + " of " + std::to_string(design.shape.pick) +
         "] " + std::to_string(design.shape.pool) + " numbers, " +
         std::to_string(design.lines.size()) + (design.lines.size() == 1 ? " line" : " lines");
}

std::string LibraryText(std::vector<Design> designs) {
  std::sort(designs.begin(), designs.end(),
            [](const Design& a, const Design& b) { return a.shape < b.shape; });
  std::string text = "[Wheels]" + std::string(base::kLineBreak);
  text += KeyLine("wheelcount", std::to_string(designs.size()));
  int ordinal = 0;
  for (const Design& design : designs) {
    text += std::string(base::kLineBreak) + Section(++ordinal, design);
  }
  return text;
}

}  // namespace wheels::tool
