#include "platform/desktop/art/chart.h"

#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <QtMath>

#include "platform/desktop/art/shapes.h"

namespace ovindra::art {
namespace {

// Every picture is drawn in a square of side 100 about the origin.
constexpr qreal kSide = 100;
constexpr qreal kLine = 11;

QPainterPath House() {
  QPainterPath path(QPointF(-46, -6));
  path.lineTo(0, -45);
  path.lineTo(46, -6);
  path.moveTo(-34, -14);
  path.lineTo(-34, 45);
  path.lineTo(34, 45);
  path.lineTo(34, -14);
  path.moveTo(-10, 45);
  path.lineTo(-10, 15);
  path.lineTo(10, 15);
  path.lineTo(10, 45);
  return path;
}

QPainterPath Apple() {
  QPainterPath path(QPointF(0, -20));
  path.cubicTo(14, -34, 46, -32, 46, 0);
  path.cubicTo(46, 28, 28, 52, 0, 42);
  path.cubicTo(-28, 52, -46, 28, -46, 0);
  path.cubicTo(-46, -32, -14, -34, 0, -20);
  path.moveTo(0, -20);
  path.quadTo(1, -40, 15, -47);
  return path;
}

QPainterPath Star() {
  QPolygonF points;
  for (int i = 0; i <= 10; ++i) {
    const qreal radius = i % 2 == 0 ? 48 : 22;
    const qreal angle = M_PI * i / 5 - M_PI / 2;
    points << QPointF(radius * qCos(angle), radius * qSin(angle) + 4);
  }
  QPainterPath path;
  path.addPolygon(points);
  return path;
}

QPainterPath Kite() {
  QPainterPath path(QPointF(0, -47));
  path.lineTo(34, -8);
  path.lineTo(0, 47);
  path.lineTo(-34, -8);
  path.closeSubpath();
  path.moveTo(0, -47);
  path.lineTo(0, 47);
  path.moveTo(-34, -8);
  path.lineTo(34, -8);
  return path;
}

QPainterPath Fish() {
  QPainterPath path(QPointF(-46, 0));
  path.quadTo(-8, -52, 24, 0);
  path.quadTo(-8, 52, -46, 0);
  path.moveTo(24, 0);
  path.lineTo(46, -24);
  path.moveTo(24, 0);
  path.lineTo(46, 24);
  path.addEllipse(QPointF(-20, -4), 1.5, 1.5);
  return path;
}

QPainterPath Ball() {
  QPainterPath path;
  path.addEllipse(QPointF(0, 0), 45, 45);
  path.moveTo(-45, 2);
  path.quadTo(0, -22, 43, 12);
  path.moveTo(-8, -44);
  path.quadTo(26, 0, 2, 45);
  return path;
}

QPainterPath Lines(ChartPicture picture) {
  switch (picture) {
    case ChartPicture::House:
      return House();
    case ChartPicture::Apple:
      return Apple();
    case ChartPicture::Star:
      return Star();
    case ChartPicture::Kite:
      return Kite();
    case ChartPicture::Fish:
      return Fish();
    case ChartPicture::Ball:
      break;
  }
  return Ball();
}

}  // namespace

void DrawChartPicture(QPainter& painter, ChartPicture picture, QPointF centre, qreal size,
                      const QColor& color) {
  const PainterScope scope(painter);
  painter.translate(centre);
  painter.scale(size / kSide, size / kSide);
  painter.setPen(QPen(color, kLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(Lines(picture));
}

}  // namespace ovindra::art
