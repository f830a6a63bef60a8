#include "platform/desktop/art/key_frames.h"

#include <QPen>
#include <array>
#include <cassert>

#include "platform/desktop/art/painted_icon.h"
#include "platform/desktop/art/shapes.h"

namespace ovindra::art {

void DrawKeyFrame(QPainter& painter, int frame, const QRectF& rect) {
  assert(frame >= 1 && frame <= kKeyFrames);
  constexpr std::array<qreal, kKeyFrames> kAngles = {-8, 37, 82};
  const PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(rect.center());
  const qreal scale = qMin(rect.width(), rect.height()) / 80;
  painter.scale(scale, scale);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0x24, 0x5E, 0x6A));
  painter.drawEllipse(QPointF(0, 0), 40, 40);
  painter.rotate(kAngles.at(static_cast<std::size_t>(frame - 1)));
  painter.setPen(QPen(Qt::white, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawLine(QPointF(-4, 0), QPointF(25, 0));
  painter.drawLine(QPointF(17, 0), QPointF(17, 7));
  painter.drawLine(QPointF(25, 0), QPointF(25, 8));
  painter.setBrush(QColor(0x16, 0x50, 0x5C));
  painter.drawEllipse(QPointF(-13, 0), 10.5, 10.5);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kAmber);
  painter.drawEllipse(QPointF(-13, 0), 3.8, 3.8);
}

QPixmap KeyFrame(int frame, int side, qreal device_pixel_ratio) {
  return PaintedPixmap(QSize(side, side), device_pixel_ratio,
                       [&](QPainter& painter) { DrawKeyFrame(painter, frame, QRectF(0, 0, side, side)); });
}

}  // namespace ovindra::art
