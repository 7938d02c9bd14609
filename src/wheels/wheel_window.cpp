#include "wheels/wheel_window.h"

#include "base/language/numbers.h"

namespace wheels {
namespace {

constexpr base::Colour kButtonColour = 0xE0E0E0;
constexpr base::Colour kWhite = 0xFFFFFF;

constexpr const char* kWelcome =
    "Welcome to QND wheeling wizard. Using our new improved wheeling system is quick and simple."
    "                        Use the two blue links on the right for a step by step guide to "
    "creating a wheel";

struct ButtonText {
  const char* caption;
  const char* hint;
};
constexpr ButtonText kButtons[] = {
    {"<- Sort Numbers", "Numarically Sort The Numbers above"},
    {"Generate", "Generate Wheel"},
    {"Print", "Generate Wheel"},
    {"Check for wins", "Generate Wheel"},
};

}  // namespace

FrmTxt::FrmTxt() : Form("FrmTxt", base::FormRole::kChild) {
  SetCaption("Wheels");

  Label26.SetCaption(kWelcome);
  Label11.Each([](base::Label& link) {
    link.SetCaption("Section " + base::IntegerText(link.Index() + 1));
    link.SetBackColor(kWhite);
  });
  cmdwizardp(0).SetCaption("Next >");
  cmdwizardp(1).SetCaption("< Previous");
  cmdwizardp(1).SetVisible(false);

  CboMatch.SetItems({"3", "4", "5"});
  CboMatch.SetText("3");
  CboMatch.SetToolTipText("Guarantee winning numbers list");
  CmbWheelPick.SetItems({"4", "5", "6"});
  CmbWheelPick.SetText("6");
  CmbWheelPick.SetToolTipText("Select the number of balls drawn in your lottery");
  List2.SetToolTipText("Wheels");
  List1.SetToolTipText("Number Sets");
  TXTActiveNumbers.Each([](base::TextBox& box) {
    box.SetToolTipText("Double click this textbox to display the quick number input");
    box.SetVisible(false);
  });
  Label4.Each([](base::Label& label) {
    label.SetCaption(base::IntegerText(label.Index() + 1));
    label.SetVisible(false);
  });

  PicNumbers.SetVisible(false);
  Label2.Each([](base::Label& label) {
    label.SetCaption(base::IntegerText(label.Index() + 1));
    label.SetBackColor(kWhite);
  });
  Label8.SetCaption("Close");

  cmdwizard.Each([](base::Label& button) {
    const ButtonText& text = kButtons[button.Index()];
    button.SetCaption(text.caption);
    button.SetToolTipText(text.hint);
    button.SetBackColor(kButtonColour);
  });
  cmdwizar(0).SetCaption("Wheel");
  cmdwizar(1).SetCaption("Numbers");
  LstWheel.SetHeaders({"1", "2", "3", "4", "5", "6", "7", "8"});
  LstWheel.BringToFront();
  ListMain.SetHeaders({"Occurrence", "Number", "H/W/C"});
  ListMain.SetToolTipText("Displays the numbers from cold to hot");

  for (base::ListBox* list : {&ListPerms, &List4, &LstSorted}) {
    list->SetSorted();
    list->SetVisible(false);
  }
}

void SelectRow(base::ListBox& list, int row) {
  list.SetListIndex(row);
  if (list.on.click) list.on.click();
}

}  // namespace wheels
