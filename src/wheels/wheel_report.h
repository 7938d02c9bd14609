#pragma once

#include <string>
#include <vector>

#include "wheels/generation.h"
#include "wheels/wheel_place.h"

namespace wheels {

// The page of a wheel: its facts and its lines in sorted order, each as LstSorted has it.
std::string WheelPage(const WheelState& wheel, const std::vector<std::string>& lines);

// Prints the wheel of the moment.
class WheelReport {
 public:
  WheelReport(WheelPlace place, Generation& generation) : place_(place), generation_(generation) {}

  void Wire();
  // Generates anew and makes the page; nothing happens when there is no line.
  void Print();
  // Writes the page at this path and opens it.
  void MakeWheel(const std::string& path);

 private:
  WheelPlace place_;
  Generation& generation_;
};

}  // namespace wheels
