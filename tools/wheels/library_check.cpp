#include "tools/wheels/library_check.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>

#include "base/language/error.h"
#include "base/language/text.h"
#include "tools/wheels/design.h"
#include "wheels/wheel_library.h"

namespace wheels::tool {
namespace {

using base::Profile;

// The reader counts wheels in 16 bits.
constexpr int kMostWheels = std::numeric_limits<std::int16_t>::max();
// One wheel tells no more than this of itself.
constexpr std::size_t kMostProblems = 8;
constexpr std::size_t kLongestQuote = 60;

// A value in a message: of bearable length, and only what a terminal can show.
std::string Quoted(std::string_view value) {
  std::string text(value.substr(0, kLongestQuote));
  for (char& c : text) {
    if (c < ' ' || c > '~') c = '?';
  }
  return "\"" + text + (value.size() > kLongestQuote ? "..." : "") + "\"";
}

// Checks one section.
class WheelCheck {
 public:
  WheelCheck(const Profile& library, int ordinal)
      : library_(library), section_(std::to_string(ordinal)), name_(Value("Wheelname")) {}

  bool IsThere() const {
    constexpr const char* kKeys[] = {"Wheelname", "pick", "pool", "match", "combos", "tickets"};
    return std::any_of(std::begin(kKeys), std::end(kKeys),
                       [this](const char* key) { return !Value(key).empty(); });
  }

  void Run() {
    const std::optional<int> pick = Count("pick");
    const std::optional<int> pool = Count("pool");
    const std::optional<int> match = Count("match");
    const std::optional<int> combos = Count("combos");
    const std::optional<int> tickets = Count("tickets");
    if (name_.empty()) Add("has no Wheelname");
    if (!pick || !pool || !match) return;
    const Shape shape{*match, *pick, *pool};
    if (!IsPossible(shape)) {
      Add("cannot be: match " + std::to_string(*match) + ", pick " + std::to_string(*pick) +
          ", pool " + std::to_string(*pool));
      return;
    }
    if (combos && *combos != Choose(*pool, *match)) {
      Add("has " + std::to_string(Choose(*pool, *match)) +
          " combinations to cover, but combos says " + std::to_string(*combos));
    }
    if (!name_.empty()) CheckName(shape, tickets);
    if (tickets) CheckLines(shape, *tickets);
  }

  long Lines() const { return lines_; }
  std::vector<std::string> Problems() const {
    const std::string wheel =
        "wheel " + section_ + (name_.empty() ? "" : " " + Quoted(name_)) + " ";
    std::vector<std::string> problems;
    for (const std::string& problem : problems_) {
      if (problems.size() == kMostProblems) {
        problems.push_back(wheel + "has " + std::to_string(problems_.size() - kMostProblems) +
                           " more problems");
        break;
      }
      problems.push_back(wheel + problem);
    }
    return problems;
  }

 private:
  std::string Value(const std::string& key) const { return library_.Value(section_, key); }
  void Add(const std::string& problem) { problems_.push_back(problem); }

  std::optional<int> Count(const std::string& key) {
    const std::string value = Value(key);
    const std::optional<int> count = ReadCount(value);
    if (value.empty()) {
      Add("has no " + key);
    } else if (!count) {
      Add("has " + Quoted(value) + " as " + key + ", which is no plain number");
    }
    return count;
  }

  // What the name says must be what the wheel is. The pool stands where the reader looks for it.
  void CheckName(const Shape& shape, std::optional<int> tickets) {
    const std::size_t bracket = name_.find(']');
    if (bracket == std::string::npos) {
      Add("has no \"]\" in its name, so its pool cannot be read");
      return;
    }
    if (PoolInName() != shape.pool) {
      Add("has " + Quoted(base::Mid(name_, bracket + 3, 2)) +
          " as the pool in its name, but is one of " + std::to_string(shape.pool));
    }
    const std::string promise =
        "[" + std::to_string(shape.match) + " of " + std::to_string(shape.pick) + "]";
    const std::string front = name_.substr(0, bracket + 1);
    if (front.find(" of ") != std::string::npos && front != promise) {
      Add("has " + Quoted(front) + " in its name, but promises " + promise);
    }
    CheckLineCountInName(tickets);
  }

  std::optional<int> PoolInName() const {
    try {
      return PoolOfName(name_);
    } catch (const base::Error&) {
      return {};
    }
  }

  void CheckLineCountInName(std::optional<int> tickets) {
    const std::size_t end = name_.find(" line");
    if (end == std::string::npos || !tickets) return;
    const std::size_t blank = name_.find_last_of(' ', end - 1);
    const std::size_t start = blank == std::string::npos ? 0 : blank + 1;
    const std::string count = name_.substr(start, end - start);
    if (ReadCount(count) != tickets) {
      Add("has " + Quoted(count) + " lines in its name, but tickets says " +
          std::to_string(*tickets));
    }
  }

  void CheckLines(const Shape& shape, int tickets) {
    if (tickets < 1 || tickets > kMostLines) {
      Add("has " + std::to_string(tickets) + " as tickets, outside 1 to " +
          std::to_string(kMostLines));
      return;
    }
    Design design{shape, {}};
    bool all_read = true;
    for (int line = 1; line <= tickets; ++line) {
      const std::string value = Value(std::to_string(line));
      const std::optional<Places> places = ReadPlaces(value);
      if (!places) Add("has a line " + std::to_string(line) + " that is none: " + Quoted(value));
      all_read = all_read && places.has_value();
      design.lines.push_back(places.value_or(Places()));
    }
    if (!Value(std::to_string(tickets + 1)).empty()) {
      Add("has a line " + std::to_string(tickets + 1) + " beyond its tickets");
    }
    if (!all_read) return;
    lines_ = tickets;
    for (const std::string& flaw : Flaws(design)) Add(flaw);
  }

  const Profile& library_;
  const std::string section_;
  const std::string name_;
  long lines_ = 0;
  std::vector<std::string> problems_;
};

// Wheels that are not there, as one message for those in a row.
std::string Missing(int first, int last) {
  return first == last
             ? "wheel " + std::to_string(first) + " is missing"
             : "wheels " + std::to_string(first) + " to " + std::to_string(last) + " are missing";
}

// How many sections to look at, with what is wrong with wheelcount.
int CountedWheels(const Profile& library, std::vector<std::string>& problems) {
  const std::string value = library.Value("Wheels", "wheelcount");
  const std::optional<int> count = ReadCount(value);
  if (value.empty()) {
    problems.emplace_back("there is no wheelcount in a section [Wheels]");
  } else if (!count || *count > kMostWheels) {
    problems.push_back("wheelcount is " + Quoted(value) + ", which is no plain number up to " +
                       std::to_string(kMostWheels));
  } else if (*count == 0) {
    problems.emplace_back("wheelcount is 0");
  }
  return std::min(count.value_or(0), kMostWheels);
}

}  // namespace

LibraryCheck CheckLibrary(const Profile& library) {
  LibraryCheck result;
  const int count = CountedWheels(library, result.problems);
  int first_missing = 0;
  for (int ordinal = 1; ordinal <= count + 1; ++ordinal) {
    WheelCheck wheel(library, ordinal);
    const bool is_there = wheel.IsThere();
    const bool is_counted = ordinal <= count;
    if (first_missing > 0 && (is_there || !is_counted)) {
      result.problems.push_back(Missing(first_missing, ordinal - 1));
      first_missing = 0;
    }
    if (is_there && !is_counted) {
      result.problems.push_back("wheel " + std::to_string(ordinal) + " lies beyond wheelcount");
    } else if (is_there) {
      wheel.Run();
      ++result.wheels;
      result.lines += wheel.Lines();
      for (std::string& problem : wheel.Problems()) result.problems.push_back(std::move(problem));
    } else if (is_counted && first_missing == 0) {
      first_missing = ordinal;
    }
  }
  return result;
}

}  // namespace wheels::tool
