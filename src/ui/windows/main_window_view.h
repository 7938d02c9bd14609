#pragma once

#include <QWidget>
#include <vector>

#include "shell/desk.h"
#include "store/main_window.h"
#include "ui/bind/binder.h"

class QFrame;
class QPushButton;
class QSplitter;
class QStackedWidget;

namespace ui {

// The main window: the draw on show, the graph, and below them the tabs and the report.
class MainWindowView : public QWidget {
 public:
  MainWindowView(shell::Desk& desk, store::MainWindow& window, QWidget* parent);

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

  store::MainWindow* window_;
  Binder binder_;
  std::vector<Tab> tabs_;
  QStackedWidget* panels_ = nullptr;
};

}  // namespace ui
