#pragma once

#include <QWidget>

#include "scan/ball_selector.h"
#include "ui/bind/binder.h"

namespace ui {

// The board of the ball selector: its button and number above, the painted columns below.
class BallSelectorView : public QWidget {
  Q_OBJECT

 public:
  BallSelectorView(shell::Desk& desk, scan::FrmDropDown& form, QWidget* parent);

 private:
  Binder binder_;
};

// Columns by ball, ten rows of marks.
class BallBoard : public QWidget {
  Q_OBJECT

 public:
  BallBoard(Binder& binder, scan::FrmDropDown& form, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // The largest cells that this height holds, within bounds.
  void FitTo(int height);

  scan::FrmDropDown* form_;
  int cell_ = 0;
};

}  // namespace ui
