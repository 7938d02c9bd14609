#include "wheels/wheel_library.h"

#include <gtest/gtest.h>

#include "base/language/error.h"
#include "wheels/wheel_desk.h"

namespace test {
namespace {

using Texts = std::vector<std::string>;

WheelText Wheel(std::string name, std::string pick, std::string match) {
  return {std::move(name), std::move(pick), "7", std::move(match), "35", "1", {"1 2 3"}};
}

Texts Names(const std::string& library, std::int16_t pick, std::string_view match) {
  Texts names;
  wheels::WheelNames(base::Profile(library), pick, match,
                     [&](std::string name) { names.push_back(std::move(name)); });
  return names;
}

int ErrorOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const base::Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(WheelLibrary, StandsBesideTheProgramUnlessStoredOtherwise) {
  MemorySettings settings;
  EXPECT_EQ(wheels::LibraryPath(settings, "C:\\Desk"), "C:\\Desk/wheels/wheels.ini");
  EXPECT_EQ(settings.Get("velmonte", "QND", "wheel_path"), "C:\\Desk/wheels/wheels.ini");
  settings.Save("Velmonte", "QND", "wheel_path", "D:\\other.ini");
  EXPECT_EQ(wheels::LibraryPath(settings, "C:\\Desk"), "D:\\other.ini");
}

TEST(WheelLibrary, AStoreThatKeepsNothingHasNoPath) {
  base::Settings settings;
  EXPECT_EQ(wheels::LibraryPath(settings, "C:\\Desk"), "");
}

TEST(WheelLibrary, TheCountIsReadLeniently) {
  const auto count = [](const std::string& text) {
    return wheels::WheelCount(base::Profile("[Wheels]\r\nwheelcount=" + text + "\r\n"));
  };
  EXPECT_EQ(count("4"), 4);
  EXPECT_EQ(count("4 wheels"), 4);
  EXPECT_EQ(count("none"), 0);
  EXPECT_EQ(count(""), 0);
  EXPECT_EQ(count("2.5"), 2);
  EXPECT_EQ(count("3.5"), 4);
  EXPECT_EQ(count("-3"), -3);
  EXPECT_EQ(count("32767"), 32767);
  EXPECT_EQ(ErrorOf([&] { count("32768"); }), base::kOverflow);
  EXPECT_EQ(ErrorOf([&] { count("100000"); }), base::kOverflow);
  EXPECT_EQ(wheels::WheelCount(base::Profile()), 0);
}

TEST(WheelLibrary, NamesComeInTheOrderOfTheFile) {
  const std::string library =
      LibraryText({Wheel("[b] 7 z", "6", "3"), Wheel("[a] 7", "6", "3"), Wheel("[b] 7", "6", "3")});
  EXPECT_EQ(Names(library, 6, "3"), (Texts{"[b] 7 z", "[a] 7", "[b] 7"}));
}

TEST(WheelLibrary, PickIsComparedAsANumberAndMatchAsText) {
  const std::string library =
      LibraryText({Wheel("one", "06", "3"), Wheel("two", "6", "03"), Wheel("three", "6.0", "3"),
                   Wheel("four", "5", "3"), Wheel("five", "6", "4"), Wheel("six", "6.5", "3")});
  EXPECT_EQ(Names(library, 6, "3"), (Texts{"one", "three"}));
  EXPECT_EQ(Names(library, 6, "03"), Texts{"two"});
  EXPECT_EQ(Names(library, 5, "3"), Texts{"four"});
}

TEST(WheelLibrary, NothingBehindTheCountIsRead) {
  std::string library = LibraryText({Wheel("one", "6", "3"), Wheel("two", "bad", "3")});
  library.replace(library.find("wheelcount=2"), 12, "wheelcount=1");
  EXPECT_EQ(Names(library, 6, "3"), Texts{"one"});
}

TEST(WheelLibrary, APickThatIsNoNumberStopsTheListing) {
  for (const char* pick : {"", "six"}) {
    const std::string library =
        LibraryText({Wheel("one", "6", "3"), Wheel("two", pick, "5"), Wheel("three", "6", "3")});
    Texts names;
    EXPECT_EQ(ErrorOf([&] {
                wheels::WheelNames(base::Profile(library), 6, "3",
                                   [&](std::string name) { names.push_back(std::move(name)); });
              }),
              base::kTypeMismatch);
    EXPECT_EQ(names, Texts{"one"});
  }
}

// A section that is not there has an empty pick.
TEST(WheelLibrary, ACountAboveTheSectionsStopsTheListing) {
  std::string library = LibraryText({Wheel("one", "6", "3")});
  library.replace(library.find("wheelcount=1"), 12, "wheelcount=2");
  EXPECT_EQ(ErrorOf([&] { Names(library, 6, "3"); }), base::kTypeMismatch);
}

TEST(WheelLibrary, SectionsAreNumberedWithoutLeadingZeros) {
  EXPECT_EQ(ErrorOf([] {
              Names("[Wheels]\nwheelcount=1\n[01]\nWheelname=x\npick=6\nmatch=3\n", 6, "3");
            }),
            base::kTypeMismatch);
}

TEST(WheelLibrary, ThePoolStandsBehindTheFirstBracket) {
  EXPECT_EQ(wheels::PoolOfName("[3 of 6] 15 numbers"), 15);
  EXPECT_EQ(wheels::PoolOfName("[3 of 6]  7 numbers"), 7);
  EXPECT_EQ(wheels::PoolOfName("[3 of 6] 7 numbers"), 7);
  EXPECT_EQ(wheels::PoolOfName("[3 of 6]-15"), 15);
  EXPECT_EQ(wheels::PoolOfName("[3] 8 [of 6] 9"), 8);
  EXPECT_EQ(wheels::PoolOfName("]x9"), 9);
  EXPECT_EQ(wheels::PoolOfName("[3 of 6] 155"), 15);
}

TEST(WheelLibrary, WithoutABracketThePoolIsTheSecondAndThirdCharacter) {
  EXPECT_EQ(wheels::PoolOfName("x12 numbers"), 12);
  EXPECT_EQ(wheels::PoolOfName("x 9 numbers"), 9);
}

TEST(WheelLibrary, ANameWithoutANumberIsATypeMismatch) {
  for (const char* name : {"", "]", "[3 of 6]", "[3 of 6] x", "wheel", "[3 of 6]   7"}) {
    EXPECT_EQ(ErrorOf([&] { wheels::PoolOfName(name); }), base::kTypeMismatch) << name;
  }
}

TEST(WheelLibrary, FindsTheFirstWheelOfItsKind) {
  WheelText eight = Wheel("eight", "6", "3");
  eight.pool = "8";
  const base::Profile library(LibraryText({Wheel("a", "5", "3"), Wheel("b", "6", "4"), eight,
                                           Wheel("c", "6", "3"), Wheel("d", "6", "3")}));
  EXPECT_EQ(wheels::FindWheel(library, 7, "6", "3"), "4");
  EXPECT_EQ(wheels::FindWheel(library, 8, "6", "3"), "3");
  EXPECT_EQ(wheels::FindWheel(library, 7, "06", "3"), std::nullopt);
  EXPECT_EQ(wheels::FindWheel(library, 9, "6", "3"), std::nullopt);
  EXPECT_EQ(wheels::FindWheel(base::Profile(), 7, "6", "3"), std::nullopt);
}

// How the window reads the library.

TEST(WheelLibrary, TheWindowListsTheWheelsOfPickSixAndMatchThree) {
  WheelDesk desk({Wheel("[3 of 6] 7 b", "6", "3"), Wheel("[3 of 5] 7", "5", "3"),
                  Wheel("[4 of 6] 7", "6", "4"), Wheel("[3 of 6] 7 a", "6", "3")});
  desk.Open();
  EXPECT_EQ(desk.Window().List2.Rows(), (Texts{"[3 of 6] 7 b", "[3 of 6] 7 a"}));
  EXPECT_EQ(desk.Window().List2.ListIndex(), -1);
  EXPECT_EQ(desk.State().wheel_ini_path, desk.folder.string() + "/wheels/wheels.ini");
  EXPECT_EQ(desk.settings.Get("Velmonte", "QND", "wheel_path"),
            desk.folder.string() + "/wheels/wheels.ini");
}

TEST(WheelLibrary, ThePickComboListsAnew) {
  WheelDesk desk({Wheel("six", "6", "3"), Wheel("five", "5", "3"), Wheel("four", "4", "3")});
  desk.Open();
  desk.User().Pick(desk.Window().CmbWheelPick, 1);
  EXPECT_EQ(desk.Window().List2.Rows(), Texts{"five"});
  desk.User().Pick(desk.Window().CmbWheelPick, 0);
  EXPECT_EQ(desk.Window().List2.Rows(), Texts{"four"});
}

TEST(WheelLibrary, TheMatchComboLeavesThePicksAboveIt) {
  WheelDesk desk({Wheel("3 of 6", "6", "3"), Wheel("4 of 6", "6", "4"), Wheel("5 of 6", "6", "5"),
                  Wheel("4 of 5", "5", "4")});
  desk.Open();
  wheels::WheelWizard& window = desk.Window();
  desk.User().Pick(window.CmbWheelPick, 1);
  desk.User().Pick(window.CboMatch, 2);
  EXPECT_EQ(window.CmbWheelPick.Items(), Texts{"6"});
  EXPECT_EQ(window.CmbWheelPick.Text(), "6");
  EXPECT_EQ(window.List2.Rows(), Texts{"5 of 6"});
  desk.User().Pick(window.CboMatch, 1);
  EXPECT_EQ(window.CmbWheelPick.Items(), (Texts{"5", "6"}));
  EXPECT_EQ(window.CmbWheelPick.Text(), "6");
  EXPECT_EQ(window.List2.Rows(), Texts{"4 of 6"});
  desk.User().Pick(window.CmbWheelPick, 0);
  EXPECT_EQ(window.List2.Rows(), Texts{"4 of 5"});
  desk.User().Pick(window.CboMatch, 0);
  EXPECT_EQ(window.CmbWheelPick.Items(), (Texts{"4", "5", "6"}));
  EXPECT_EQ(window.CmbWheelPick.Text(), "6");
  EXPECT_EQ(window.List2.Rows(), Texts{"3 of 6"});
}

// The first listing still has the old pick; when it fails, the picks stay as they were.
TEST(WheelLibrary, AListingThatFailsLeavesThePicks) {
  WheelDesk desk({Wheel("one", "6", "3")});
  desk.Open();
  desk.WriteLibrary(LibraryText({Wheel("4 of 6", "6", "4"), Wheel("bad", "", "4")}));
  desk.User().Pick(desk.Window().CboMatch, 1);
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '13':\r\n\r\nType mismatch"});
  EXPECT_EQ(desk.Window().CmbWheelPick.Items(), (Texts{"4", "5", "6"}));
  EXPECT_EQ(desk.Window().List2.Rows(), Texts{"4 of 6"});
}

TEST(WheelLibrary, WithoutAFileTheListIsEmptyWithoutAWord) {
  WheelDesk desk;
  desk.Open();
  EXPECT_EQ(desk.Window().List2.ListCount(), 0);
  desk.User().Pick(desk.Window().CboMatch, 1);
  desk.User().Click(desk.Window().cmdwizard(1));
  EXPECT_EQ(desk.Window().LstWheel.RowCount(), 0);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(WheelLibrary, WithACountOfZeroTheListIsEmptyWithoutAWord) {
  std::string library = LibraryText({Wheel("one", "6", "3")});
  library.replace(library.find("wheelcount=1"), 12, "wheelcount=0");
  WheelDesk desk(library);
  desk.Open();
  EXPECT_EQ(desk.Window().List2.ListCount(), 0);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(WheelLibrary, ThePathStoredIsUsed) {
  WheelDesk desk({Wheel("beside the program", "6", "3")});
  const std::string other = desk.folder.string() + "/other.ini";
  desk.host_files.Replace(other, LibraryText({Wheel("elsewhere", "6", "3")}));
  desk.settings.Save("velmonte", "QND", "wheel_path", other);
  desk.Open();
  EXPECT_EQ(desk.Window().List2.Rows(), Texts{"elsewhere"});
  EXPECT_EQ(desk.State().wheel_ini_path, other);
}

TEST(WheelLibrary, AWheelChosenShowsAsManyBoxesAsItsPool) {
  WheelDesk desk({SixWheel(7, {"1 2"}), SixWheel(20, {"1 2"}), SixWheel(9, {"1 2"})});
  desk.Open();
  for (const int pool : {7, 20, 9}) {
    desk.User().Pick(desk.Window().List2, pool == 7 ? 0 : pool == 20 ? 1 : 2);
    EXPECT_EQ(desk.State().wheel_pool, pool);
    for (int box = 0; box < 20; ++box) {
      EXPECT_EQ(desk.Box(box).Visible(), box < pool) << pool << " " << box;
      EXPECT_EQ(desk.Window().Label4(box).Visible(), box < pool) << pool << " " << box;
    }
  }
}

TEST(WheelLibrary, ANameWithoutAPoolLeavesTheBoxes) {
  WheelDesk desk({SixWheel(9, {"1 2"}), Wheel("[3 of 6] many", "6", "3")});
  desk.Open();
  desk.User().Pick(desk.Window().List2, 0);
  desk.User().Pick(desk.Window().List2, 1);
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"Run-time error '13':\r\n\r\nType mismatch"});
  EXPECT_EQ(desk.State().wheel_pool, 9);
  EXPECT_TRUE(desk.Box(8).Visible());
}

TEST(WheelLibrary, APoolAboveTwentyAsksForABoxThatIsNotThere) {
  WheelDesk desk({Wheel("[3 of 6] 21 numbers", "6", "3")});
  desk.Open();
  desk.User().Pick(desk.Window().List2, 0);
  EXPECT_EQ(desk.TakeBoxTexts(),
            Texts{"Run-time error '340':\r\n\r\nControl array element '20' doesn't exist"});
  EXPECT_TRUE(desk.Box(19).Visible());
  EXPECT_FALSE(desk.Desk().Ended());
}

}  // namespace
}  // namespace test
