// The small signs on buttons, title bars and lists, drawn as lines so that they stay sharp on any screen.
// Pure painting; nothing is owned.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace ovindra::art {

enum class Glyph {
  Calendar,
  ChevronDown,
  ChevronUp,
  ChevronLeft,
  ChevronRight,
  Check,
  Close,
  Minimise,
  Maximise,
  Restore
};

/// Draws the sign in the middle of the rectangle's largest square; it is meant for a square of 16.
void DrawGlyph(QPainter& painter, Glyph glyph, const QRectF& rect, const QColor& color);

}  // namespace ovindra::art
