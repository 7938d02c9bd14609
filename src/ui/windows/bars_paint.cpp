#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "ui/theme/theme.h"
#include "ui/windows/bars_view.h"

// How the strip of bars looks.

namespace ui {
namespace {

constexpr double kBarPart = 0.62;  // of its column
constexpr double kWidestBar = 26;
constexpr double kRound = 3;
constexpr double kMarkDepth = 4;  // from the top of the bar to the mark
constexpr double kDashHeight = 2;
constexpr double kOutline = 1.6;

Role RoleOf(base::Band band) {
  switch (band) {
    case base::Band::kHot:
      return Role::kHot;
    case base::Band::kWarm:
      return Role::kWarm;
    default:
      return Role::kCold;
  }
}

// A bar that stands on its ground: round at the top only.
QPainterPath RoundedTop(const QRectF& bar) {
  const double round = std::min({kRound, bar.width() / 2, bar.height()});
  QPainterPath path;
  path.moveTo(bar.bottomLeft());
  path.lineTo(bar.left(), bar.top() + round);
  path.quadTo(bar.topLeft(), QPointF(bar.left() + round, bar.top()));
  path.lineTo(bar.right() - round, bar.top());
  path.quadTo(bar.topRight(), QPointF(bar.right(), bar.top() + round));
  path.lineTo(bar.bottomRight());
  path.closeSubpath();
  return path;
}

}  // namespace

struct BarsView::Column {
  int ball;
  const base::Bar& bar;
  QRectF whole;
  QRectF track;
  QColor colour;
  base::Band band;
};

void BarsView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), Theme::Current().Colour(Role::kCard));
  if (!window_) return;
  painter.setRenderHint(QPainter::Antialiasing);
  const int first = std::max(1, ColumnAt(event->rect().left()));
  const int last = ColumnAt(event->rect().right());
  for (int ball = first; ball <= (last == 0 ? columns_ : last); ++ball) PaintColumn(painter, ball);
}

void BarsView::PaintColumn(QPainter& painter, int ball) const {
  const base::Bar& bar = window_->ProgressBar1(ball);
  if (!bar.Visible()) return;
  const QRectF whole((ball - 1) * Pitch(), 0, Pitch(), height());
  const double zoom = std::min(zoom_, 1.0);  // wider bars have wider columns instead
  const double width = std::min(Pitch() * kBarPart, kWidestBar * std::max(zoom_, 1.0)) * zoom;
  const QRectF track(whole.center().x() - width / 2, number_height_, width,
                     height() - number_height_ - count_height_);
  const base::Band band = BandOf(ball);
  const Column column{ball, bar, whole, track, Theme::Current().Colour(RoleOf(band)), band};
  PaintGround(painter, column);
  PaintBar(painter, column);
  PaintLabels(painter, column);
}

void BarsView::PaintGround(QPainter& painter, const Column& column) const {
  const Theme& theme = Theme::Current();
  const QRectF strip = column.whole.adjusted(1, 0.5, -1, -0.5);
  painter.setPen(Qt::NoPen);
  if (OnShow(column.ball)) {
    painter.setBrush(theme.Colour(Role::kShown));
    painter.drawRoundedRect(strip, kRound + 1, kRound + 1);
  } else if (column.ball == current_) {
    painter.setBrush(theme.Colour(Role::kSelection));
    painter.drawRoundedRect(strip, kRound + 1, kRound + 1);
  }
  painter.setBrush(theme.Colour(Role::kTrack));
  painter.drawRoundedRect(column.track, kRound, kRound);

  painter.setBrush(Qt::NoBrush);
  if (column.bar.BorderStyle() != 0) {
    painter.setPen(QPen(theme.Colour(Role::kText), kOutline));
    painter.drawRoundedRect(column.track.adjusted(-2, -2, 2, 1.5), kRound, kRound);
  }
  if (column.ball == current_ && (hasFocus() || OnShow(column.ball))) {
    painter.setPen(QPen(theme.Colour(Role::kAccent), kOutline));
    painter.drawRoundedRect(strip.adjusted(0.5, 0.5, -0.5, -0.5), kRound, kRound);
  }
}

void BarsView::PaintBar(QPainter& painter, const Column& column) const {
  const double part = growth_[static_cast<std::size_t>(column.ball)].now;
  QRectF bar = column.track;
  bar.setTop(bar.bottom() - bar.height() * part);
  if (bar.height() > 0) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(column.colour);
    painter.drawPath(RoundedTop(bar));
  }
  if (ShowsBands() && column.bar.Value() > 0) PaintMark(painter, column, bar);
}

// A dash for cold and a dot for hot, at the top of the bar, or above a bar too short for it.
void BarsView::PaintMark(QPainter& painter, const Column& column, const QRectF& bar) const {
  if (column.band != base::Band::kCold && column.band != base::Band::kHot) return;
  const double dot = std::clamp(bar.width() * 0.44, 4.0, 7.0);
  const bool inside = bar.height() > dot + 2 * kMarkDepth;
  painter.setPen(Qt::NoPen);
  painter.setBrush(inside ? Theme::Current().Colour(Role::kOnBand) : column.colour);
  const double top = inside ? bar.top() + kMarkDepth : bar.top() - kMarkDepth - dot;
  const double centre = bar.center().x();
  if (column.band == base::Band::kHot) {
    painter.drawEllipse(QRectF(centre - dot / 2, top, dot, dot));
  } else {
    const double dash = dot + 1;
    painter.drawRect(QRectF(centre - dash / 2, top + (dot - kDashHeight) / 2, dash, kDashHeight));
  }
}

void BarsView::PaintLabels(QPainter& painter, const Column& column) const {
  const Theme& theme = Theme::Current();
  const QRectF& whole = column.whole;
  painter.setFont(number_font_);
  painter.setPen(theme.Colour(Role::kText));
  painter.drawText(QRectF(whole.left(), 0, whole.width(), number_height_),
                   Qt::AlignCenter | Qt::TextDontClip,
                   Shown(window_->Label1(column.ball).Caption()));
  painter.setFont(count_font_);
  painter.setPen(theme.Colour(Role::kDim));
  painter.drawText(
      QRectF(whole.left(), whole.bottom() - count_height_, whole.width(), count_height_),
      Qt::AlignCenter | Qt::TextDontClip, Shown(window_->Label2(column.ball).Caption()));
}

}  // namespace ui
