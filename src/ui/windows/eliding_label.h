#pragma once

#include <QLabel>

namespace ui {

// A label that takes the room it is given: its text flows into up to `lines` lines, and a line for
// which there is no room ends in dots. Line breaks of the text stay.
class ElidingLabel : public QLabel {
 public:
  ElidingLabel(int lines, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QStringList Lines() const;

  const int lines_;
};

}  // namespace ui
