#include "platform/desktop/art/glyphs.h"

#include <QPainterPath>
#include <QPen>

#include "platform/desktop/art/shapes.h"

namespace ovindra::art {
namespace {

// The signs are drawn in a square of side 16 about the origin.
constexpr qreal kSide = 16;

QPainterPath Corner(QPointF from, QPointF tip, QPointF to) {
  QPainterPath path(from);
  path.lineTo(tip);
  path.lineTo(to);
  return path;
}

QPainterPath Calendar() {
  QPainterPath path;
  path.addRoundedRect(QRectF(-6, -5, 12, 11), 2, 2);
  path.moveTo(-6, -1.5);
  path.lineTo(6, -1.5);
  path.moveTo(-3, -6.5);
  path.lineTo(-3, -4);
  path.moveTo(3, -6.5);
  path.lineTo(3, -4);
  return path;
}

QPainterPath Cross() {
  QPainterPath path(QPointF(-4.5, -4.5));
  path.lineTo(4.5, 4.5);
  path.moveTo(4.5, -4.5);
  path.lineTo(-4.5, 4.5);
  return path;
}

QPainterPath RestoreBoxes() {
  QPainterPath path;
  path.addRect(QRectF(-4.5, -1.5, 6, 6));
  path.moveTo(-2, -1.5);
  path.lineTo(-2, -4.5);
  path.lineTo(4.5, -4.5);
  path.lineTo(4.5, 2);
  path.lineTo(1.5, 2);
  return path;
}

QPainterPath Lines(Glyph glyph) {
  switch (glyph) {
    case Glyph::Calendar:
      return Calendar();
    case Glyph::ChevronDown:
      return Corner({-4, -2}, {0, 2}, {4, -2});
    case Glyph::ChevronUp:
      return Corner({-4, 2}, {0, -2}, {4, 2});
    case Glyph::ChevronLeft:
      return Corner({2, -4}, {-2, 0}, {2, 4});
    case Glyph::ChevronRight:
      return Corner({-2, -4}, {2, 0}, {-2, 4});
    case Glyph::Check:
      return Corner({-4.5, 0}, {-1.3, 3.2}, {4.5, -3.4});
    case Glyph::Close:
      return Cross();
    case Glyph::Minimise:
      return Corner({-4.5, 3.5}, {0, 3.5}, {4.5, 3.5});
    case Glyph::Maximise: {
      QPainterPath box;
      box.addRect(QRectF(-4, -4, 8, 8));
      return box;
    }
    case Glyph::Restore:
      break;
  }
  return RestoreBoxes();
}

bool IsWindowSign(Glyph glyph) {
  return glyph == Glyph::Close || glyph == Glyph::Minimise || glyph == Glyph::Maximise ||
         glyph == Glyph::Restore;
}

void DrawCalendarDays(QPainter& painter, const QColor& color) {
  for (const qreal y : {1.0, 3.6}) {
    for (const qreal x : {-3.2, 0.0, 3.2}) painter.fillRect(QRectF(x - 0.8, y - 0.5, 1.6, 1.3), color);
  }
}

}  // namespace

void DrawGlyph(QPainter& painter, Glyph glyph, const QRectF& rect, const QColor& color) {
  const PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(rect.center());
  const qreal scale = qMin(rect.width(), rect.height()) / kSide;
  painter.scale(scale, scale);
  const bool window_sign = IsWindowSign(glyph);
  const qreal width = window_sign || glyph == Glyph::Calendar ? 1.5 : 1.6;
  painter.setPen(QPen(color, width, Qt::SolidLine, window_sign ? Qt::SquareCap : Qt::RoundCap,
                      window_sign ? Qt::MiterJoin : Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(Lines(glyph));
  if (glyph == Glyph::Calendar) DrawCalendarDays(painter, color);
}

}  // namespace ovindra::art
