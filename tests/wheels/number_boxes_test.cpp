#include "wheels/number_boxes.h"

#include <gtest/gtest.h>

#include "wheels/wheel_desk.h"

namespace test {
namespace {

using Texts = std::vector<std::string>;

constexpr base::Colour kYellow = 65535;
constexpr base::Colour kWhite = 0xFFFFFF;

TEST(NumberBoxes, TwoDigitsCompleteANumberAndMoveOn) {
  OpenDesk desk;
  desk.User().Type(desk.Box(0), "1");
  EXPECT_EQ(desk.Box(0).Text(), "01");
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Box(0));
  desk.User().TypeCharacter('2');
  EXPECT_EQ(desk.Box(0).Text(), "12");
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Box(1));
  EXPECT_EQ(desk.beeper.beeps, 0);
}

TEST(NumberBoxes, TypingRunsThroughTheBoxes) {
  OpenDesk desk;
  desk.User().Type(desk.Box(0), "0711{Enter}5 49");
  EXPECT_EQ(desk.BoxTexts(6), (Texts{"07", "11", "", "05", "49", ""}));
  EXPECT_EQ(desk.beeper.beeps, 0);
}

TEST(NumberBoxes, ABackspaceTakesThePaddingWithTheDigit) {
  OpenDesk desk;
  desk.User().Type(desk.Box(0), "1{Back}");
  EXPECT_EQ(desk.Box(0).Text(), "");
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Box(0));
  desk.User().Type(desk.Box(0), "34");
  EXPECT_EQ(desk.Box(0).Text(), "34");
}

// The zero gives way to the digit typed next, not to one that finds it in the box.
TEST(NumberBoxes, TypingIntoAFilledBoxGoesBehindWhatStandsThere) {
  OpenDesk desk;
  desk.SetBoxes({"5"});
  desk.User().Type(desk.Box(0), "1");
  EXPECT_EQ(desk.Box(0).Text(), "051");
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Box(1));
  desk.User().Type(desk.Box(2), "7{Tab}");
  desk.User().Type(desk.Box(2), "2");
  EXPECT_EQ(desk.Box(2).Text(), "072");
}

TEST(NumberBoxes, ABackspaceMakesRoomForAnotherSecondDigit) {
  OpenDesk desk;
  desk.SetBoxes({"34"});
  desk.User().Type(desk.Box(0), "{Back}5");
  EXPECT_EQ(desk.Box(0).Text(), "35");
}

TEST(NumberBoxes, ABackspaceNeverMovesOn) {
  OpenDesk desk;
  desk.SetBoxes({"34"});
  desk.User().Type(desk.Box(0), "{Back}");
  EXPECT_EQ(desk.Box(0).Text(), "03");
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Box(0));
}

TEST(NumberBoxes, ReturnAndBlankMoveOnWithoutABeep) {
  OpenDesk desk;
  for (const char* key : {"{Enter}", " "}) {
    desk.User().Type(desk.Box(3), key);
    EXPECT_EQ(desk.Box(3).Text(), "");
    EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Box(4));
  }
  // One tab only, whatever the box holds.
  desk.SetBoxes({"12"});
  desk.User().Type(desk.Box(0), " ");
  EXPECT_EQ(desk.Box(0).Text(), "12");
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Box(1));
  EXPECT_EQ(desk.beeper.beeps, 0);
}

TEST(NumberBoxes, OtherKeysBeepAndStay) {
  OpenDesk desk;
  const std::string keys = "aZ-.,+:\x1b\xA3";
  for (const char key : keys) {
    desk.User().Focus(desk.Box(0));
    desk.User().TypeCharacter(key);
  }
  EXPECT_EQ(desk.beeper.beeps, static_cast<int>(keys.size()));
  EXPECT_EQ(desk.Box(0).Text(), "");
  desk.SetBoxes({"12"});
  desk.User().Type(desk.Box(0), "x");
  EXPECT_EQ(desk.Box(0).Text(), "12");
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Box(0));
}

TEST(NumberBoxes, ASlashPasses) {
  OpenDesk desk;
  desk.User().Type(desk.Box(0), "1/");
  EXPECT_EQ(desk.Box(0).Text(), "1/");
  EXPECT_EQ(desk.beeper.beeps, 0);
}

TEST(NumberBoxes, AChangePadsEveryBoxOfOneCharacter) {
  OpenDesk desk;
  desk.SetBoxes({"7", "", "123", "12", "x"});
  EXPECT_EQ(desk.BoxTexts(5), (Texts{"07", "", "123", "12", "0x"}));
}

TEST(NumberBoxes, TheLastBoxInSightMovesOutOfTheBoxes) {
  OpenDesk desk;
  desk.User().Type(desk.Box(6), "12");
  EXPECT_NE(desk.Desk().Desktop().Focused(), &desk.Box(7));
  EXPECT_EQ(desk.Box(6).Text(), "12");
}

// The button that sorts.

Texts Sorted(const Texts& numbers) {
  OpenDesk desk;
  desk.SetBoxes(numbers);
  desk.User().Click(desk.Window().cmdwizard(0));
  return desk.BoxTexts(static_cast<int>(numbers.size()));
}

TEST(SortNumbers, ABlankStaysAndPartsTheSides) {
  EXPECT_EQ(Sorted({"7", "3", "", "12", "1", "9"}), (Texts{"03", "07", "", "01", "09", "12"}));
  EXPECT_EQ(Sorted({"", "9", "1", "", "", "5", "2"}), (Texts{"", "01", "09", "", "", "02", "05"}));
}

TEST(SortNumbers, SortsByValueInTwoDigits) {
  EXPECT_EQ(Sorted({"49", "40", "100", "9", "10", "08", "1"}),
            (Texts{"01", "08", "09", "10", "40", "49", "100"}));
}

// Equal values are left as they are written.
TEST(SortNumbers, EqualNumbersAreNotSwapped) {
  EXPECT_EQ(Sorted({"007", "07"}), (Texts{"007", "07"}));
}

TEST(SortNumbers, ZerosAreBlanks) {
  EXPECT_EQ(Sorted({"9", "00", "5", "1"}), (Texts{"09", "00", "01", "05"}));
}

TEST(SortNumbers, LeavesTheBoxesBehindThePool) {
  OpenDesk desk;
  desk.SetBoxes({"20", "19", "18", "17", "16", "15", "14", "1"});
  desk.User().Click(desk.Window().cmdwizard(0));
  EXPECT_EQ(desk.BoxTexts(8), (Texts{"14", "15", "16", "17", "18", "19", "20", "01"}));
}

// The quick input.

TEST(QuickNumbers, ADoubleClickOpensThePanelForItsBox) {
  OpenDesk desk;
  wheels::WheelWizard& window = desk.Window();
  EXPECT_EQ(window.Label2(0).Caption(), "1");
  EXPECT_EQ(window.Label2(98).Caption(), "99");
  desk.User().DoubleClick(desk.Box(3));
  EXPECT_TRUE(window.PicNumbers.Visible());
  EXPECT_EQ(window.PicNumbers.Tag(), "3");
  desk.User().Click(window.Label2(6));
  EXPECT_EQ(desk.Box(3).Text(), "07");
  EXPECT_EQ(window.Label2(6).BackColor(), kYellow);
  desk.User().Click(window.Label2(48));
  EXPECT_EQ(desk.Box(3).Text(), "49");
  EXPECT_EQ(window.Label2(48).BackColor(), kYellow);
  EXPECT_EQ(window.Label2(48).BorderStyle(), 1);
  EXPECT_EQ(window.Label2(6).BackColor(), kWhite);
  EXPECT_EQ(window.Label2(6).BorderStyle(), 0);
  desk.User().Click(window.Label8);
  EXPECT_FALSE(window.PicNumbers.Visible());
}

TEST(QuickNumbers, AClickOnABoxMarksTheNumbersAndTakesItsPlace) {
  OpenDesk desk;
  wheels::WheelWizard& window = desk.Window();
  desk.SetBoxes({"12", "", "1", "99"});
  EXPECT_EQ(window.Label2(11).BackColor(), kWhite);
  desk.User().Click(desk.Box(5));
  EXPECT_EQ(window.PicNumbers.Tag(), "5");
  EXPECT_FALSE(window.PicNumbers.Visible());
  for (int n = 0; n < 99; ++n) {
    const bool marked = n == 11 || n == 0 || n == 98;
    EXPECT_EQ(window.Label2(n).BackColor(), marked ? kYellow : kWhite) << n;
    EXPECT_EQ(window.Label2(n).BorderStyle(), marked ? 1 : 0) << n;
  }
}

TEST(QuickNumbers, NumbersWithoutALabelMarkNothing) {
  OpenDesk desk;
  desk.SetBoxes({"0", "100", "999999999999", "x"});
  desk.User().Click(desk.Box(0));
  EXPECT_TRUE(desk.boxes.shown.empty());
  for (int n = 0; n < 99; ++n) EXPECT_EQ(desk.Window().Label2(n).BackColor(), kWhite) << n;
}

// Boxes out of sight count as well.
TEST(QuickNumbers, AllTwentyBoxesAreMarked) {
  OpenDesk desk;
  desk.Box(19).SetText("33");
  desk.User().Click(desk.Box(0));
  EXPECT_EQ(desk.Window().Label2(32).BackColor(), kYellow);
}

TEST(Duplicates, AreToldOfTwoEqualTexts) {
  const char* const text = "No duplicates please, the results will be inaccurate";
  OpenDesk desk;
  desk.SetBoxes({"7", "07", "007", "", "", "0", "00"});
  desk.Window().NumberBoxes().CheckForDuplicates(0, 1);
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{text});
  desk.Window().NumberBoxes().CheckForDuplicates(0, 2);
  desk.Window().NumberBoxes().CheckForDuplicates(3, 4);
  desk.Window().NumberBoxes().CheckForDuplicates(5, 6);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

}  // namespace
}  // namespace test
