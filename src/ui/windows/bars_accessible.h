#pragma once

namespace ui {

// From now on a screen reader finds each column of a BarsView as a child with a name and a value.
void MakeBarsAccessible();

}  // namespace ui
