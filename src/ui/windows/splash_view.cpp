#include "ui/windows/splash_view.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/theme/theme.h"

namespace ui {
namespace {

constexpr int kWidth = 460;

}  // namespace

SplashView::SplashView(shell::Desk& desk, shell::FrmSplash& form, QWidget* parent)
    : DialogView(desk, form, parent) {
  const Theme& theme = Theme::Current();
  const int margin = theme.Space(Spacing::kInside) * 2;
  auto* const column = new QVBoxLayout(this);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->setContentsMargins(margin, margin, margin, theme.Space(Spacing::kInside) + 4);
  column->setSpacing(margin);

  auto* const title = new QLabel(Shown(form.Caption()), this);
  auto* const version = new QLabel(this);
  AddBanner(column, title, version);
  Bound().Bind(version, form.lblVersion);

  auto* const foot = new QHBoxLayout;
  foot->setSpacing(theme.Space(Spacing::kInside));
  auto* const skip = new QCheckBox(this);
  auto* const go_on = new QPushButton(this);
  go_on->setProperty("accent", true);
  Bound().Bind(skip, form.ChkNoSplash);
  Bound().Bind(go_on, form.CmdContinue);
  foot->addWidget(skip);
  foot->addStretch();
  foot->addWidget(go_on);
  column->addLayout(foot);
  column->addStrut(theme.Scaled(kWidth) - 2 * margin);
  go_on->setFocus();
}

}  // namespace ui
