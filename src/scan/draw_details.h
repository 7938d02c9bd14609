#pragma once

#include "main/workplace.h"

namespace scan {

// Brings the detail captions of the balls on show up to date: text, count and average of each.
void FillTheDetailsMainWindow(main_window::Workplace& place);

}  // namespace scan
