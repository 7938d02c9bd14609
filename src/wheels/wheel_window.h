#pragma once

#include "base/controls/form.h"
#include "base/controls/group.h"
#include "base/controls/list_controls.h"
#include "base/controls/simple_controls.h"
#include "wheels/wheel_state.h"

namespace wheels {

inline constexpr int kHints = 15;           // boxes that tell one of the hottest numbers
inline constexpr int kLastQuickLabel = 98;  // the quick panel has the numbers 1 to 99

// The wheel window, in the order in which it is read: the guide, the choice of a wheel, the choice
// of numbers, the numbers, the wheel. It opens empty.
class FrmTxt : public base::Form {
 public:
  FrmTxt();

  // The guide.
  base::Group<base::Label> Label11{*this, "Label11", 0, 3};  // links to the four sections
  base::Label Label26{*this, "Label26"};
  base::Group<base::Label> cmdwizardp{*this, "cmdwizardp", 0, 1};

  // The wheel and the numbers to play it with.
  base::ComboBox CboMatch{*this, "CboMatch"};
  base::ComboBox CmbWheelPick{*this, "CmbWheelPick"};
  base::ListBox List2{*this, "List2"};
  base::ListBox List1{*this, "List1"};
  base::Group<base::TextBox> TXTActiveNumbers{*this, "TXTActiveNumbers", 0, kNumberBoxes - 1};
  base::Group<base::Label> Label4{*this, "Label4", 0, kNumberBoxes - 1};  // places, below the boxes

  // The quick input of numbers; its tag names the box that it serves.
  base::Panel PicNumbers{*this, "PicNumbers"};
  base::Group<base::Label> Label2{*this, "Label2", 0, kLastQuickLabel};
  base::Label Label8{*this, "Label8"};

  // The wheel made of both, and the temperature table behind its tab.
  base::Group<base::Label> cmdwizard{*this, "cmdwizard", 0, 3};
  base::Group<base::Label> cmdwizar{*this, "cmdwizar", 0, 1};
  base::ListView LstWheel{*this, "LstWheel"};
  base::ListView ListMain{*this, "ListMain"};

  // Work lists, out of sight.
  base::ListBox ListPerms{*this, "ListPerms"};
  base::ListBox List4{*this, "List4"};
  base::ListBox LstSorted{*this, "LstSorted"};
};

// Selects a row as the window's own code does, which runs the list's click.
void SelectRow(base::ListBox& list, int row);

}  // namespace wheels
