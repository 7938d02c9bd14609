#include "ui/windows/caption.h"

#include <QLabel>

namespace ui {

QLabel* MakeCaption(const QString& text, QWidget* parent) {
  auto* const label = new QLabel(text, parent);
  label->setProperty("caption", true);
  return label;
}

}  // namespace ui
