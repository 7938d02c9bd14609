#include "ui/windows/about_view.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/theme/theme.h"

namespace ui {
namespace {

constexpr int kWidth = 400;

}  // namespace

AboutView::AboutView(shell::Desk& desk, shell::FrmAbout& form, QWidget* parent)
    : DialogView(desk, form, parent) {
  const Theme& theme = Theme::Current();
  const int margin = theme.Space(Spacing::kInside) + theme.Space(Spacing::kSmall);
  auto* const column = new QVBoxLayout(this);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->setContentsMargins(margin, margin, margin, theme.Space(Spacing::kInside));
  column->setSpacing(theme.Space(Spacing::kInside));

  auto* const title = new QLabel(this);
  auto* const version = new QLabel(this);
  AddBanner(column, title, version);
  Bound().Bind(title, form.lblTitle);
  Bound().Bind(version, form.lblVersion);

  auto* const description = new QLabel(this);
  description->setWordWrap(true);
  description->setFixedWidth(theme.Scaled(kWidth));
  Bound().Bind(description, form.lblDescription);
  column->addWidget(description);

  auto* const line = new QFrame(this);
  line->setProperty("hairline", true);
  line->setFixedHeight(1);
  column->addWidget(line);

  auto* const ok = new QPushButton(this);
  auto* const information = new QPushButton(this);
  ok->setProperty("accent", true);
  Bound().Bind(ok, form.cmdOK);
  Bound().Bind(information, form.cmdSysInfo);
  QBoxLayout* const buttons = AddButtonRow(column);
  buttons->addWidget(information);
  buttons->addWidget(ok);
  setTabOrder(ok, information);
  ok->setFocus();
}

}  // namespace ui
