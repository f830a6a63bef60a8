// The four signs of a message box. The colours come from the caller, since they follow the theme. Pure
// painting.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace ovindra::art {

enum class MessageSign { Critical, Exclamation, Information, Question };

/// Draws the sign in the rectangle's largest square: a disc (a triangle for the exclamation) of `ground` with
/// its border and mark in `ink`.
void DrawMessageSign(QPainter& painter, MessageSign sign, const QRectF& rect, const QColor& ink,
                     const QColor& ground);

}  // namespace ovindra::art
