#include "ui/windows/ball_field.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPainter>

#include "ui/windows/painting.h"

namespace ui {
namespace {

constexpr double kRing = 2;
constexpr double kFaded = 0.4;

}  // namespace

BallField::BallField(Kind kind, QWidget* parent) : QLineEdit(parent), kind_(kind) {
  setAlignment(Qt::AlignCenter);
  setFrame(false);
  SetEditing(false);
}

void BallField::SetSize(int size) {
  size_ = size;
  setFont(Theme::Current().BallFont());
  Restyle();
}

void BallField::Restyle() {
  const Theme& theme = Theme::Current();
  setStyleSheet(QStringLiteral("QLineEdit { background: transparent; border: none; padding: 0px; "
                               "color: %2; min-width: %1px; max-width: %1px; "
                               "min-height: %1px; max-height: %1px; }")
                    .arg(size_)
                    .arg(theme.Colour(band_ ? Role::kOnBand : Role::kText).name()));
}

void BallField::SetEditing(bool editing) {
  setReadOnly(!editing);
  setFocusPolicy(editing ? Qt::StrongFocus : Qt::NoFocus);
  setCursor(editing ? Qt::IBeamCursor : Qt::ArrowCursor);
  update();
}

void BallField::SetBand(std::optional<Role> band) {
  if (band_ == band) return;
  band_ = band;
  setAccessibleDescription(band == Role::kCold   ? QObject::tr("cold")
                           : band == Role::kWarm ? QObject::tr("warm")
                           : band == Role::kHot  ? QObject::tr("hot")
                                                 : QString());
  Restyle();
}

Role BallField::Ring() const {
  const bool editing = !isReadOnly() && isEnabled();
  if (kind_ == Kind::kBonus) return Role::kBonus;
  if (band_) return hasFocus() ? Role::kText : *band_;
  return hasFocus() || !editing ? Role::kAccent : Role::kLine;
}

void BallField::paintEvent(QPaintEvent* event) {
  const Theme& theme = Theme::Current();
  const bool editing = !isReadOnly() && isEnabled();
  {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled() && text().toInt() == 0) painter.setOpacity(kFaded);
    painter.setPen(QPen(theme.Colour(Ring()), hasFocus() ? kRing + 1 : kRing));
    painter.setBrush(theme.Colour(band_ ? *band_ : editing ? Role::kTrack : Role::kCard));
    const QRectF ball = QRectF(rect()).adjusted(kRing, kRing, -kRing, -kRing);
    painter.drawEllipse(ball);
    if (band_) PaintBandSign(painter, ball, *band_);
    if (!editing) {
      painter.setPen(theme.Colour(band_ ? Role::kOnBand : Role::kText));
      painter.setFont(font());
      painter.drawText(rect(), Qt::AlignCenter, text());
    }
  }
  if (editing) QLineEdit::paintEvent(event);
}

void BallField::dropEvent(QDropEvent* event) {
  if (!on_drop || !event->mimeData()->hasText()) return QLineEdit::dropEvent(event);
  on_drop(event->mimeData()->text());
  event->acceptProposedAction();
}

}  // namespace ui
