#include "platform/desktop/art/login_panel.h"

#include <QLinearGradient>
#include <QPen>

#include "platform/desktop/art/shapes.h"
#include "platform/desktop/art/wordmark.h"

namespace ovindra::art {
namespace {

void DrawCentred(QPainter& painter, const QRectF& line, const QString& text, const TextSize& size,
                 const QColor& color) {
  painter.setFont(PictureFont(size));
  painter.setPen(color);
  painter.drawText(line, Qt::AlignCenter,
                   painter.fontMetrics().elidedText(text, Qt::ElideRight, qFloor(line.width())));
}

}  // namespace

void PaintLoginPanel(QPainter& painter, const QRectF& rect, const QString& institute) {
  const PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient ground(rect.topLeft(), rect.bottomLeft());
  ground.setColorAt(0, kPetrol);
  ground.setColorAt(1, kDeepPetrol);
  painter.fillRect(rect, ground);
  const QRectF iris = QRectF(kLoginKey).translated(rect.topLeft());
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(0x5B, 0x93, 0x9C), 1.6));
  painter.drawPath(EyeLids(QPointF(rect.center().x(), iris.center().y()), 66, 45.5));
  const QRectF line(rect.left() + 8, 0, rect.width() - 16, 24);
  DrawCentred(painter, line.translated(0, rect.top() + 187), kProgramName, {15, QFont::Bold}, Qt::white);
  DrawCentred(painter, line.translated(0, rect.top() + 210), institute, {12, QFont::Normal}, kPaleWater);
}

}  // namespace ovindra::art
