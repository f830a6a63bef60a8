#include "platform/desktop/art/wordmark.h"

#include <QPainterPath>

#include "platform/desktop/art/shapes.h"

namespace ovindra::art {

QFont PictureFont(const TextSize& size) {
  QFont font;
  font.setFamilies({"Noto Sans", "Segoe UI", "Open Sans", "DejaVu Sans"});
  font.setPixelSize(size.size);
  font.setWeight(size.weight);
  return font;
}

void DrawText(QPainter& painter, QPointF origin, const QString& text, const TextSize& size,
              const QColor& color) {
  const PainterScope scope(painter);
  painter.setFont(PictureFont(size));
  painter.setPen(color);
  painter.drawText(origin, text);
}

}  // namespace ovindra::art
