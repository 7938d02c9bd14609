#include "wheels/wheel_window.h"

#include <gtest/gtest.h>

#include "wheels/wheel_desk.h"

namespace test {
namespace {

using Texts = std::vector<std::string>;

constexpr base::Colour kYellow = 65535;
constexpr base::Colour kWhite = 0xFFFFFF;
constexpr base::Colour kReleased = 0xE0E0E0;

TEST(WheelWindow, OpensWithItsFirstValues) {
  WheelDesk desk({SixWheel(7, {"1 2"})});
  desk.Open();
  wheels::WheelWizard& window = desk.Window();
  EXPECT_EQ(window.CboMatch.Items(), (Texts{"3", "4", "5"}));
  EXPECT_EQ(window.CboMatch.Text(), "3");
  EXPECT_EQ(window.CmbWheelPick.Items(), (Texts{"4", "5", "6"}));
  EXPECT_EQ(window.CmbWheelPick.Text(), "6");
  EXPECT_EQ(window.cmdwizardp(0).Caption(), "Next >");
  EXPECT_EQ(window.cmdwizardp(1).Caption(), "< Previous");
  EXPECT_FALSE(window.cmdwizardp(1).Visible());
  EXPECT_EQ(window.cmdwizar(0).Caption(), "Wheel");
  EXPECT_EQ(window.cmdwizar(1).Caption(), "Numbers");
  EXPECT_EQ(window.ListMain.Headers(), (Texts{"Occurrence", "Number", "H/W/C"}));
  EXPECT_FALSE(window.PicNumbers.Visible());
  for (base::ListBox* list : {&window.ListPerms, &window.List4, &window.LstSorted}) {
    EXPECT_TRUE(list->Sorted()) << list->Name();
    EXPECT_FALSE(list->Visible()) << list->Name();
  }
  EXPECT_FALSE(window.List1.Sorted());
  EXPECT_FALSE(window.List2.Sorted());
  EXPECT_EQ(window.TXTActiveNumbers.Count(), 20);
  EXPECT_EQ(window.Label4.Count(), 20);
}

TEST(WheelWindow, TellsHintsAndCaptions) {
  WheelDesk desk;
  desk.Open();
  wheels::WheelWizard& window = desk.Window();
  EXPECT_EQ(window.CboMatch.ToolTipText(), "Guarantee winning numbers list");
  EXPECT_EQ(window.CmbWheelPick.ToolTipText(), "Select the number of balls drawn in your lottery");
  EXPECT_EQ(window.List2.ToolTipText(), "Wheels");
  EXPECT_EQ(window.List1.ToolTipText(), "Number Sets");
  EXPECT_EQ(window.ListMain.ToolTipText(), "Displays the numbers from cold to hot");
  window.TXTActiveNumbers.Each([](const base::TextBox& box) {
    EXPECT_EQ(box.ToolTipText(), "Double click this textbox to display the quick number input");
  });
  const char* const captions[] = {"<- Sort Numbers", "Generate", "Print", "Check for wins"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(window.cmdwizard(i).Caption(), captions[i]);
    EXPECT_EQ(window.cmdwizard(i).ToolTipText(),
              i == 0 ? "Numarically Sort The Numbers above" : "Generate Wheel");
  }
}

TEST(WheelWindow, ButtonsLookPressedWhileTheMouseIsDown) {
  WheelDesk desk;
  desk.Open();
  desk.Window().cmdwizard.Each([&](base::Label& button) {
    desk.User().Press(button, base::MouseButton::kLeft);
    EXPECT_EQ(button.BackColor(), kWhite);
    desk.User().Release(button);
    EXPECT_EQ(button.BackColor(), kReleased);
  });
}

TEST(WheelWindow, TabsBringTheirListToTheFront) {
  WheelDesk desk;
  desk.Open();
  wheels::WheelWizard& window = desk.Window();
  desk.User().Click(window.cmdwizar(1));
  EXPECT_GT(window.ListMain.ZOrder(), window.LstWheel.ZOrder());
  desk.User().Click(window.cmdwizar(0));
  EXPECT_GT(window.LstWheel.ZOrder(), window.ListMain.ZOrder());
}

TEST(WheelWindow, HintsAreTheFifteenHottestNumbers) {
  WheelDesk desk;
  desk.HandOver(TableOf(49));
  wheels::WheelWizard& window = desk.Window();
  for (int i = 0; i < 15; ++i) EXPECT_EQ(window.Label4(i).ToolTipText(), TwoDigits(i + 1));
  EXPECT_EQ(window.Label4(15).ToolTipText(), "");
  desk.User().Click(window.Label4(6));
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{"07"});
  desk.HandOver({"004 17", "009 03"});
  EXPECT_EQ(window.Label4(0).ToolTipText(), "03");
  EXPECT_EQ(window.Label4(1).ToolTipText(), "17");
  EXPECT_EQ(window.Label4(2).ToolTipText(), "");
  EXPECT_EQ(window.Label4(14).ToolTipText(), "");
}

TEST(WheelWindow, ADroppedEntryLeavesItsNumber) {
  OpenDesk desk;
  desk.User().Drop(desk.Box(2), "277 38");
  EXPECT_EQ(desk.Box(2).Text(), "38");
  desk.User().Drop(desk.Box(2), "277 05 and more");
  EXPECT_EQ(desk.Box(2).Text(), "05");
  desk.User().Drop(desk.Box(2), "xxxx7");
  EXPECT_EQ(desk.Box(2).Text(), "07");
}

// The guide.

struct GuideStep {
  int section;  // -1 for none
  std::string text;
};

const std::vector<GuideStep>& Guide() {
  static const std::vector<GuideStep> steps{
      {-1,
       "Welcome to QND wheeling wizard. Using our new improved wheeling system is quick and "
       "simple." +
           std::string(24, ' ') +
           "Use the two <Previous and Next > buttons for a step "
           "by step guide through creating a wheel"},
      {0,
       "Section 1. Setting up your wheel. Use both drop down boxes to select the wheel "
       "settings..."},
      {0,
       "1: Use the left combo box to select the amount of numbers you wish to guarantee a win "
       "with"},
      {0,
       "1: Use the right combo box to select the amount of numbers that are drawn each week in "
       "your draw"},
      {1, "Section 2. Selecting your wheel. Select a wheel from the list of wheels availible." +
              std::string(48, ' ') + "Remember the number of lines is equal to the cost"},
      {1, "2: Depending on your settings you will see a list of between 5 to 20 wheels"},
      {1,
       "2: Select one and it will highlight blue, note the textbox count at the bottom matching "
       "the selected number wheel"},
      {2, "Section 3. Selecting numbers from QND's findings or use your own"},
      {2,
       "3: Select a set of numbers from the list to populate the wheel text boxes. If they do "
       "not populate then you need to generate some stats from the main user windows scan "
       "buton"},
      {2, "3: Selecting number 8: Lets you enter your own numbers"},
      {2, "3: Selecting number 9: Populate the text boxes from 1 to 20"},
      {3,
       "Section 4. If you choose to enter your own numbers then use the text boxes to enter "
       "them now. Double click any textbox to view the quick input window"},
      {3,
       "4: It is recommended you sort the draw numbers using the Sort Numbers button; it does "
       "not effect the wheels coverage"},
      {3, "4: You may now create the wheel by clicking the Generate button"},
      {3,
       "4: You may print the wheel and more information relating to the wheel by clicking the "
       "Print button"},
  };
  return steps;
}

class GuideDesk : public WheelDesk {
 public:
  GuideDesk() { Open(); }
  void Next() { User().Click(Window().cmdwizardp(0)); }
  void Previous() { User().Click(Window().cmdwizardp(1)); }
  void Expect(int step) {
    const GuideStep& expected = Guide()[static_cast<std::size_t>(step)];
    EXPECT_EQ(Window().Label26.Caption(), expected.text) << step;
    for (int link = 0; link < 4; ++link) {
      EXPECT_EQ(Window().Label11(link).BackColor(), link == expected.section ? kYellow : kWhite)
          << step << " " << link;
    }
  }
};

TEST(WheelGuide, WelcomesWithWordsOfItsOwn) {
  GuideDesk desk;
  EXPECT_EQ(desk.Window().Label26.Caption(),
            "Welcome to QND wheeling wizard. Using our new improved wheeling system is quick and "
            "simple." +
                std::string(24, ' ') +
                "Use the two blue links on the right for a step by step guide to creating a wheel");
}

TEST(WheelGuide, NextWalksThroughTheStepsAndBeginsAnew) {
  GuideDesk desk;
  for (int step = 1; step <= 14; ++step) {
    desk.Next();
    desk.Expect(step);
    EXPECT_TRUE(desk.Window().cmdwizardp(1).Visible());
  }
  EXPECT_EQ(desk.State().wizard_step, 0);
  desk.Next();
  desk.Expect(1);
}

TEST(WheelGuide, PreviousWalksBackAndHidesWhenPressedAtTheStart) {
  GuideDesk desk;
  desk.Next();
  desk.Next();
  desk.Previous();
  desk.Expect(1);
  desk.Previous();
  desk.Expect(0);
  EXPECT_TRUE(desk.Window().cmdwizardp(1).Visible());
  desk.Previous();
  desk.Expect(0);
  EXPECT_FALSE(desk.Window().cmdwizardp(1).Visible());
  desk.Next();
  desk.Expect(1);
  EXPECT_TRUE(desk.Window().cmdwizardp(1).Visible());
}

// The last step stands as step 0.
TEST(WheelGuide, PreviousBehindTheLastStepShowsTheWelcome) {
  GuideDesk desk;
  for (int step = 1; step <= 14; ++step) desk.Next();
  desk.Previous();
  desk.Expect(0);
  EXPECT_FALSE(desk.Window().cmdwizardp(1).Visible());
}

TEST(WheelGuide, LinksGoToTheHeadingOfTheirSection) {
  GuideDesk desk;
  const int headings[] = {1, 4, 7, 11};
  for (int link = 3; link >= 0; --link) {
    desk.User().Click(desk.Window().Label11(link));
    desk.Expect(headings[link]);
    EXPECT_EQ(desk.State().wizard_step, headings[link]);
  }
  desk.Next();
  desk.Expect(2);
}

// The table of the wheel.

TEST(WheelTable, AHeaderSortsUpwardsFirstThenDownwards) {
  OpenDesk desk;
  wheels::WheelWizard& window = desk.Window();
  desk.SetBoxes({"30", "20", "10", "40", "50", "60", "70"});
  desk.User().Click(window.cmdwizard(1));
  const auto column = [&](int cell) {
    Texts texts;
    for (const auto& row : window.LstWheel.Rows()) {
      texts.push_back(row[static_cast<std::size_t>(cell)]);
    }
    return texts;
  };
  EXPECT_EQ(column(0), (Texts{"30 ", "20 ", "30 "}));
  EXPECT_EQ(column(1), (Texts{"20 ", "10 ", "10 "}));
  EXPECT_EQ(column(5), (Texts{"60 ", "70 ", "40 "}));
  desk.User().ClickHeader(window.LstWheel, 5);
  EXPECT_EQ(column(5), (Texts{"40 ", "60 ", "70 "}));
  desk.User().ClickHeader(window.LstWheel, 5);
  EXPECT_EQ(column(5), (Texts{"70 ", "60 ", "40 "}));
  // Every click turns the order, whichever the column.
  desk.User().ClickHeader(window.LstWheel, 0);
  EXPECT_EQ(column(0), (Texts{"20 ", "30 ", "30 "}));
  EXPECT_EQ(window.LstWheel.Row(1),
            (base::ListView::Cells{"20 ", "10 ", "40 ", "50 ", "60 ", "70 "}));
}

TEST(WheelTable, SortsRowsOfUnequalLength) {
  WheelDesk desk({SixWheel(7, {"1 2 3", "1 2", "1 2 4"})});
  desk.Open();
  desk.User().Pick(desk.Window().List2, 0);
  desk.SetBoxes({"11", "12", "13", "10"});
  desk.User().Click(desk.Window().cmdwizard(1));
  desk.User().ClickHeader(desk.Window().LstWheel, 2);
  EXPECT_EQ(desk.Window().LstWheel.Rows(),
            (std::vector<base::ListView::Cells>{
                {"11 ", "12 "}, {"11 ", "12 ", "10 "}, {"11 ", "12 ", "13 "}}));
}

}  // namespace
}  // namespace test
