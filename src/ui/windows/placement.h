#pragma once

#include <QList>
#include <QRect>

namespace ui {

// The desk's units to a logical pixel.
inline constexpr int kUnits = 10;

// Where a window that wants to stand at `wanted` is put, so that all of it can be reached:
// unchanged if the screens show the whole of it, otherwise moved onto the screen that shows the
// most of it, or the nearest, and made no larger than that. With no screen, `wanted`.
QRect OnScreen(const QRect& wanted, const QList<QRect>& screens);

}  // namespace ui
