#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "main/main_window.h"
#include "ui/bind/binder.h"

class QBoxLayout;
class QFrame;
class QLineEdit;
class QTableView;

namespace ui {

// The draws as a table and, beside it, as the lines in which they appeared. A row that is edited
// opens as a line of fields above the table.
class DrawResultsPanel : public QWidget {
 public:
  DrawResultsPanel(Binder& binder, main_window::MainWindow& window, QWidget* parent);

 private:
  QWidget* MakeTable(Binder& binder);
  QBoxLayout* MakeList(Binder& binder);
  QFrame* MakeRowEditor(Binder& binder);
  QLineEdit* MakeRowField(Binder& binder, QWidget* editor, int cell);
  void Restyle();

  main_window::MainWindow& window_;
  QTableView* table_ = nullptr;
  std::vector<std::function<void()>> restyle_;
};

// Which draws a scan reads, and how dates are read.
class ScanFilterPanel : public QWidget {
 public:
  ScanFilterPanel(Binder& binder, main_window::MainWindow& window, QWidget* parent);

 private:
  QWidget* MakeRange(Binder& binder);
  QWidget* MakeRangeFields(Binder& binder);
  QWidget* MakeDays(Binder& binder);
  QWidget* MakeCountry(Binder& binder);

  main_window::MainWindow& window_;
};

}  // namespace ui
