#include <chrono>
#include <cstdint>
#include <limits>
#include <optional>
#include <ostream>

#include "base/host/host_file_system.h"
#include "base/host/host_paths.h"
#include "tools/wheels/commands.h"
#include "tools/wheels/design.h"
#include "tools/wheels/point_extension.h"
#include "tools/wheels/program.h"
#include "tools/wheels/search_plan.h"

namespace wheels::tool {
namespace {

constexpr int kDefaultSeconds = 10;

struct Options {
  Shape shape;
  int seconds = kDefaultSeconds;
  long steps = std::numeric_limits<long>::max();
  std::uint64_t seed = 1;
  std::string from;
};

int Number(const std::string& text) {
  const std::optional<int> number = ReadCount(text);
  if (!number) throw WrongInput("\"" + text + "\" is no plain number");
  return *number;
}

void ReadOption(const std::string& name, const std::string& value, Options& options) {
  if (name == "--from") {
    options.from = value;
  } else if (name == "--seconds") {
    options.seconds = Number(value);
  } else if (name == "--seed") {
    options.seed = static_cast<std::uint64_t>(Number(value));
  } else if (name == "--steps") {
    options.steps = Number(value);
  } else {
    throw WrongInput("there is no option " + name);
  }
}

Options ReadOptions(const Arguments& arguments) {
  constexpr std::size_t kNumbers = 3;
  if (arguments.size() < kNumbers || arguments.size() % 2 == 0) {
    throw WrongInput("search takes POOL PICK MATCH and options with a value each");
  }
  Options options;
  options.shape = {Number(arguments[2]), Number(arguments[1]), Number(arguments[0])};
  if (!IsPossible(options.shape)) throw WrongInput("there can be no such wheel");
  for (std::size_t i = kNumbers; i < arguments.size(); i += 2) {
    ReadOption(arguments[i], arguments[i + 1], options);
  }
  return options;
}

// The design in a file, under whatever name, which must be a wheel of the shape.
Masks GivenLines(const Options& options) {
  const std::string text = base::HostFileSystem().ReadAll(base::ToDeskPath(options.from));
  const Design design = ReadDesign(DesignFileName(options.shape), text);
  const std::vector<std::string> flaws = Flaws(design);
  if (!flaws.empty()) throw WrongInput(options.from + ": " + flaws.front());
  return ToMasks(design);
}

}  // namespace

int Search(const Arguments& arguments, std::ostream& out, std::ostream& err) {
  const Options options = ReadOptions(arguments);
  Chance chance(options.seed);
  Budget budget(options.steps, std::chrono::seconds(options.seconds));
  const Masks start =
      options.from.empty() ? FirstLines(options.shape, chance, budget) : GivenLines(options);
  const Found found = LookForFewer(options.shape, start, chance, budget);
  const Design design = ToDesign(options.shape, found.lines);
  const std::vector<std::string> flaws = Flaws(design);
  for (const std::string& flaw : flaws) err << flaw << '\n';
  if (!flaws.empty()) return kFlawed;
  out << DesignText(design);
  err << DesignFileName(options.shape) << ": " << design.lines.size() << " lines (" << found.way
      << ", from " << start.size() << ", none below "
      << LeastLines(options.shape.pool, options.shape.pick, options.shape.match) << ")\n";
  return kDone;
}

}  // namespace wheels::tool
