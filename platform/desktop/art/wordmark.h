// The program's name as it stands on the pictures, and text in the program's own typeface. Nothing is owned.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>

namespace ovindra::art {

inline constexpr auto kProgramName = "Ovindra Desk";
inline constexpr auto kSubtitle = "Child eye screening";

/// Size in whole units of the painter and weight of a line of text.
struct TextSize {
  int size;
  QFont::Weight weight;
};

/// The program's typeface: even digits, a capital I that differs from a small l.
QFont PictureFont(const TextSize& size);

/// Writes the text with its baseline starting at `origin`.
void DrawText(QPainter& painter, QPointF origin, const QString& text, const TextSize& size,
              const QColor& color);

}  // namespace ovindra::art
