#include "ui/windows/draw_header.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "ui/theme/theme.h"
#include "ui/windows/caption.h"
#include "ui/windows/eliding_label.h"

namespace ui {
namespace {

constexpr int kBalls = 7;
constexpr int kBonusBall = 6;
constexpr std::array<int, kBalls> kHeadings = {12, 11, 10, 9, 8, 7, 5};
constexpr int kDateHeading = 6;
constexpr int kNotice = 4;
constexpr int kBallSize = 46;
constexpr int kBallPerText = 34;  // what a ball needs at the text size chosen
constexpr int kFieldPadding = 22;
constexpr int kIconSize = 18;

int BallSize() { return std::max(kBallSize, Theme::Current().Scaled(kBallPerText)); }

}  // namespace

DrawHeader::DrawHeader(Binder& binder, main_window::MainWindow& window, QWidget* parent)
    : QFrame(parent), window_(&window) {
  setProperty("card", true);
  const Theme& theme = Theme::Current();
  const int inside = theme.Space(Spacing::kInside);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(inside, theme.Space(Spacing::kGap), inside, theme.Space(Spacing::kGap));
  row->setSpacing(theme.Space(Spacing::kInside));
  row->addLayout(MakeBalls(binder));
  auto* const date = new QVBoxLayout;
  date->setSpacing(theme.Space(Spacing::kTiny));
  date->addLayout(MakeDate(binder));
  date->addLayout(MakeNotices(binder));
  date->addStretch(1);
  row->addLayout(date, 1);
  row->addLayout(MakeButtons(binder));

  for (base::Button* button : {&window.cmdedit, &window.cmdSave}) {
    binder.Watch(*button, [this] { SetEditing(); });
  }
  connect(&theme, &Theme::changed, this, &DrawHeader::Restyle);
  Restyle();
}

QBoxLayout* DrawHeader::MakeBalls(Binder& binder) {
  const Theme& theme = Theme::Current();
  auto* const row = new QHBoxLayout;
  row->setSpacing(theme.Space(Spacing::kSmall));
  for (int k = 0; k < kBalls; ++k) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(theme.Space(Spacing::kTiny));
    auto* const heading = MakeCaption(QString(), this);
    heading->setAlignment(Qt::AlignCenter);
    binder.Bind(heading, window_->Label7(kHeadings[static_cast<std::size_t>(k)]));
    const bool bonus = k == kBonusBall;
    auto* const ball =
        new BallField(bonus ? BallField::Kind::kBonus : BallField::Kind::kMain, this);
    ball->setAccessibleName(bonus ? tr("Bonus ball") : tr("Ball %1").arg(k + 1));
    binder.Bind(ball, window_->BallBox(k));
    balls_.push_back(ball);
    restyle_.push_back([ball] { ball->SetSize(BallSize()); });
    column->addWidget(heading);
    column->addWidget(ball);
    column->addStretch(1);
    row->addLayout(column);
  }
  return row;
}

QLineEdit* DrawHeader::MakeField(Binder& binder, base::TextBox& box, const QString& name,
                                 const QString& widest) {
  auto* const field = new QLineEdit(this);
  field->setAccessibleName(name);
  field->setAlignment(Qt::AlignCenter);
  field->setReadOnly(true);
  field->setFocusPolicy(Qt::NoFocus);
  binder.Bind(field, box);
  restyle_.push_back([field, widest] {
    const QFontMetrics metrics(Theme::Current().Text());
    field->setFixedWidth(metrics.horizontalAdvance(widest) + kFieldPadding);
  });
  return field;
}

QBoxLayout* DrawHeader::MakeDate(Binder& binder) {
  const Theme& theme = Theme::Current();
  auto* const row = new QHBoxLayout;
  row->setSpacing(theme.Space(Spacing::kInside));

  auto* const date = new QVBoxLayout;
  date->setSpacing(theme.Space(Spacing::kTiny));
  auto* const heading = MakeCaption(QString(), this);
  binder.Bind(heading, window_->Label7(kDateHeading));
  auto* const fields = new QHBoxLayout;
  fields->setSpacing(theme.Space(Spacing::kTiny));
  date_fields_ = {MakeField(binder, window_->txtDate, tr("Date"), QStringLiteral("00/00/0000")),
                  MakeField(binder, window_->TxtBall07, tr("Day"), QStringLiteral("Wedn"))};
  for (QLineEdit* field : date_fields_) fields->addWidget(field);
  date->addWidget(heading);
  date->addLayout(fields);
  row->addLayout(date);

  auto* const draw = new QVBoxLayout;
  draw->setSpacing(theme.Space(Spacing::kTiny));
  auto* const draw_heading = MakeCaption(tr("Draw"), this);
  draw->addWidget(draw_heading);
  draw->addWidget(
      MakeField(binder, window_->txtRecNum, tr("Draw number"), QStringLiteral("00000")));
  row->addLayout(draw);
  row->addStretch(1);
  return row;
}

QBoxLayout* DrawHeader::MakeNotices(Binder& binder) {
  auto* const column = new QVBoxLayout;
  column->setSpacing(0);
  for (base::Label* notice : {&window_->lblProductName1(kNotice), &window_->Label27}) {
    auto* const label = new ElidingLabel(1, this);
    label->setProperty("caption", true);
    binder.Bind(label, *notice);
    column->addWidget(label);
  }
  return column;
}

QBoxLayout* DrawHeader::MakeButtons(Binder& binder) {
  const Theme& theme = Theme::Current();
  auto* const column = new QVBoxLayout;
  column->setSpacing(theme.Space(Spacing::kSmall));
  column->addWidget(MakeBrowseButtons(binder), 0, Qt::AlignRight);
  auto* const row = new QHBoxLayout;
  row->setSpacing(theme.Space(Spacing::kSmall) - 2);
  for (base::Button* control : {&window_->cmdAdd, &window_->cmdedit, &window_->cmdSave,
                                &window_->cmdClear, &window_->CmdReset}) {
    auto* const button = new QPushButton(this);
    binder.Bind(button, *control);
    row->addWidget(button);
  }
  column->addLayout(row);
  return column;
}

QWidget* DrawHeader::MakeBrowseButtons(Binder& binder) {
  auto* const group = new QFrame(this);
  group->setProperty("field", true);
  auto* const row = new QHBoxLayout(group);
  row->setContentsMargins(1, 1, 1, 1);
  row->setSpacing(1);
  const std::pair<base::Button*, const char*> buttons[] = {{&window_->cmdFirst, "first"},
                                                           {&window_->cmdPrev, "prev"},
                                                           {&window_->cmdNext, "next"},
                                                           {&window_->cmdLast, "last"}};
  for (const auto& [control, icon] : buttons) {
    auto* const button = new QPushButton(group);
    button->setProperty("flat", true);
    button->setProperty("iconOnly", true);
    binder.Bind(button, *control);
    row->addWidget(button);
    restyle_.push_back([button, icon = QString::fromLatin1(icon)] {
      const int size = Theme::Current().Scaled(kIconSize);
      button->setIcon(Theme::Current().Icon(icon, Role::kText));
      button->setIconSize({size, size});
    });
  }
  return group;
}

void DrawHeader::SetEditing() {
  const bool editing = window_->cmdedit.Caption() == "Save" || window_->cmdSave.Enabled();
  for (BallField* ball : balls_) ball->SetEditing(editing);
  for (QLineEdit* field : date_fields_) {
    field->setReadOnly(!editing);
    field->setFocusPolicy(editing ? Qt::StrongFocus : Qt::NoFocus);
  }
}

void DrawHeader::Restyle() {
  for (const auto& restyle : restyle_) restyle();
}

}  // namespace ui
