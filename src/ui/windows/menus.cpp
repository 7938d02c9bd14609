#include "ui/windows/menus.h"

#include <QActionGroup>
#include <QMenu>

#include "ui/theme/theme.h"

namespace ui {
namespace {

std::vector<base::MenuItem*> EntriesBelow(base::Form& form, const base::MenuItem* parent) {
  std::vector<base::MenuItem*> entries;
  for (base::Control* control : form.Controls()) {
    if (control->Kind() != base::ControlKind::kMenuItem) continue;
    auto* const item = static_cast<base::MenuItem*>(control);
    if (item->Parent() == parent) entries.push_back(item);
  }
  return entries;
}

void Follow(QAction* action, base::MenuItem& item, Binder& binder) {
  action->setObjectName(QString::fromStdString(item.Name()));
  binder.Watch(item, [action, &item] {
    action->setText(Shown(item.Caption()).trimmed());
    action->setEnabled(item.Enabled());
    action->setVisible(item.Visible());
    action->setCheckable(item.Checked());
    action->setChecked(item.Checked());
  });
}

void AddEntry(QMenu* menu, base::MenuItem& item, Binder& binder) {
  if (item.IsSeparator()) {
    menu->addSeparator();
    return;
  }
  if (!EntriesBelow(item.Window(), &item).empty()) {
    QMenu* const below = menu->addMenu(QString());
    Follow(below->menuAction(), item, binder);
    FillMenu(below, item, binder);
    return;
  }
  QAction* const action = menu->addAction(QString());
  Follow(action, item, binder);
  QObject::connect(action, &QAction::triggered, &binder, [&binder, &item] {
    binder.Act([&item](base::User& user) { user.Choose(item); });
  });
}

template <typename Value, typename Set>
void AddChoices(QMenu* menu, std::initializer_list<std::pair<const char*, Value>> choices,
                Value now, Set set) {
  auto* const group = new QActionGroup(menu);
  for (const auto& [text, value] : choices) {
    QAction* const action = menu->addAction(QString::fromLatin1(text));
    action->setCheckable(true);
    action->setChecked(value == now);
    group->addAction(action);
    QObject::connect(action, &QAction::triggered, menu, [set, chosen = value] { set(chosen); });
  }
}

}  // namespace

void FillMenu(QMenu* menu, base::MenuItem& parent, Binder& binder) {
  bool any = false;
  for (base::MenuItem* item : EntriesBelow(parent.Window(), &parent)) {
    AddEntry(menu, *item, binder);
    any = any || !item->IsSeparator();
  }
  // A menu of lines only would open as an empty box.
  if (!any) menu->menuAction()->setEnabled(false);
}

void FillMenuBar(QMenuBar* bar, base::Form& form, Binder& binder) {
  for (base::MenuItem* top : EntriesBelow(form, nullptr)) {
    QMenu* const menu = bar->addMenu(QString());
    Follow(menu->menuAction(), *top, binder);
    FillMenu(menu, *top, binder);
  }
}

QMenu* MakeViewMenu(QWidget* parent, const std::function<void(std::function<void()>)>& guard) {
  auto* const menu = new QMenu(QStringLiteral("&View"), parent);
  Theme& theme = Theme::Current();
  AddChoices<Mode>(
      menu, {{"S&ystem colours", Mode::kSystem}, {"&Light", Mode::kLight}, {"&Dark", Mode::kDark}},
      theme.CurrentMode(),
      [guard](Mode mode) { guard([mode] { Theme::Current().SetMode(mode); }); });
  menu->addSeparator();
  AddChoices<TextSize>(menu,
                       {{"&Small text", TextSize::kSmall},
                        {"&Normal text", TextSize::kNormal},
                        {"L&arge text", TextSize::kLarge},
                        {"La&rgest text", TextSize::kLargest}},
                       theme.CurrentTextSize(), [guard](TextSize size) {
                         guard([size] { Theme::Current().SetTextSize(size); });
                       });
  return menu;
}

}  // namespace ui
