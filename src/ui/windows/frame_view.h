#pragma once

#include <QMainWindow>
#include <QMap>

#include "shell/desk.h"
#include "ui/bind/binder.h"

class QLabel;
class QStackedWidget;

namespace ui {

class StatusLine;

// The frame: menus, tools at the left, the working windows in the middle, the status line. The
// working window in front fills the room.
class FrameView : public QMainWindow {
  Q_OBJECT

 public:
  FrameView(shell::Desk& desk, shell::FrmMain& frame);

  void AddChild(base::Form& form, QWidget* view);
  void RaiseChild(base::Form& form);
  void RemoveChild(base::Form& form);
  // At the place that the desk has for it, or in the middle of the screen.
  void ShowInPlace();
  void PopUp(base::MenuItem& menu);
  void RefreshStatus();
  // The desk is closing the frame; no further question to it.
  void Release();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildMenus();
  void BuildRoom();
  void CloseChild();
  void TellPlace();

  shell::Desk& desk_;
  shell::FrmMain& frame_;
  Binder binder_;
  QStackedWidget* room_ = nullptr;
  StatusLine* status_ = nullptr;
  QMap<base::Form*, QWidget*> children_;  // what stands in the room for each
  bool released_ = false;
  bool placed_ = false;
};

}  // namespace ui
