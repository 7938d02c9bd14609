#include "ui/windows/painting.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace ui {
namespace {

constexpr double kReadable = 4.5;
constexpr int kSteps = 20;
constexpr double kSignPart = 0.09;    // of the ball
constexpr double kSignHeight = 0.14;  // above the ball's foot

double Linear(double channel) {
  return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
         0.0722 * Linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double first = Luminance(one);
  const double second = Luminance(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

}  // namespace

QColor Between(const QColor& one, const QColor& other, double part) {
  const auto mix = [part](double a, double b) { return static_cast<float>(a + (b - a) * part); };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

QColor ReadableOn(Role ground, Role role) {
  const Theme& theme = Theme::Current();
  const QColor behind = theme.Colour(ground);
  for (int step = 0; step < kSteps; ++step) {
    const QColor colour =
        Between(theme.Colour(role), theme.Colour(Role::kText), static_cast<double>(step) / kSteps);
    if (Contrast(colour, behind) >= kReadable) return colour;
  }
  return theme.Colour(Role::kText);
}

void PaintBall(QPainter& painter, const QRectF& place, const QString& number, Role band) {
  const Theme& theme = Theme::Current();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme.Colour(band));
  painter.drawEllipse(place);
  painter.setPen(theme.Colour(Role::kOnBand));
  painter.drawText(place, Qt::AlignCenter, number);
}

void PaintBandSign(QPainter& painter, const QRectF& ball, Role band) {
  if (band != Role::kCold && band != Role::kHot) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(Theme::Current().Colour(Role::kOnBand));
  const double dot = std::max(3.0, ball.height() * kSignPart);
  QRectF sign(0, 0, band == Role::kHot ? dot : 3 * dot, band == Role::kHot ? dot : dot / 2);
  sign.moveCenter({ball.center().x(), ball.bottom() - ball.height() * kSignHeight});
  painter.drawRoundedRect(sign, sign.height() / 2, sign.height() / 2);
}

}  // namespace ui
