#pragma once

#include <QFrame>

#include "ui/bind/binder.h"

class QHBoxLayout;
class QPushButton;
class QStackedWidget;

namespace ui {

// A card whose pages stand behind tabs, with room for buttons at the end of the strip.
class TabCard : public QFrame {
 public:
  explicit TabCard(QWidget* parent);

  // A tab behind those that are there. A click does not open its page by itself; the desk does, or
  // leaves it: whoever adds the tab sets it and the page from what the controls say.
  QPushButton* AddTab(Binder& binder, base::Label& label);
  QPushButton* AddButton(Binder& binder, base::Label& label);
  QStackedWidget& Pages() const { return *pages_; }

 private:
  QHBoxLayout* strip_;
  QStackedWidget* pages_;
  int tabs_ = 0;
};

}  // namespace ui
