#pragma once

#include <QWidget>
#include <vector>

#include "main/main_window.h"
#include "shell/desk.h"
#include "ui/bind/binder.h"

class QFrame;
class QPushButton;
class QSplitter;
class QStackedWidget;

namespace ui {

// The main window: the draw on show, the graph, and below them the tabs and the report.
class MainWindowView : public QWidget {
 public:
  MainWindowView(shell::Desk& desk, main_window::MainWindow& window, QWidget* parent);

 private:
  struct Tab {
    base::Label* label;
    base::Panel* panel;
    QPushButton* button;
  };

  QSplitter* MakeLowerRow();
  QFrame* MakeTabCard();
  QWidget* MakePanel(const base::Panel& panel);
  void ShowTab();

  main_window::MainWindow* window_;
  Binder binder_;
  std::vector<Tab> tabs_;
  QStackedWidget* panels_ = nullptr;
};

}  // namespace ui
