#include "ui/windows/tab_card.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "ui/theme/theme.h"

namespace ui {

TabCard::TabCard(QWidget* parent)
    : QFrame(parent), strip_(new QHBoxLayout), pages_(new QStackedWidget(this)) {
  const Theme& theme = Theme::Current();
  const int inside = theme.Space(Spacing::kInside);
  setProperty("card", true);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(1, theme.Space(Spacing::kTiny), 1, inside);
  column->setSpacing(0);
  strip_->setContentsMargins(theme.Space(Spacing::kSmall), 0, theme.Space(Spacing::kSmall), 0);
  strip_->setSpacing(theme.Space(Spacing::kTiny));
  strip_->addStretch(1);
  column->addLayout(strip_);
  auto* const line = new QFrame(this);
  line->setProperty("hairline", true);
  line->setFixedHeight(1);
  column->addWidget(line);
  pages_->setContentsMargins(inside, theme.Space(Spacing::kSmall), inside, 0);
  column->addWidget(pages_, 1);
}

QPushButton* TabCard::AddTab(Binder& binder, base::Label& label) {
  auto* const tab = new QPushButton(this);
  tab->setProperty("tab", true);
  tab->setCheckable(true);
  binder.Bind(tab, label);
  strip_->insertWidget(tabs_++, tab);
  return tab;
}

QPushButton* TabCard::AddButton(Binder& binder, base::Label& label) {
  auto* const button = new QPushButton(this);
  binder.Bind(button, label);
  strip_->addWidget(button);
  return button;
}

}  // namespace ui
