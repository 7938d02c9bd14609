#pragma once

#include <QPointer>
#include <QWidget>

#include "scan/ball_selector.h"
#include "ui/bind/binder.h"

class QScrollArea;

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
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int CellSize() const;

  scan::FrmDropDown* form_;
};

}  // namespace ui
