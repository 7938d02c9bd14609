#pragma once

#include "shell/small_windows.h"
#include "ui/windows/dialog_view.h"

namespace ui {

// The welcome at the start.
class SplashView : public DialogView {
  Q_OBJECT

 public:
  SplashView(shell::Desk& desk, shell::FrmSplash& form, QWidget* parent);
};

}  // namespace ui
