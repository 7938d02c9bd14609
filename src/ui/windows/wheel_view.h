#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "ui/bind/binder.h"
#include "ui/windows/ball_field.h"
#include "wheels/wheel_window.h"

class QBoxLayout;
class QFrame;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace ui {

class NumberSlip;

// The wheel window: the guide on top, then the road from the choice of a wheel to its lines.
class WheelView : public QWidget {
  Q_OBJECT

 public:
  WheelView(shell::Desk& desk, wheels::FrmTxt& window, QWidget* parent);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QFrame* MakeCard(int step, const QString& title, QBoxLayout*& head, QBoxLayout*& column);
  QFrame* MakeGuide();
  QWidget* MakeChoice();
  QFrame* MakeNumbers();
  QWidget* MakeBox(int place);
  QFrame* MakeResult();
  void ShowPromise();
  void ShowTab();
  void PlaceSlip();
  void Restyle();

  wheels::FrmTxt* window_;
  Binder binder_;
  QLabel* promise_ = nullptr;
  QFrame* numbers_ = nullptr;
  QStackedWidget* pages_ = nullptr;
  QPushButton* wheel_tab_ = nullptr;
  QPushButton* numbers_tab_ = nullptr;
  NumberSlip* slip_ = nullptr;
  std::vector<std::function<void()>> restyle_;
};

}  // namespace ui
