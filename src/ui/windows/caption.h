#pragma once

class QLabel;
class QString;
class QWidget;

namespace ui {

// A small text that names what stands below or beside it.
QLabel* MakeCaption(const QString& text, QWidget* parent);

}  // namespace ui
