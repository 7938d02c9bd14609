#pragma once

class QWidget;

namespace base {
class Form;
}
namespace shell {
class Desk;
}

namespace ui {

// The view of a window, by the window's name; null where it has none. A dialog stands in front of
// its owner, which may be null.
QWidget* MakeView(shell::Desk& desk, base::Form& form, QWidget* owner);

}  // namespace ui
