#include "tools/wheels/program.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "base/host/host_file_system.h"
#include "base/host/host_paths.h"
#include "base/language/text.h"
#include "support/temp_folder.h"
#include "tools/wheels/commands.h"
#include "tools/wheels/design.h"
#include "tools/wheels/library_text.h"

namespace wheels::tool {
namespace {

struct Ran {
  int status = 0;
  std::string out;
  std::string err;
};

Ran Wheels(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  const int status = RunProgram(arguments, out, err);
  return {status, out.str(), err.str()};
}

class WheelsProgram : public testing::Test {
 protected:
  std::string Write(const std::string& name, const std::string& text) const {
    const std::string path = folder_.Path() + "/" + name;
    base::HostFileSystem().Replace(base::ToDeskPath(path), text);
    return path;
  }
  std::string Read(const std::string& name) const {
    return base::HostFileSystem().ReadAll(base::ToDeskPath(folder_.Path() + "/" + name));
  }
  Ran Check(const std::string& library) const {
    return Wheels({"check", Write("library.ini", library)});
  }

  const test::TempFolder folder_;
};

// Three of four balls out of a pool of five.
const std::string kDesign = "1 2 3 4\n1 2 3 5\n1 2 4 5\n2 3 4 5\n";
const std::string kLibrary =
    "[Wheels]\r\nwheelcount=1\r\n\r\n[1]\r\nWheelname=[3 of 4] 5 numbers, 4 lines\r\npick=4\r\n"
    "pool=5\r\nmatch=3\r\ncombos=10\r\ntickets=4\r\n1=1 2 3 4\r\n2=1 2 3 5\r\n3=1 2 4 5\r\n"
    "4=2 3 4 5\r\n";

TEST_F(WheelsProgram, TellsHowToCallIt) {
  EXPECT_EQ(Wheels({"--help"}).status, kDone);
  EXPECT_TRUE(Wheels({"--help"}).out.starts_with("Usage: wheels build "));
  for (const Arguments& arguments : {Arguments{}, Arguments{"spin"}}) {
    EXPECT_EQ(Wheels(arguments).status, kWrongCall);
    EXPECT_TRUE(Wheels(arguments).err.starts_with("Usage: wheels build "));
  }
}

TEST_F(WheelsProgram, BuildsALibraryFromDesigns) {
  Write("pick4-match3-pool05.txt", kDesign);
  const Ran ran = Wheels({"build", folder_.Path(), folder_.Path() + "/wheels.ini"});
  EXPECT_EQ(ran.status, kDone) << ran.err;
  EXPECT_EQ(ran.out, "1 wheels, 4 lines\n");
  EXPECT_EQ(Read("wheels.ini"), kLibrary);
}

TEST_F(WheelsProgram, BuildsTheSameFromLinesInAnyOrder) {
  Write("pick4-match3-pool05.txt", "5 1 2 3\r\n\r\n5,4,3,2\r\n  1 2  4 5\r\n4 3 2 1");
  EXPECT_EQ(Wheels({"build", folder_.Path(), folder_.Path() + "/wheels.ini"}).err, "");
  EXPECT_EQ(Read("wheels.ini"), kLibrary);
}

TEST_F(WheelsProgram, PutsWheelsInOrderOfMatchPickAndPool) {
  const std::vector<Shape> shapes{{4, 5, 5}, {3, 6, 6}, {3, 5, 10}, {3, 5, 9}, {3, 4, 20}};
  std::vector<Design> designs;
  for (const Shape& shape : shapes) designs.push_back({shape, {}});
  const std::string text = LibraryText(designs);
  std::size_t last = 0;
  for (const char* name :
       {"[3 of 4] 20", "[3 of 5] 9", "[3 of 5] 10", "[3 of 6] 6", "[4 of 5] 5"}) {
    const std::size_t place = text.find(name);
    ASSERT_NE(place, std::string::npos) << name;
    EXPECT_LT(last, place) << name;
    last = place;
  }
}

TEST_F(WheelsProgram, BuildsNothingFromAFlawedDesign) {
  Write("pick4-match3-pool05.txt", "1 2 3 4\n1 2 3 5\n1 2 4 5\n");
  const Ran ran = Wheels({"build", folder_.Path(), folder_.Path() + "/wheels.ini"});
  EXPECT_EQ(ran.status, kFlawed);
  EXPECT_EQ(ran.err, "pick4-match3-pool05.txt: no line holds the places 3 4 5\n");
  EXPECT_FALSE(base::HostFileSystem().FileExists(base::ToDeskPath(folder_.Path() + "/wheels.ini")));
}

TEST_F(WheelsProgram, BuildsNothingFromWhatIsNoDesign) {
  const std::string out = folder_.Path() + "/wheels.ini";
  EXPECT_EQ(Wheels({"build", folder_.Path(), out}).err,
            "wheels: there are no designs in " + folder_.Path() + "\n");
  EXPECT_EQ(Wheels({"build", folder_.Path()}).status, kWrongCall);
  for (const char* name : {"notes.txt", "pick4-match3-pool5x.txt", "pick4-match4-pool05.txt",
                           "pick4-match3-pool21.txt", "pick4-match3-pool99999999999.txt"}) {
    const std::string path = Write(name, kDesign);
    EXPECT_EQ(Wheels({"build", folder_.Path(), out}).status, kWrongCall) << name;
    base::HostFileSystem().Remove(base::ToDeskPath(path));
  }
  Write("pick4-match3-pool05.txt", "1 2 3 4\n1 2 3 five\n");
  EXPECT_EQ(Wheels({"build", folder_.Path(), out}).err,
            "wheels: pick4-match3-pool05.txt, line 2: no line of places\n");
}

TEST_F(WheelsProgram, ProvesASoundLibrary) {
  const Ran ran = Check(kLibrary);
  EXPECT_EQ(ran.status, kDone) << ran.err;
  EXPECT_EQ(ran.out, "1 wheels, 4 lines: all proved\n");
}

// What the reader does not mind is no flaw.
TEST_F(WheelsProgram, ProvesALibraryInAnotherHand) {
  const struct {
    const char* from;
    std::string to;
  } changes[] = {
      {"\r\n", "\n"},
      {"4=2 3 4 5\r\n", "4=2 3 4 5"},
      {"Wheelname=[3 of 4] 5 numbers, 4 lines", "WHEELNAME = \"[small] 5\""},
      {"1=1 2 3 4", "1=4, 3, 2, 1"},
      {"1=1 2 3 4", "1=1 2 3 4" + std::string(10'000, ' ') + "beyond the end of a value"},
      {"[1]", "; one\r\n[ 1 ]\r\nauthor=me"},
  };
  for (const auto& change : changes) {
    const Ran ran = Check(base::ReplaceAll(kLibrary, change.from, change.to));
    EXPECT_EQ(ran.status, kDone) << change.to << ": " << ran.err;
  }
}

TEST_F(WheelsProgram, TellsWhatIsWrongWithALibrary) {
  const std::string wheel = "wheel 1 \"[3 of 4] 5 numbers, 4 lines\" ";
  const struct {
    const char* from;
    std::string to;
    std::string message;
  } changes[] = {
      {"wheelcount=1", "wheels=1", "there is no wheelcount in a section [Wheels]"},
      {"wheelcount=1", "wheelcount=0", "wheelcount is 0"},
      {"wheelcount=1", "wheelcount=0", "wheel 1 lies beyond wheelcount"},
      {"wheelcount=1", "wheelcount=2", "wheel 2 is missing"},
      {"wheelcount=1", "wheelcount=100000", "wheels 2 to 32767 are missing"},
      {"wheelcount=1", "wheelcount=-1", "wheelcount is \"-1\", which is no plain number"},
      {"pick=4\r\n", "", wheel + "has no pick"},
      {"pool=5", "pool=five", wheel + "has \"five\" as pool, which is no plain number"},
      {"match=3", "match=03", wheel + "has \"03\" as match, which is no plain number"},
      {"match=3", "match=4", wheel + "cannot be: match 4, pick 4, pool 5"},
      {"pool=5", "pool=21", wheel + "cannot be: match 3, pick 4, pool 21"},
      {"combos=10", "combos=9", wheel + "has 10 combinations to cover, but combos says 9"},
      {"combos=10\r\n", "", wheel + "has no combos"},
      {"tickets=4", "tickets=300", wheel + "has 300 as tickets, outside 1 to 255"},
      {"tickets=4", "tickets=3", wheel + "has a line 4 beyond its tickets"},
      {"tickets=4", "tickets=3", wheel + "has \"4\" lines in its name, but tickets says 3"},
      {"tickets=4", "tickets=5", wheel + "line 5 has 0 places, not 4"},
      {"Wheelname=[3 of 4] 5 numbers, 4 lines\r\n", "", "wheel 1 has no Wheelname"},
      {"[3 of 4] 5 numbers", "3 of 4, 5 numbers", "has no \"]\" in its name"},
      {"[3 of 4] 5 numbers", "[3 of 4] x numbers", "has \"x \" as the pool in its name"},
      {"[3 of 4] 5 numbers", "[3 of 5] 5 numbers", "has \"[3 of 5]\" in its name, but promises"},
      {"2=1 2 3 5", "2=1 2 3 4", wheel + "line 2 repeats line 1"},
      {"2=1 2 3 5", "2=1 2 3 4", wheel + "no line holds the places 1 3 5"},
      {"2=1 2 3 5", "2=1 2 3 6", wheel + "line 2 has the place 6, outside 1 to 5"},
      {"2=1 2 3 5", "2=0 2 3 5", wheel + "line 2 has the place 0, outside 1 to 5"},
      {"2=1 2 3 5", "2=1 2 2 5", wheel + "line 2 has the place 2 twice"},
      {"2=1 2 3 5", "2=1 2 3", wheel + "line 2 has 3 places, not 4"},
      {"2=1 2 3 5", "2=1 2 3 -5", wheel + "has a line 2 that is none: \"1 2 3 -5\""},
      {"2=1 2 3 5", "2=" + std::string(10'000, '1'), wheel + "has a line 2 that is none"},
      {"2=1 2 3 5", "2=1 2" + std::string(1, '\0') + "3 5", "is none: \"1 2?3 5\""},
  };
  for (const auto& change : changes) {
    const Ran ran = Check(base::ReplaceAll(kLibrary, change.from, change.to));
    EXPECT_EQ(ran.status, kFlawed) << change.message;
    EXPECT_NE(ran.err.find(change.message), std::string::npos) << change.message << "\n" << ran.err;
    EXPECT_LT(ran.err.size(), 1000u);
  }
}

TEST_F(WheelsProgram, TellsOfEachWheelThatFails) {
  std::string library = base::ReplaceAll(kLibrary, "wheelcount=1", "wheelcount=3");
  const std::string wheel = kLibrary.substr(kLibrary.find("pick=4"));
  library = base::ReplaceAll(library, "2=1 2 3 5\r\n", "2=1 2 3 4\r\n");
  library += "[2]\r\nWheelname=[x] 5\r\n" + wheel;
  library += "[3]\r\nWheelname=[y] 7\r\n" + wheel;
  const Ran ran = Check(library);
  EXPECT_EQ(ran.out, "3 wheels, 12 lines: not proved\n");
  EXPECT_NE(ran.err.find("wheel 1 "), std::string::npos);
  EXPECT_EQ(ran.err.find("wheel 2 "), std::string::npos) << ran.err;
  EXPECT_NE(ran.err.find("wheel 3 \"[y] 7\" has \"7\" as the pool in its name"), std::string::npos);
}

TEST_F(WheelsProgram, TellsOnlySomeOfManyProblems) {
  const Ran ran = Check(base::ReplaceAll(kLibrary, "tickets=4", "tickets=255"));
  EXPECT_NE(ran.err.find("has 244 more problems"), std::string::npos) << ran.err;
}

TEST_F(WheelsProgram, CannotCheckWhatItCannotRead) {
  EXPECT_EQ(Wheels({"check"}).status, kWrongCall);
  EXPECT_EQ(Wheels({"check", folder_.Path() + "/none.ini"}).status, kWrongCall);
  EXPECT_EQ(Wheels({"check", folder_.Path()}).status, kWrongCall);
  EXPECT_EQ(Check("").status, kFlawed);
}

// Whatever bytes stand in it, the check of a library ends with a verdict.
TEST_F(WheelsProgram, SurvivesDamagedLibraries) {
  std::mt19937 random(1);
  for (int round = 0; round < 500; ++round) {
    std::string library = kLibrary;
    for (int change = 0; change < 6; ++change) {
      const std::size_t at = random() % library.size();
      switch (random() % 3) {
        case 0:
          library[at] = static_cast<char>(random() % 256);
          break;
        case 1:
          library.erase(at, random() % 20);
          break;
        default:
          library.insert(at, library.substr(random() % library.size(), random() % 40));
      }
      if (library.empty()) library = "\n";
    }
    const Ran ran = Check(library);
    EXPECT_EQ(ran.err.empty(), ran.status == kDone);
    EXPECT_NE(ran.status, kWrongCall);
  }
}

TEST_F(WheelsProgram, SearchesFromNothing) {
  const Ran ran = Wheels({"search", "8", "4", "3", "--steps", "20000", "--seconds", "60"});
  EXPECT_EQ(ran.status, kDone) << ran.err;
  const Design design = ReadDesign("pick4-match3-pool08.txt", ran.out);
  EXPECT_EQ(design.lines.size(), 14u);
  EXPECT_EQ(Flaws(design), std::vector<std::string>{});
  EXPECT_TRUE(ran.err.starts_with("pick4-match3-pool08.txt: 14 lines (")) << ran.err;
}

TEST_F(WheelsProgram, SearchesOnFromADesign) {
  std::string all_lines;
  for (int out = 5; out > 0; --out) {
    Places line;
    for (int place = 1; place <= 5; ++place) {
      if (place != out) line.push_back(place);
    }
    all_lines += PlacesText(line) + "\n";
  }
  const std::string from = Write("five.txt", all_lines);
  const Ran ran = Wheels({"search", "5", "4", "3", "--from", from, "--steps", "1000"});
  EXPECT_EQ(ReadDesign("pick4-match3-pool05.txt", ran.out).lines.size(), 4u) << ran.err;
  EXPECT_EQ(Wheels({"search", "5", "4", "3", "--from", from, "--steps", "0"}).out,
            "1 2 3 4\n1 2 3 5\n1 2 4 5\n1 3 4 5\n2 3 4 5\n");
}

TEST_F(WheelsProgram, RefusesWrongSearches) {
  const std::string bad = Write("bad.txt", "1 2 3 4\n");
  const std::vector<Arguments> calls{
      {"search"},
      {"search", "8", "4"},
      {"search", "8", "4", "x"},
      {"search", "21", "4", "3"},
      {"search", "8", "3", "3"},
      {"search", "8", "4", "0"},
      {"search", "8", "4", "3", "--moon", "1"},
      {"search", "8", "4", "3", "--seed"},
      {"search", "8", "4", "3", "--seconds", "-1"},
      {"search", "8", "4", "3", "--from", folder_.Path() + "/none.txt"},
      {"search", "8", "4", "3", "--from", bad},
  };
  for (const Arguments& call : calls) {
    EXPECT_EQ(Wheels(call).status, kWrongCall) << call.back();
    EXPECT_TRUE(Wheels(call).err.starts_with("wheels: ")) << call.back();
  }
}

}  // namespace
}  // namespace wheels::tool
