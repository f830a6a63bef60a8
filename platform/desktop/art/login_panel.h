// The petrol panel at the left of the login window: an eye, the program's name and the institute below it.
// The iris is left free for the key, whose picture the window changes. Pure painting.
#pragma once

#include <QPainter>
#include <QRect>
#include <QRectF>
#include <QString>

namespace ovindra::art {

/// The panel's size on the login window, in device-independent pixels.
inline constexpr QSize kLoginPanelSize{172, 268};
/// Where the picture of the key lies on a panel of that size.
inline constexpr QRect kLoginKey{46, 78, 80, 80};

/// Paints the panel into the rectangle; eye and texts keep their places from its top.
void PaintLoginPanel(QPainter& painter, const QRectF& rect, const QString& institute);

}  // namespace ovindra::art
