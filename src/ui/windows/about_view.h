#pragma once

#include "shell/small_windows.h"
#include "ui/windows/dialog_view.h"

namespace ui {

// What this program is.
class AboutView : public DialogView {
  Q_OBJECT

 public:
  AboutView(shell::Desk& desk, shell::FrmAbout& form, QWidget* parent);
};

}  // namespace ui
