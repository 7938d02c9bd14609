#pragma once

#include <string>

#include "base/windows/desktop.h"
#include "wheels/wheel_state.h"
#include "wheels/wheel_window.h"

namespace wheels {

// What every subject of the wheel window works with.
struct WheelPlace {
  FrmTxt& window;
  WheelState& state;
  base::Desktop& desktop;
  const std::string& program_folder;

  base::Ports& World() const { return desktop.World(); }
};

}  // namespace wheels
