#include "platform/desktop/art/shapes.h"

#include <QPainterPathStroker>
#include <QtMath>
#include <array>

namespace ovindra::art {

QColor WithAlpha(QColor color, qreal alpha) {
  color.setAlphaF(static_cast<float>(alpha));
  return color;
}

QPainterPath EyeLids(QPointF centre, qreal half_width, qreal half_height) {
  const QPointF left = centre - QPointF(half_width, 0);
  const QPointF right = centre + QPointF(half_width, 0);
  QPainterPath lids(left);
  // A curve whose two handles are equally high reaches three quarters of their height.
  const QPointF inwards(half_width * 0.6, 0);
  const QPointF up(0, -half_height * 4 / 3);
  lids.cubicTo(left + inwards + up, right - inwards + up, right);
  lids.cubicTo(right - inwards - up, left + inwards - up, left);
  lids.closeSubpath();
  return lids;
}

QPainterPath OpenRing(QPointF centre, qreal radius, qreal width, qreal gap_degrees) {
  const QRectF circle(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
  const qreal start = 45 + gap_degrees / 2;
  QPainterPath middle;
  middle.arcMoveTo(circle, start);
  middle.arcTo(circle, start, 360 - gap_degrees);
  QPainterPathStroker stroker;
  stroker.setWidth(width);
  stroker.setCapStyle(Qt::FlatCap);
  return stroker.createStroke(middle);
}

void DrawRays(QPainter& painter, QPointF centre, const Rays& rays) {
  // Uneven lengths in a fixed order: an even comb looks like a cog.
  constexpr std::array<qreal, 7> kReach = {1.0, 0.42, 0.78, 0.3, 0.9, 0.55, 0.24};
  for (int i = 0; i < rays.count; ++i) {
    const qreal angle = 2 * M_PI * i / rays.count;
    const QPointF direction(qCos(angle), qSin(angle));
    const qreal reach = kReach.at(static_cast<std::size_t>(i) % kReach.size());
    const qreal inner = rays.outer - (rays.outer - rays.inner) * reach;
    painter.drawLine(centre + direction * rays.outer, centre + direction * inner);
  }
}

}  // namespace ovindra::art
