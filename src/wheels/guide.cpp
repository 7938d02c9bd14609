#include "wheels/guide.h"

#include <array>

#include "base/language/numbers.h"

namespace wheels {
namespace {

constexpr int kNoSection = -1;
constexpr std::int16_t kHighestStep = 20;
constexpr std::int16_t kLastStep = 14;
constexpr base::Colour kWhite = 0xFFFFFF;
constexpr base::Colour kYellow = 0x00FFFF;

struct Step {
  int section;
  const char* text;
};

// The runs of blanks begin the second line of the panel.
constexpr std::array<Step, kLastStep + 1> kSteps{{
    {kNoSection,
     "Welcome to QND wheeling wizard. Using our new improved wheeling system is quick and"
     " simple.                        Use the two <Previous and Next > buttons for a step"
     " by step guide through creating a wheel"},
    {0,
     "Section 1. Setting up your wheel. Use both drop down boxes to select the wheel"
     " settings..."},
    {0,
     "1: Use the left combo box to select the amount of numbers you wish to guarantee a"
     " win with"},
    {0,
     "1: Use the right combo box to select the amount of numbers that are drawn each week"
     " in your draw"},
    {1,
     "Section 2. Selecting your wheel. Select a wheel from the list of wheels availible."
     "                                                Remember the number of lines is"
     " equal to the cost"},
    {1, "2: Depending on your settings you will see a list of between 5 to 20 wheels"},
    {1,
     "2: Select one and it will highlight blue, note the textbox count at the bottom"
     " matching the selected number wheel"},
    {2, "Section 3. Selecting numbers from QND's findings or use your own"},
    {2,
     "3: Select a set of numbers from the list to populate the wheel text boxes. If they"
     " do not populate then you need to generate some stats from the main user windows"
     " scan buton"},
    {2, "3: Selecting number 8: Lets you enter your own numbers"},
    {2, "3: Selecting number 9: Populate the text boxes from 1 to 20"},
    {3,
     "Section 4. If you choose to enter your own numbers then use the text boxes to enter"
     " them now. Double click any textbox to view the quick input window"},
    {3,
     "4: It is recommended you sort the draw numbers using the Sort Numbers button; it"
     " does not effect the wheels coverage"},
    {3, "4: You may now create the wheel by clicking the Generate button"},
    {3,
     "4: You may print the wheel and more information relating to the wheel by clicking"
     " the Print button"},
}};

// One behind the heading of each section.
constexpr std::array<std::int16_t, 4> kBehindHeading{2, 5, 8, 12};

}  // namespace

void Guide::Wire() {
  FrmTxt& window = place_.window;
  window.cmdwizardp(0).on.click = [this] { Next(); };
  window.cmdwizardp(1).on.click = [this] { Previous(); };
  window.Label11.Each([this](base::Label& link) {
    link.on.click = [this, section = link.Index()] { GoToSection(section); };
  });
}

void Guide::Next() {
  std::int16_t& step = place_.state.wizard_step;
  if (step < kHighestStep) ++step;
  place_.window.cmdwizardp(1).SetVisible(true);
  ShowStep();
}

void Guide::Previous() {
  std::int16_t& step = place_.state.wizard_step;
  if (step > 0) {
    --step;
  } else {
    place_.window.cmdwizardp(1).SetVisible(false);
  }
  ShowStep();
}

void Guide::GoToSection(int section) {
  place_.state.wizard_step = kBehindHeading.at(static_cast<std::size_t>(section));
  Previous();
}

void Guide::ShowStep() {
  FrmTxt& window = place_.window;
  std::int16_t& step = place_.state.wizard_step;
  const Step& shown = kSteps.at(static_cast<std::size_t>(step));
  window.Label11.Each([](base::Label& link) { link.SetBackColor(kWhite); });
  window.Label26.SetCaption(shown.text);
  if (shown.section != kNoSection) window.Label11(shown.section).SetBackColor(kYellow);
  // The guide begins anew behind its end.
  if (step == kLastStep) step = 0;
}

}  // namespace wheels
