#include "ui/windows/eliding_label.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace ui {

ElidingLabel::ElidingLabel(int lines, QWidget* parent) : QLabel(parent), lines_(lines) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QStringList ElidingLabel::Lines() const {
  QStringList lines = text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  for (QString& line : lines) line = line.trimmed();
  return lines;
}

QSize ElidingLabel::sizeHint() const {
  int width = 0;
  for (const QString& line : Lines()) {
    width = std::max(width, fontMetrics().horizontalAdvance(line));
  }
  return {width, minimumSizeHint().height()};
}

QSize ElidingLabel::minimumSizeHint() const { return {0, lines_ * fontMetrics().height()}; }

void ElidingLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStringList lines = Lines();
  int flags = static_cast<int>(alignment());
  if (lines.size() < lines_) {
    flags |= Qt::TextWordWrap;
  } else {
    for (QString& line : lines) line = fontMetrics().elidedText(line, Qt::ElideRight, width());
  }
  style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(),
                        lines.mid(0, lines_).join(QLatin1Char('\n')), foregroundRole());
}

}  // namespace ui
