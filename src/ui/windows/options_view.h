#pragma once

#include "shell/small_windows.h"
#include "ui/windows/dialog_view.h"

namespace ui {

// The preferences.
class OptionsView : public DialogView {
  Q_OBJECT

 public:
  OptionsView(shell::Desk& desk, shell::FrmOptions& form, QWidget* parent);
};

}  // namespace ui
