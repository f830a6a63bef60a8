#include "platform/desktop/art/children.h"

#include <QPen>
#include <QPolygonF>

#include "platform/desktop/art/shapes.h"

namespace ovindra::art {
namespace {

// The figures are drawn on a child of height 100 whose feet are at the origin and whose head is at negative
// y.
constexpr qreal kTall = 100;
constexpr qreal kLegWidth = 8.6;
constexpr qreal kArmWidth = 6.8;

void DrawLimb(QPainter& painter, QPointF from, QPointF to, qreal width, const QColor& color) {
  painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(from, to);
}

void DrawGirlBody(QPainter& painter) {
  painter.drawEllipse(QPointF(0, -85.4), 14.3, 14.3);
  painter.drawEllipse(QPointF(-14.8, -87.3), 6, 6.6);
  painter.drawEllipse(QPointF(14.8, -87.3), 6, 6.6);
  QPainterPath dress(QPointF(-9, -68));
  dress.quadTo(QPointF(0, -69.5), QPointF(9, -68));
  dress.quadTo(QPointF(13, -66), QPointF(14, -58));
  dress.lineTo(QPointF(21, -27));
  dress.lineTo(QPointF(-21, -27));
  dress.lineTo(QPointF(-14, -58));
  dress.quadTo(QPointF(-13, -66), QPointF(-9, -68));
  painter.drawPath(dress);
}

void DrawBoyBody(QPainter& painter) {
  painter.drawEllipse(QPointF(0, -85.5), 14, 14);
  QPainterPath shirt;
  shirt.addRoundedRect(QRectF(-14, -68.6, 28, 40.4), 9, 9);
  painter.drawPath(shirt);
}

}  // namespace

void DrawChild(QPainter& painter, const Child& child, const QColor& color) {
  const PainterScope scope(painter);
  const qreal scale = child.height / kTall;
  painter.translate(child.foot);
  painter.scale(scale, scale);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  const bool girl = child.kind == Child::Kind::Girl;
  girl ? DrawGirlBody(painter) : DrawBoyBody(painter);
  const qreal shoulder = girl ? 9 : 10.5;
  const QPointF left = (child.left_hand - child.foot) / scale;
  const QPointF right = (child.right_hand - child.foot) / scale;
  DrawLimb(painter, {-shoulder, -64.5}, left, kArmWidth, color);
  DrawLimb(painter, {shoulder, -64.5}, right, kArmWidth, color);
  const qreal foot = kLegWidth / 2;
  DrawLimb(painter, {-7.3, -30}, {-8, -foot}, kLegWidth, color);
  DrawLimb(painter, {7.3, -30}, {8, -foot}, kLegWidth, color);
}

}  // namespace ovindra::art
