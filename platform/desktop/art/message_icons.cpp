#include "platform/desktop/art/message_icons.h"

#include <QPainterPath>
#include <QPen>

#include "platform/desktop/art/shapes.h"

namespace ovindra::art {
namespace {

// The signs are drawn in a square of side 40 about the origin.
constexpr qreal kSide = 40;

QPainterPath Border(MessageSign sign) {
  QPainterPath path;
  if (sign != MessageSign::Exclamation) {
    path.addEllipse(QPointF(0, 0), 18.5, 18.5);
    return path;
  }
  path.moveTo(0, -17);
  path.lineTo(18.5, 16);
  path.lineTo(-18.5, 16);
  path.closeSubpath();
  return path;
}

QPainterPath Mark(MessageSign sign) {
  QPainterPath path;
  switch (sign) {
    case MessageSign::Critical:
      path.moveTo(-6.5, -6.5);
      path.lineTo(6.5, 6.5);
      path.moveTo(6.5, -6.5);
      path.lineTo(-6.5, 6.5);
      break;
    case MessageSign::Exclamation:
      path.moveTo(0, -5.5);
      path.lineTo(0, 4);
      break;
    case MessageSign::Information:
      path.moveTo(0, -1.5);
      path.lineTo(0, 8.5);
      break;
    case MessageSign::Question:
      path.moveTo(-4.6, -5.2);
      path.cubicTo(-4.4, -11.2, 5, -11.2, 5, -5);
      path.cubicTo(5, -1.2, 0, -1.6, 0, 3);
      break;
  }
  return path;
}

// The point below an exclamation or question mark, above an i.
void DrawPoint(QPainter& painter, MessageSign sign) {
  if (sign == MessageSign::Critical) return;
  const qreal y = sign == MessageSign::Information ? -8 : sign == MessageSign::Exclamation ? 10 : 8.8;
  painter.drawPoint(QPointF(0, y));
}

}  // namespace

void DrawMessageSign(QPainter& painter, MessageSign sign, const QRectF& rect, const QColor& ink,
                     const QColor& ground) {
  const PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(rect.center());
  const qreal scale = qMin(rect.width(), rect.height()) / kSide;
  painter.scale(scale, scale);
  painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(ground);
  painter.drawPath(Border(sign));
  painter.setPen(QPen(ink, 3.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(Mark(sign));
  painter.setPen(QPen(ink, 4, Qt::SolidLine, Qt::RoundCap));
  DrawPoint(painter, sign);
}

}  // namespace ovindra::art
