#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "wheels/wheel_place.h"

namespace wheels {

// Choosing a wheel from the library, and the numbers to play it with.
class Choosing {
 public:
  explicit Choosing(WheelPlace place) : place_(place) {}

  void Wire();

  // Refills a list with the wheels of this pick and the chosen match.
  void LoadWheels(base::ListBox& list, std::int16_t pick);
  void CboMatch_Click();
  void CmbWheelPick_Click();
  void List2_Click();
  void List1_Click();

  // Refills the temperature table from ListPerms.
  void DoColorTemp();
  // Fills the number boxes with set 1 to 10 and colours them. Error 9 at the first box whose number
  // the table does not have, with the boxes before it filled.
  void MostCommonLocal(int set);
  // Puts the entries of the number sets into their list.
  void FillNumberSets();
  // The 15 hottest numbers, of entries in the form of ListPerms, as the hints of the first boxes.
  void FillHints();

 private:
  void FillBox(int set, int box);
  void ColourBoxes();
  void ShowBoxes();

  WheelPlace place_;
};

}  // namespace wheels
