#pragma once

#include <QFrame>
#include <QPushButton>

#include "shell/frame_window.h"
#include "ui/bind/binder.h"

namespace ui {

// A tool of the side bar: an icon above a word, marked while its window is in use.
class ToolLabel : public QPushButton {
  Q_OBJECT

 public:
  ToolLabel(QString icon, QWidget* parent);
  void SetMarked(bool marked);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect WordRect(const QFont& font, int width) const;
  QFont WordFont() const;

  QString icon_;
  bool marked_ = false;
};

// The tools at the left of the frame.
class SideBar : public QFrame {
  Q_OBJECT

 public:
  SideBar(shell::FrmMain& frame, Binder& binder, QWidget* parent);

 private:
  ToolLabel* AddTool(const char* icon);
};

}  // namespace ui
