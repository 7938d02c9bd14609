#pragma once

#include "wheels/wheel_place.h"

namespace wheels {

// Typing numbers into the boxes: keys, padding, sorting and the quick input panel.
class NumberBoxes {
 public:
  explicit NumberBoxes(WheelPlace place) : place_(place) {}

  void Wire();

  void TXTActiveNumbers_KeyPress(base::TextBox& box, char& key);
  void TXTActiveNumbers_Change(base::TextBox& box);
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
  // Takes back the zero that padding put before a single digit.
  void TakeBackZero(base::TextBox& box);
  void PutQuickNumber(const base::Label& label);

  static constexpr int kNone = -1;

  WheelPlace place_;
  int typed_ = kNone;  // the box that the running key is typed into
  int begun_ = kNone;  // the box whose only digit was typed just now and stands behind a zero
  bool padding_rests_ = false;
};

}  // namespace wheels
