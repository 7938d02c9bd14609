// The delivered wheels, each proved by the desk's own reading of the library.

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "base/host/host_file_system.h"
#include "base/host/host_paths.h"
#include "base/host/profile.h"
#include "base/language/text.h"
#include "support/temp_folder.h"
#include "tools/wheels/commands.h"
#include "tools/wheels/design.h"
#include "wheels/covering.h"
#include "wheels/wheel_library.h"

namespace wheels {
namespace {

namespace fs = std::filesystem;

constexpr const char* kLibrary = DESK_TEST_DATA "/wheels/wheels.ini";
constexpr const char* kDesigns = DESK_TEST_DATA "/wheels/designs";
constexpr int kWheels = 71;

std::string ReadFile(const std::string& path) {
  return base::HostFileSystem().ReadAll(base::ToDeskPath(path));
}

// One section of the library.
struct Section {
  const base::Profile& library;
  std::string name;
  std::string Text(const std::string& key) const { return library.Value(name, key); }
  int Number(const std::string& key) const { return std::stoi(Text(key)); }
};

class DeliveredLibrary : public testing::Test {
 protected:
  Section Wheel(int ordinal) const { return {library_, std::to_string(ordinal)}; }

  const base::Profile library_{ReadFile(kLibrary)};
};

// Splits at single blanks: anything else in a line would not be a number.
Places Line(const std::string& text) {
  Places line;
  for (const std::string& place : base::Split(text, " ")) line.push_back(std::stoi(place));
  return line;
}

TEST_F(DeliveredLibrary, CoversAllThatItPromises) {
  ASSERT_EQ(WheelCount(library_), kWheels);
  for (int ordinal = 1; ordinal <= kWheels; ++ordinal) {
    const Section wheel = Wheel(ordinal);
    SCOPED_TRACE(wheel.Text("Wheelname"));
    CoverProof proof(wheel.Number("pool"), wheel.Number("match"));
    std::set<Places> lines;
    for (int number = 1; number <= wheel.Number("tickets"); ++number) {
      const Places line = Line(wheel.Text(std::to_string(number)));
      ASSERT_EQ(line.size(), static_cast<std::size_t>(wheel.Number("pick")));
      ASSERT_NO_THROW(proof.Add(line)) << number;
      ASSERT_TRUE(lines.insert(line).second) << number << " is there twice";
      ASSERT_EQ(*lines.rbegin(), line) << number << " is out of order";
    }
    EXPECT_EQ(proof.FirstUncovered(), Places{});
    EXPECT_EQ(proof.Covered(), wheel.Number("combos"));
    EXPECT_GE(wheel.Number("tickets"),
              LeastLines(wheel.Number("pool"), wheel.Number("pick"), wheel.Number("match")));
  }
}

TEST_F(DeliveredLibrary, NamesEachWheelAsItIs) {
  for (int ordinal = 1; ordinal <= kWheels; ++ordinal) {
    const Section wheel = Wheel(ordinal);
    const std::string name = wheel.Text("Wheelname");
    EXPECT_EQ(name, "[" + wheel.Text("match") + " of " + wheel.Text("pick") + "] " +
                        wheel.Text("pool") + " numbers, " + wheel.Text("tickets") + " lines");
    EXPECT_EQ(PoolOfName(name), wheel.Number("pool")) << name;
  }
}

TEST_F(DeliveredLibrary, StandsInOrderOfMatchPickAndPool) {
  std::tuple<int, int, int> last;
  for (int ordinal = 1; ordinal <= kWheels; ++ordinal) {
    const Section wheel = Wheel(ordinal);
    const std::tuple shape{wheel.Number("match"), wheel.Number("pick"), wheel.Number("pool")};
    EXPECT_LT(last, shape) << wheel.Text("Wheelname");
    last = shape;
  }
}

// What the two choosers of the wizard offer: match 3 to 5, pick above it up to 6.
TEST_F(DeliveredLibrary, HasWheelsForEachChoice) {
  for (int match = 3; match <= 5; ++match) {
    for (int pick = match + 1; pick <= 6; ++pick) {
      int wheels = 0;
      WheelNames(library_, static_cast<std::int16_t>(pick), std::to_string(match),
                 [&](const std::string&) { ++wheels; });
      EXPECT_GE(wheels, 7) << match << " of " << pick;
    }
  }
}

TEST_F(DeliveredLibrary, HasTheLinesOfTheDesigns) {
  for (int ordinal = 1; ordinal <= kWheels; ++ordinal) {
    const Section wheel = Wheel(ordinal);
    const std::string name =
        tool::DesignFileName({wheel.Number("match"), wheel.Number("pick"), wheel.Number("pool")});
    std::string lines;
    for (int number = 1; number <= wheel.Number("tickets"); ++number) {
      lines += wheel.Text(std::to_string(number)) + "\n";
    }
    EXPECT_EQ(lines, ReadFile(std::string(kDesigns) + "/" + name)) << name;
  }
}

TEST_F(DeliveredLibrary, IsWhatTheDesignsMake) {
  const test::TempFolder folder;
  const std::string made = folder.Path() + "/wheels.ini";
  std::ostringstream out;
  std::ostringstream err;
  ASSERT_EQ(tool::Build({kDesigns, made}, out, err), 0) << err.str();
  EXPECT_TRUE(ReadFile(made) == ReadFile(kLibrary)) << "make it anew: wheels build " << kDesigns;
  EXPECT_EQ(out.str(), "71 wheels, 4311 lines\n");
}

}  // namespace
}  // namespace wheels
