#pragma once

#include <QWidget>

#include "shell/desk.h"
#include "ui/bind/binder.h"

class QBoxLayout;
class QLabel;
class QShowEvent;

namespace ui {

// What the small windows share: a window in front of the frame that is as large as its content, and
// whose close button and Escape are the person's wish to close the form.
class DialogView : public QWidget {
  Q_OBJECT

 public:
  DialogView(shell::Desk& desk, base::Form& form, QWidget* parent);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

  Binder& Bound() { return binder_; }
  // The picture of the program beside its name and version.
  void AddBanner(QBoxLayout* column, QLabel* title, QLabel* version);
  // A row of buttons at the right.
  QBoxLayout* AddButtonRow(QBoxLayout* column);

 private:
  base::Form& form_;
  Binder binder_;
};

}  // namespace ui
