#pragma once

#include "wheels/wheel_place.h"

namespace wheels {

// Makes the chosen wheel with the numbers of the boxes.
class Generation {
 public:
  explicit Generation(WheelPlace place) : place_(place) {}

  void Wire();

  // Fills LstWheel and LstSorted with the first wheel of the library that has the pool, pick and
  // match chosen; both stay empty when there is none.
  void Generate();
  void PopulateFromTxtBoxes();
  // A line of places with the user's numbers in their stead.
  std::string ConvertToUserNumbers(const std::string& line) const;
  // Adds a row to LstWheel, and returns the line for LstSorted.
  std::string DoFinal(const std::string& line);

 private:
  void SortByColumn(int column);

  WheelPlace place_;
  bool ascending_ = false;  // the next click on a column's header sorts the other way
};

}  // namespace wheels
