#pragma once

#include "base/ports/message_boxes.h"

namespace main_window {

// Shows tip 5, 6 or 7; any other number shows nothing. The caller asks first whether tips are on.
void ShowTip(base::MessageBoxes& boxes, int number);

}  // namespace main_window
