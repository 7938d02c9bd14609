#include "ui/windows/ball_selector_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/theme/theme.h"
#include "ui/windows/painting.h"

namespace ui {
namespace {

constexpr int kCell = 28;
constexpr double kLargestCell = 1.6;  // times that, where the window is high
constexpr int kFieldWidth = 80;
constexpr double kBallPart = 0.82;  // of its cell
constexpr int kLines = scan::FrmDropDown::kRows + 1;
constexpr base::Colour kUnmarked = 0xFFFFFF;

}  // namespace

BallSelectorView::BallSelectorView(shell::Desk& desk, scan::FrmDropDown& form, QWidget* parent)
    : QWidget(parent), binder_(desk, form, this) {
  setObjectName(QString::fromStdString(form.Name()));
  const Theme& theme = Theme::Current();
  const int gap = theme.Space(Spacing::kGap);
  const int inside = theme.Space(Spacing::kInside);
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(gap, gap, gap, gap);
  auto* const card = new QFrame(this);
  card->setProperty("card", true);
  rows->addWidget(card);
  auto* const column = new QVBoxLayout(card);
  column->setContentsMargins(inside, inside, inside, inside);
  column->setSpacing(theme.Space(Spacing::kGap));

  auto* const head = new QHBoxLayout;
  head->setSpacing(theme.Space(Spacing::kSmall));
  auto* const title = new QLabel(tr("Where each ball came down"), card);
  title->setProperty("heading", true);
  head->addWidget(title);
  head->addStretch(1);
  auto* const caption = new QLabel(card);
  binder_.Bind(caption, form.LblRecNum);
  head->addWidget(caption);
  auto* const number = new QLineEdit(card);
  number->setFixedWidth(theme.Scaled(kFieldWidth));
  number->setAccessibleName(caption->text());
  binder_.Bind(number, form.txtRecNum);
  caption->setBuddy(number);
  head->addWidget(number);
  auto* const start = new QPushButton(card);
  start->setProperty("accent", true);
  binder_.Bind(start, form.CmdScan);
  head->addWidget(start);
  column->addLayout(head);

  auto* const area = new QScrollArea(card);
  area->setFrameShape(QFrame::NoFrame);
  area->setAccessibleName(tr("Board of marks"));
  area->setWidgetResizable(true);
  area->setWidget(new BallBoard(binder_, form, area));
  column->addWidget(area, 1);
}

BallBoard::BallBoard(Binder& binder, scan::FrmDropDown& form, QWidget* parent)
    : QWidget(parent), form_(&form) {
  setObjectName(QStringLiteral("BallBoard"));
  setAccessibleName(tr("Board of marks"));
  for (int row = 0; row < scan::FrmDropDown::kRows; ++row) {
    form.Row(row).Each([&](base::Label& label) { binder.Watch(label, [this] { update(); }); });
  }
  connect(&binder, &Binder::detached, this, [this] { form_ = nullptr; });
  connect(&Theme::Current(), &Theme::changed, this, [this] { FitTo(height()); });
  FitTo(0);
}

void BallBoard::FitTo(int height) {
  const int smallest = Theme::Current().Scaled(kCell);
  cell_ = std::clamp(height / kLines, smallest, static_cast<int>(smallest * kLargestCell));
  setFixedWidth(cell_ * scan::kLastColumn);
  setMinimumHeight(smallest * kLines);
  update();
}

void BallBoard::resizeEvent(QResizeEvent* event) { FitTo(event->size().height()); }

void BallBoard::paintEvent(QPaintEvent* event) {
  const Theme& theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(event->rect(), theme.Colour(Role::kCard));
  if (!form_) return;
  const int cell = cell_;
  for (int ball = 1; ball <= scan::kLastColumn; ++ball) {
    const int left = (ball - 1) * cell;
    if (left > event->rect().right() || left + cell < event->rect().left()) continue;
    painter.setFont(theme.CaptionFont());
    painter.setPen(theme.Colour(Role::kDim));
    painter.drawText(QRect(left, 0, cell, cell), Qt::AlignCenter,
                     QStringLiteral("%1").arg(ball, 2, 10, QLatin1Char('0')));
    for (int row = 0; row < scan::FrmDropDown::kRows; ++row) {
      const base::Label& label = form_->Row(row)(ball);
      const QRect place(left, (row + 1) * cell, cell, cell);
      QRectF dot(0, 0, cell * kBallPart, cell * kBallPart);
      dot.moveCenter(QRectF(place).center());
      painter.setPen(Qt::NoPen);
      if (label.BackColor() == kUnmarked) {
        dot.setSize(dot.size() / 4);
        dot.moveCenter(QRectF(place).center());
        painter.setBrush(theme.Colour(Role::kTrack));
        painter.drawEllipse(dot);
        continue;
      }
      painter.setBrush(theme.Colour(Role::kShown));
      painter.setPen(QPen(theme.Colour(Role::kBonus), 1.4));
      painter.drawEllipse(dot);
      painter.setPen(theme.Colour(Role::kText));
      painter.drawText(place, Qt::AlignCenter, Shown(label.Caption()));
    }
  }
}

}  // namespace ui
