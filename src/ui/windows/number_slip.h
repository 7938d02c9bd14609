#pragma once

#include <QFrame>
#include <QPushButton>

#include "ui/bind/binder.h"
#include "wheels/wheel_window.h"

namespace ui {

// A number of the slip; one that is in play is crossed.
class SlipNumber : public QPushButton {
 public:
  explicit SlipNumber(QWidget* parent);
  void SetCrossed(bool crossed);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool crossed_ = false;
};

// The quick input of numbers, like the slip that is filled in at the counter.
class NumberSlip : public QFrame {
 public:
  NumberSlip(Binder& binder, wheels::FrmTxt& window, QWidget* parent);
};

}  // namespace ui
