#pragma once

#include <QFrame>

#include "main/main_window.h"
#include "shell/desk.h"
#include "ui/bind/binder.h"
#include "ui/windows/bars_view.h"

class QBoxLayout;
class QScrollArea;

namespace ui {

// The graph with its heading, the key to its colours and the Scan button.
class GraphCard : public QFrame {
 public:
  GraphCard(shell::Desk& desk, main_window::MainWindow& window, Binder& binder, QWidget* parent);

 private:
  QBoxLayout* MakeHead(Binder& binder);
  QScrollArea* MakeStrip();

  main_window::MainWindow& window_;
  BarsView* bars_;
};

}  // namespace ui
