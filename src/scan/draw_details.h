#pragma once

#include "store/workplace.h"

namespace scan {

// Brings the detail captions of the balls on show up to date: text, count and average of each.
void FillTheDetailsMainWindow(store::Workplace& place);

}  // namespace scan
