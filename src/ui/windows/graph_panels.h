#pragma once

#include <QWidget>

#include "main/main_window.h"
#include "ui/bind/binder.h"

class QBoxLayout;

namespace ui {

// How often a line of numbers would have won: the numbers, the button, the table.
class CombinationsPanel : public QWidget {
 public:
  CombinationsPanel(Binder& binder, main_window::MainWindow& window, QWidget* parent);

 private:
  QBoxLayout* MakeNumbers(Binder& binder);

  main_window::MainWindow& window_;
};

// What the graph shows: its style, the list of choices, the width of the bars.
class GraphOptionsPanel : public QWidget {
 public:
  GraphOptionsPanel(Binder& binder, main_window::MainWindow& window, QWidget* parent);

 private:
  QBoxLayout* MakeChoices(Binder& binder);
  QBoxLayout* MakeStyles(Binder& binder);

  main_window::MainWindow& window_;
};

}  // namespace ui
