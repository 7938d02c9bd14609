#include "tools/wheels/design.h"

#include <algorithm>
#include <limits>
#include <map>

#include "base/language/text.h"

namespace wheels::tool {
namespace {

constexpr std::string_view kSeparators = " ,\t\r";
constexpr std::size_t kMostDigits = 6;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Takes `prefix` and the number behind it from the front of the text.
std::optional<int> TakeNumber(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return {};
  text.remove_prefix(prefix.size());
  const std::size_t digits =
      static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsDigit) - text.begin());
  // Pools are written in two digits, so that the files stand in order.
  const std::string_view number = text.substr(0, digits);
  text.remove_prefix(digits);
  return ReadCount(number.size() == 2 && number.front() == '0' ? number.substr(1) : number);
}

// What is wrong with one line by itself; empty when nothing is.
std::string FlawOfLine(const Places& line, const Shape& shape) {
  if (line.size() != static_cast<std::size_t>(shape.pick)) {
    return "has " + std::to_string(line.size()) + " places, not " + std::to_string(shape.pick);
  }
  for (const int place : line) {
    if (place < 1 || place > shape.pool) {
      return "has the place " + std::to_string(place) + ", outside 1 to " +
             std::to_string(shape.pool);
    }
  }
  const auto twin = std::adjacent_find(line.begin(), line.end());
  return twin == line.end() ? "" : "has the place " + std::to_string(*twin) + " twice";
}

}  // namespace

bool IsPossible(const Shape& shape) {
  return 1 <= shape.match && shape.match < shape.pick && shape.pick <= shape.pool &&
         shape.pool <= kLargestPool &&
         Choose(shape.pool, shape.match) <= std::numeric_limits<std::int16_t>::max();
}

std::optional<int> ReadCount(std::string_view text) {
  const bool plain =
      !text.empty() && text.size() <= kMostDigits && std::all_of(text.begin(), text.end(), IsDigit);
  if (!plain || (text.size() > 1 && text.front() == '0')) return {};
  return std::stoi(std::string(text));
}

std::optional<Places> ReadPlaces(std::string_view text) {
  Places places;
  while (true) {
    const std::size_t start = text.find_first_not_of(kSeparators);
    if (start == std::string_view::npos) return places;
    const std::size_t end = std::min(text.find_first_of(kSeparators, start), text.size());
    const std::optional<int> place = ReadCount(text.substr(start, end - start));
    if (!place) return {};
    places.push_back(*place);
    text.remove_prefix(end);
  }
}

std::string DesignFileName(const Shape& shape) {
  return "pick" + std::to_string(shape.pick) + "-match" + std::to_string(shape.match) + "-pool" +
         (shape.pool < 10 ? "0" : "") + std::to_string(shape.pool) + ".txt";
}

Shape ShapeOfFileName(const std::string& name) {
  std::string_view rest = name;
  const std::optional<int> pick = TakeNumber(rest, "pick");
  const std::optional<int> match = TakeNumber(rest, "-match");
  const std::optional<int> pool = TakeNumber(rest, "-pool");
  if (!pick || !match || !pool || rest != ".txt") {
    throw WrongInput(name + " is not named like pick6-match3-pool10.txt");
  }
  const Shape shape{*match, *pick, *pool};
  if (!IsPossible(shape)) {
    throw WrongInput(name +
                     " is no possible wheel: match below pick, pick within the pool, pool "
                     "at most " +
                     std::to_string(kLargestPool));
  }
  return shape;
}

Design ReadDesign(const std::string& name, std::string_view text) {
  Design design{ShapeOfFileName(name), {}};
  int number = 0;
  for (const std::string& line : base::Split(text, "\n")) {
    ++number;
    const std::optional<Places> places = ReadPlaces(line);
    if (!places)
      throw WrongInput(name + ", line " + std::to_string(number) + ": no line of places");
    if (!places->empty()) design.lines.push_back(*places);
  }
  Sort(design);
  return design;
}

std::string DesignText(const Design& design) {
  std::string text;
  for (const Places& line : design.lines) text += PlacesText(line) + '\n';
  return text;
}

void Sort(Design& design) {
  for (Places& line : design.lines) std::sort(line.begin(), line.end());
  std::sort(design.lines.begin(), design.lines.end());
}

std::string PlacesText(const Places& places) {
  std::string text;
  for (const int place : places) text += (text.empty() ? "" : " ") + std::to_string(place);
  return text;
}

std::vector<std::string> Flaws(const Design& design) {
  std::vector<std::string> flaws;
  CoverProof proof(design.shape.pool, design.shape.match);
  std::map<Places, int> numbers;  // of the lines by their places
  int number = 0;
  for (Places line : design.lines) {
    const std::string name = "line " + std::to_string(++number) + " ";
    std::sort(line.begin(), line.end());
    const std::string flaw = FlawOfLine(line, design.shape);
    if (!flaw.empty()) {
      flaws.push_back(name + flaw);
      continue;
    }
    const auto [first, is_new] = numbers.emplace(line, number);
    if (!is_new) flaws.push_back(name + "repeats line " + std::to_string(first->second));
    if (is_new) proof.Add(line);
  }
  const Places uncovered = proof.FirstUncovered();
  if (!uncovered.empty()) flaws.push_back("no line holds the places " + PlacesText(uncovered));
  return flaws;
}

}  // namespace wheels::tool
