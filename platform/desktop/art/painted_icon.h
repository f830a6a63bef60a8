// A QIcon that is painted anew for every size and device pixel ratio instead of being scaled from pictures.
// The icon keeps a copy of the painting function, so what that captures has to be owned by it.
#pragma once

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <functional>

namespace ovindra::art {

/// Paints the icon into the rectangle; `mode` says whether it stands on something disabled.
using IconPainting = std::function<void(QPainter&, const QRectF&, QIcon::Mode mode)>;

/// The icon of a painting.
QIcon PaintedIcon(IconPainting painting);

/// A transparent pixmap of `size` device-independent pixels with the painting on it.
QPixmap PaintedPixmap(QSize size, qreal device_pixel_ratio, const std::function<void(QPainter&)>& painting);

}  // namespace ovindra::art
