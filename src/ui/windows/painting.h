#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

#include "ui/theme/theme.h"

class QPainter;

// What several painted widgets draw alike.

namespace ui {

// The colour that lies `part` (0 to 1) of the way from one to the other.
QColor Between(const QColor& one, const QColor& other, double part);

// The colour of a role as text on a ground: moved towards the text colour until it can be read.
QColor ReadableOn(Role ground, Role role);

// A ball filled with the colour of a band, its number in the middle.
void PaintBall(QPainter& painter, const QRectF& place, const QString& number, Role band);

// The sign by which a ball of a band is told without its colour: a dash below the number for cold,
// a dot for hot, none for warm.
void PaintBandSign(QPainter& painter, const QRectF& ball, Role band);

}  // namespace ui
