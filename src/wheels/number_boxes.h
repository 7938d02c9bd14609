#pragma once

#include <array>

#include "wheels/wheel_place.h"

namespace wheels {

// Typing numbers into the boxes: keys, padding, sorting and the quick input panel.
class NumberBoxes {
 public:
  explicit NumberBoxes(WheelPlace place) : place_(place) {}

  void Wire();

  void TXTActiveNumbers_KeyPress(base::TextBox& box, char& key);
  // Pads every box that holds one character.
  void AddOto1LengthNumbers();
  // Sorts the numbers; a blank box stays and holds the numbers before and behind it apart.
  void SortNumbers();
  // Warns when two boxes hold the same number.
  void CheckForDuplicates(int first, int second);
  // Marks in the quick panel the numbers that the boxes hold.
  void ChangeColors();

 private:
  void WireBox(base::TextBox& box);
  void Pad(base::TextBox& box);
  // Takes back the zero that padding put before a single typed digit.
  void TakeBackZero(base::TextBox& box);
  void PutQuickNumber(const base::Label& label);

  WheelPlace place_;
  std::array<bool, kNumberBoxes> padded_{};  // holds one digit behind a zero of the padding
  bool padding_rests_ = false;
};

}  // namespace wheels
