#include "ui/windows/options_view.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/theme/theme.h"

namespace ui {
namespace {

constexpr int kWidth = 340;

}  // namespace

OptionsView::OptionsView(shell::Desk& desk, shell::FrmOptions& form, QWidget* parent)
    : DialogView(desk, form, parent) {
  const Theme& theme = Theme::Current();
  const int inside = theme.Space(Spacing::kInside);
  auto* const column = new QVBoxLayout(this);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->setContentsMargins(inside, inside, inside, inside);
  column->setSpacing(theme.Space(Spacing::kGap));

  const auto add_card = [this, column, inside, &theme] {
    auto* const card = new QFrame(this);
    card->setProperty("card", true);
    auto* const rows = new QVBoxLayout(card);
    rows->setContentsMargins(inside, inside, inside, inside);
    rows->setSpacing(theme.Space(Spacing::kSmall));
    column->addWidget(card);
    return rows;
  };

  QVBoxLayout* const start = add_card();
  auto* const splash = new QCheckBox(this);
  Bound().Bind(splash, form.CheckSplash);
  start->addWidget(splash);

  QVBoxLayout* const dates = add_card();
  auto* const heading = new QLabel(this);
  heading->setProperty("heading", true);
  Bound().Bind(heading, form.LblDateFormat);
  dates->addWidget(heading);
  form.OptDateFormat.Each([this, dates](base::Option& option) {
    auto* const button = new QRadioButton(this);
    Bound().Bind(button, option);
    dates->addWidget(button);
  });
  dates->addStrut(theme.Scaled(kWidth) - 4 * inside);

  QVBoxLayout* const tips = add_card();
  auto* const show_tips = new QCheckBox(this);
  Bound().Bind(show_tips, form.ChkMsgBox);
  tips->addWidget(show_tips);

  auto* const apply = new QPushButton(this);
  apply->setProperty("accent", true);
  Bound().Bind(apply, form.Label3);
  AddButtonRow(column)->addWidget(apply);
}

}  // namespace ui
