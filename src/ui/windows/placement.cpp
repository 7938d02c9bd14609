#include "ui/windows/placement.h"

#include <algorithm>

namespace ui {
namespace {

int Area(const QRect& rect) { return rect.isEmpty() ? 0 : rect.width() * rect.height(); }

int Area(const QRect& screen, const QRect& wanted) { return Area(screen.intersected(wanted)); }

double Distance(const QRect& screen, const QRect& wanted) {
  const QPoint away = screen.center() - wanted.center();
  return static_cast<double>(away.x()) * away.x() + static_cast<double>(away.y()) * away.y();
}

const QRect& BestScreen(const QRect& wanted, const QList<QRect>& screens) {
  return *std::min_element(screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) {
    const int seen_on_a = Area(a, wanted);
    const int seen_on_b = Area(b, wanted);
    if (seen_on_a != seen_on_b) return seen_on_a > seen_on_b;
    return Distance(a, wanted) < Distance(b, wanted);
  });
}

}  // namespace

QRect OnScreen(const QRect& wanted, const QList<QRect>& screens) {
  if (screens.isEmpty()) return wanted;
  int shown = 0;
  for (const QRect& screen : screens) shown += Area(screen, wanted);
  if (shown >= Area(wanted)) return wanted;
  const QRect& screen = BestScreen(wanted, screens);
  QRect placed(wanted.topLeft(), wanted.size().boundedTo(screen.size()));
  placed.moveLeft(std::clamp(placed.left(), screen.left(), screen.right() - placed.width() + 1));
  placed.moveTop(std::clamp(placed.top(), screen.top(), screen.bottom() - placed.height() + 1));
  return placed;
}

}  // namespace ui
