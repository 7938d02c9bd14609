#pragma once

#include "wheels/wheel_place.h"

namespace wheels {

// The guide through making a wheel: fifteen steps in four sections.
class Guide {
 public:
  explicit Guide(WheelPlace place) : place_(place) {}

  void Wire();
  void Next();
  void Previous();
  // To the heading of a section, 0 to 3.
  void GoToSection(int section);

 private:
  void ShowStep();

  WheelPlace place_;
};

}  // namespace wheels
