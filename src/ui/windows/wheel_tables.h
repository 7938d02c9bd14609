#pragma once

#include <QHash>
#include <QTableView>
#include <functional>
#include <optional>

#include "ui/bind/binder.h"
#include "ui/theme/theme.h"
#include "wheels/wheel_window.h"

namespace ui {

// The role of a band by its name in the temperature table; none for any other text.
std::optional<Role> BandNamed(const QString& name);

// The band of a number in the temperature table; none when it is not there.
std::optional<Role> BandOfNumber(const wheels::FrmTxt& window, const QString& number);

// The lines of the wheel as rows of balls in the colours of their bands.
class WheelLines : public QTableView {
 public:
  WheelLines(Binder& binder, wheels::FrmTxt& window, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void TakeBands(const wheels::FrmTxt& window);
  void FitColumns(const wheels::FrmTxt& window);
  void Restyle();

  QHash<QString, Role> bands_;
};

// The numbers of the last scan from cold to hot. A row can be dragged onto a box.
class TemperatureTable : public QTableView {
 public:
  TemperatureTable(Binder& binder, wheels::FrmTxt& window, QWidget* parent);

 private:
  void Restyle();
};

}  // namespace ui
