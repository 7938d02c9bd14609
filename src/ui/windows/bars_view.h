#pragma once

#include <QElapsedTimer>
#include <QFont>
#include <QWidget>
#include <array>

#include "main/main_window.h"
#include "shell/desk.h"
#include "store/session.h"
#include "ui/bind/binder.h"

class QTimer;

namespace ui {

// The strip of bars: a column for each ball with its number above and its count below, painted over
// the bar controls of the main window. It needs a width of `minimumWidth` and fills what it gets.
class BarsView : public QWidget {
  Q_OBJECT

 public:
  BarsView(shell::Desk& desk, main_window::MainWindow& window, Binder& binder, QWidget* parent);

  // Balls 1 to this one have a column.
  int Columns() const { return columns_; }
  int ColumnAt(int x) const;
  QRect ColumnRect(int ball) const;
  // The ball that the keyboard or the mouse is on; 0 for none.
  int CurrentBall() const { return current_; }
  // "Ball 7", and "277, hot": the column in words.
  QString BallName(int ball) const;
  QString BallValue(int ball) const;
  // True while the bands have colours of their own, so that marks tell them apart too.
  bool ShowsBands() const;
  // False when balls were counted and none of them is warm: a style in two halves has none.
  bool HasWarm() const { return has_warm_; }

 signals:
  // The person went with the keyboard to the column of this ball.
  void walked(int ball);
  void bandsChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // A bar's height as a part of the track's, on its way from one value to another.
  struct Growth {
    double from = 0;
    double to = 0;
    double now = 0;
  };
  struct Column;

  void Follow(Binder& binder, int ball);
  void TakeBar(int ball);
  void TakeDraw();
  void TakeColumns();
  void TakeBands();
  void TakeFonts();
  void Synced();
  void Step();
  void GoTo(int ball, bool by_key);
  bool OnShow(int ball) const;
  base::Band BandOf(int ball) const;

  double Pitch() const;
  // What stands above the column: another ball than its own once the strip is sorted.
  int BallAbove(int ball) const;
  void PaintColumn(QPainter& painter, int ball) const;
  void PaintGround(QPainter& painter, const Column& column) const;
  void PaintBar(QPainter& painter, const Column& column) const;
  void PaintMark(QPainter& painter, const Column& column, const QRectF& bar) const;
  void PaintLabels(QPainter& painter, const Column& column) const;

  shell::Desk& desk_;
  main_window::MainWindow* window_;
  Binder& binder_;
  int columns_ = 0;
  int current_ = 0;
  bool bands_shown_ = false;
  bool has_warm_ = true;
  const int normal_bar_;  // the width of a bar that fills the view, in the desk's units
  double zoom_ = 1;
  bool moving_ = false;
  std::size_t count_digits_ = 0;
  std::array<Growth, main_window::kLastBar + 1> growth_{};
  std::array<std::uint8_t, store::kBalls> balls_on_show_{};
  QTimer* clock_;
  QElapsedTimer growing_since_;
  QFont number_font_;
  QFont count_font_;
  int number_height_ = 0;
  int count_height_ = 0;
};

}  // namespace ui
