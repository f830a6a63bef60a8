// The pictures of a children's sight-testing chart, for those who can't read letters yet: a house, an apple,
// a star, a kite, a fish and a ball. Line drawings that scale; nothing is owned.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>

namespace ovindra::art {

enum class ChartPicture { House, Apple, Star, Kite, Fish, Ball };

/// Draws the picture about `centre`, `size` high and wide, in lines of one ninth of its size.
void DrawChartPicture(QPainter& painter, ChartPicture picture, QPointF centre, qreal size,
                      const QColor& color);

}  // namespace ovindra::art
