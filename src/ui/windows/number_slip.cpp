#include "ui/windows/number_slip.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "ui/theme/theme.h"

namespace ui {
namespace {

constexpr int kColumns = 10;
constexpr int kWidth = 40;
constexpr int kHeight = 27;
constexpr double kRound = 4;
constexpr double kCross = 2;
constexpr double kCrossInset = 5;
constexpr base::Colour kUnmarked = 0xFFFFFF;

}  // namespace

SlipNumber::SlipNumber(QWidget* parent) : QPushButton(parent) {
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SlipNumber::SetCrossed(bool crossed) {
  crossed_ = crossed;
  setAccessibleDescription(crossed ? QObject::tr("in play") : QString());
  update();
}

QSize SlipNumber::sizeHint() const {
  return {Theme::Current().Scaled(kWidth), Theme::Current().Scaled(kHeight)};
}

void SlipNumber::paintEvent(QPaintEvent*) {
  const Theme& theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF field = QRectF(rect()).adjusted(1, 1, -1, -1);
  const bool lit = underMouse() || hasFocus();
  painter.setPen(QPen(theme.Colour(lit ? Role::kAccent : Role::kLine), hasFocus() ? 2 : 1));
  painter.setBrush(theme.Colour(crossed_       ? Role::kShown
                                : underMouse() ? Role::kTrack
                                               : Role::kCard));
  painter.drawRoundedRect(field, kRound, kRound);
  if (crossed_) {
    QRectF cross(0, 0, field.width() - 2 * kCrossInset, field.height() - 2 * kCrossInset);
    cross.moveCenter(field.center());
    painter.setPen(QPen(theme.Colour(Role::kBonus), kCross, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
  }
  QFont font = theme.Figures();
  font.setBold(crossed_);
  painter.setFont(font);
  painter.setPen(theme.Colour(Role::kText));
  painter.drawText(field, Qt::AlignCenter, text());
}

NumberSlip::NumberSlip(Binder& binder, wheels::FrmTxt& window, QWidget* parent) : QFrame(parent) {
  setProperty("card", true);
  const Theme& theme = Theme::Current();
  const int inside = theme.Space(Spacing::kInside);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(inside, inside, inside, inside);
  column->setSpacing(theme.Space(Spacing::kSmall));

  auto* const head = new QHBoxLayout;
  auto* const title = new QLabel(this);
  title->setProperty("heading", true);
  binder.Watch(window.PicNumbers, [title, &window] {
    title->setText(
        QObject::tr("A number for box %1").arg(Shown(window.PicNumbers.Tag()).toInt() + 1));
  });
  head->addWidget(title);
  head->addStretch(1);
  auto* const close = new QPushButton(this);
  binder.Bind(close, window.Label8);
  head->addWidget(close);
  column->addLayout(head);

  auto* const grid = new QGridLayout;
  grid->setSpacing(theme.Space(Spacing::kTiny) / 2);
  window.Label2.Each([&](base::Label& label) {
    auto* const number = new SlipNumber(this);
    binder.Bind(number, label);
    binder.Watch(label, [number, &label] { number->SetCrossed(label.BackColor() != kUnmarked); });
    grid->addWidget(number, label.Index() / kColumns, label.Index() % kColumns);
  });
  column->addLayout(grid);
  binder.Bind(static_cast<QWidget*>(this), window.PicNumbers);
}

}  // namespace ui
