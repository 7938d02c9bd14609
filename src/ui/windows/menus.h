#pragma once

#include <QMenuBar>

#include "ui/bind/binder.h"

namespace ui {

// The menus of a form as it has them, in its order, kept up to date through the binder.
void FillMenuBar(QMenuBar* bar, base::Form& form, Binder& binder);
// The entries below one menu of the form.
void FillMenu(QMenu* menu, base::MenuItem& parent, Binder& binder);

// Our own menu: light or dark, and the size of the text. `guard` runs what may fail to be stored.
QMenu* MakeViewMenu(QWidget* parent, const std::function<void(std::function<void()>)>& guard);

}  // namespace ui
