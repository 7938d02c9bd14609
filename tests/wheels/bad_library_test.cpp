#include <gtest/gtest.h>

#include "wheels/wheel_desk.h"

// Libraries that others wrote: what is wrong with them is told or passed over, and the desk lives
// on.

namespace test {
namespace {

using Texts = std::vector<std::string>;
using Cells = base::ListView::Cells;

constexpr const char* kTypeMismatch = "Run-time error '13':\r\n\r\nType mismatch";

struct BadLibrary {
  const char* name;
  std::string text;
  Texts boxes;   // told while the window opens
  Texts wheels;  // listed then
};

std::vector<BadLibrary> BadLibraries() {
  WheelText no_pick = Seven();
  no_pick.pick = "";
  WheelText words = Seven();
  words.pick = "six";
  WheelText no_match = Seven();
  no_match.match = "";
  const std::string sound = LibraryText({Seven()});
  const std::string name = Seven().name;
  std::string nul_bytes = sound;
  nul_bytes.insert(nul_bytes.find("[1]"), std::string("\0\0junk\0\r\n", 9));
  std::string no_end = sound;
  no_end.erase(no_end.size() - 2);
  const std::string long_line(10000, '7');
  return {
      {"empty", " ", {}, {}},
      {"no section", "wheelcount=3\r\n", {}, {}},
      {"no pick", LibraryText({Seven(), no_pick}), {kTypeMismatch}, {name}},
      {"pick no number", LibraryText({words, Seven()}), {kTypeMismatch}, {}},
      {"no match", LibraryText({no_match, Seven()}), {}, {name}},
      {"no section for the count", "[Wheels]\r\nwheelcount=2\r\n", {kTypeMismatch}, {}},
      {"count too large",
       "[Wheels]\r\nwheelcount=100000\r\n" + sound.substr(sound.find("[1]")),
       {"Run-time error '6':\r\n\r\nOverflow"},
       {}},
      {"count no number", "[Wheels]\r\nwheelcount=many\r\n", {}, {}},
      {"NUL bytes", nul_bytes, {}, {name}},
      {"no end of line", no_end, {}, {name}},
      {"long line",
       "[Wheels]\r\n" + long_line + "\r\nx=" + long_line + "\r\n" + sound.substr(10),
       {},
       {name}},
      {"line feeds alone",
       "[Wheels]\nwheelcount=1\n[1]\nWheelname=x 7\npick=6\nmatch=3\n",
       {},
       {"x 7"}},
      {"noise", std::string("\xFF\xFE\0[\0]", 6), {}, {}},
  };
}

TEST(BadLibrary, IsToldOrPassedOverAndTheDeskLivesOn) {
  for (const BadLibrary& bad : BadLibraries()) {
    QuietDesk desk(bad.text);
    desk.Scan();
    desk.MakeWheel();
    EXPECT_EQ(desk.TakeBoxTexts(), bad.boxes) << bad.name;
    ASSERT_NE(desk.Desk().Wheels(), nullptr) << bad.name;
    EXPECT_EQ(desk.Window().List2.Rows(), bad.wheels) << bad.name;
    // A sound library in its place is read at once.
    desk.WriteLibrary(LibraryText({Seven()}));
    desk.MakeWheel();
    desk.User().Pick(desk.Window().CmbWheelPick, 2);
    EXPECT_EQ(desk.Window().List2.Rows(), Texts{Seven().name}) << bad.name;
    EXPECT_EQ(desk.Window().List1.ListCount(), 10) << bad.name;
    EXPECT_TRUE(desk.boxes.shown.empty()) << bad.name;
  }
}

TEST(BadLibrary, ANameWithoutABracketIsReadFromItsSecondCharacter) {
  WheelText wheel = Seven();
  wheel.name = "W 7 numbers";
  QuietDesk desk({wheel});
  desk.Scan();
  desk.MakeWheel();
  EXPECT_EQ(desk.State().wheel_pool, 7);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(BadLibrary, ANameWithoutAPoolEndsTheHandOver) {
  WheelText wheel = Seven();
  wheel.name = "numbers";
  QuietDesk desk({wheel});
  desk.Scan();
  desk.MakeWheel();
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{kTypeMismatch});
  EXPECT_EQ(desk.State().wheel_pool, 0);
  EXPECT_EQ(desk.Window().ListMain.RowCount(), 49);
}

TEST(BadLibrary, LinesOfTenThousandCharactersAreCut) {
  std::string blanks = "1 2" + std::string(10000, ' ') + "3";
  std::string places;
  for (int i = 0; i < 5000; ++i) places += "1 ";
  QuietDesk desk({SixWheel(7, {places, blanks, std::string(10000, ',') + "1"})});
  desk.Scan();
  desk.MakeWheel();
  desk.User().Click(desk.Window().cmdwizard(1));
  const std::string first = desk.Box(0).Text() + " ";
  ASSERT_EQ(desk.Window().LstWheel.RowCount(), 2);
  const Cells& row = desk.Window().LstWheel.Row(1);
  ASSERT_EQ(row.size(), 8u);
  for (int cell = 0; cell < 7; ++cell) EXPECT_EQ(row[static_cast<std::size_t>(cell)], first);
  EXPECT_EQ(desk.Window().LstWheel.Row(2), (Cells{first, desk.Box(1).Text() + " "}));
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(BadLibrary, MissingFactsEndTheGeneration) {
  for (const char* key : {"pool", "combos", "tickets", "Wheelname"}) {
    std::string library = LibraryText({Seven()});
    const std::string line = std::string("\r\n") + key + "=";
    library.erase(library.find(line) + 2, std::string(key).size());
    QuietDesk desk({Seven()});
    desk.Scan();
    desk.MakeWheel();
    desk.WriteLibrary(library);
    desk.User().Click(desk.Window().cmdwizard(1));
    if (key == std::string("Wheelname")) {
      EXPECT_TRUE(desk.boxes.shown.empty());
      EXPECT_EQ(desk.Window().LstWheel.RowCount(), 2);
    } else {
      EXPECT_EQ(desk.TakeBoxTexts(), Texts{kTypeMismatch}) << key;
      EXPECT_EQ(desk.Window().LstWheel.RowCount(), 0) << key;
    }
  }
}

}  // namespace
}  // namespace test
