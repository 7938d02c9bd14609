#pragma once

#include <QStatusBar>

#include "shell/desk.h"
#include "ui/bind/binder.h"

class QLabel;

namespace ui {

// The line at the foot of the frame: the open database, how many draws it holds, their dates, what
// there is to tell of it with links to what can be done, and the day that scans are limited to.
class StatusLine : public QStatusBar {
  Q_OBJECT

 public:
  StatusLine(shell::Desk& desk, shell::FrmMain& frame, Binder& binder, QWidget* parent);
  // Reads the figures anew.
  void Refresh();

 private:
  QLabel* AddText(const char* name, const char* meaning);
  QString Dates() const;
  void ShowNotices(bool open);
  void Follow(const QString& link);

  shell::Desk& desk_;
  QLabel* database_;
  QLabel* draws_;
  QLabel* dates_;
  QLabel* notices_;
  QLabel* day_;
};

}  // namespace ui
