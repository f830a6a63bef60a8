// The ground of the main window behind its child windows: dawn over hills, the sun an iris, five children
// hand in hand, a kite and a faint children's chart. `Backdrop` keeps the last picture it painted, since
// child windows that move uncover the ground many times a second; its owner asks again when size, pixel ratio
// or theme change.
#pragma once

#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QSize>

namespace ovindra::art {

/// Paints the whole ground into the rectangle. The scene keeps its proportions, the hills fill the width.
void PaintBackdrop(QPainter& painter, const QRectF& rect, bool dark);

/// The ground as a pixmap, painted once per size, pixel ratio and theme.
class Backdrop {
 public:
  /// The picture for an area of `size` device-independent pixels.
  const QPixmap& Picture(QSize size, qreal device_pixel_ratio, bool dark);

 private:
  QPixmap picture_;
  bool dark_ = false;
};

}  // namespace ovindra::art
