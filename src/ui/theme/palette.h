#pragma once

#include <QPalette>

namespace ui {

// The roles as the toolkit's own palette, for what the style sheet does not reach.
QPalette MakePalette(bool dark);

}  // namespace ui
