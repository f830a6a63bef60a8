#include "platform/desktop/art/program_icon.h"

#include <QLinearGradient>

#include "platform/desktop/art/painted_icon.h"
#include "platform/desktop/art/shapes.h"

namespace ovindra::art {

void DrawProgramIcon(QPainter& painter, const QRectF& rect) {
  const PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(rect.center());
  const qreal side = qMin(rect.width(), rect.height());
  painter.scale(side / 100, side / 100);
  QLinearGradient petrol(0, -50, 0, 50);
  petrol.setColorAt(0, QColor(0x17, 0x7D, 0x8F));
  petrol.setColorAt(1, QColor(0x0B, 0x45, 0x51));
  painter.setPen(Qt::NoPen);
  painter.setBrush(petrol);
  painter.drawRoundedRect(QRectF(-50, -50, 100, 100), 22, 22);
  painter.setBrush(Qt::white);
  painter.drawPath(EyeLids({0, 0}, 42, 30));
  painter.fillPath(OpenRing({0, 0}, 17.5, 8, 50), kPetrol);
  painter.setBrush(kAmber);
  painter.drawEllipse(QPointF(0, 0), 7.5, 7.5);
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int side : {16, 20, 24, 32, 40, 48, 64, 128, 256}) {
    icon.addPixmap(PaintedPixmap(QSize(side, side), 1, [side](QPainter& painter) {
      DrawProgramIcon(painter, QRectF(0, 0, side, side));
    }));
  }
  return icon;
}

}  // namespace ovindra::art
