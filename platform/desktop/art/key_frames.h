// The three pictures of the turning key on the login window. The key's bow is a ring about an amber pupil,
// and it turns within the iris of the panel's eye. They are painted here and also written to files beside the
// program
// (`make_icons.cpp`), which is where the login window reads them from. Nothing is owned.
#pragma once

#include <QPainter>
#include <QPixmap>
#include <QRectF>

namespace ovindra::art {

inline constexpr int kKeyFrames = 3;

/// Paints frame 1, 2 or 3 into the rectangle's largest square.
void DrawKeyFrame(QPainter& painter, int frame, const QRectF& rect);

/// Frame 1, 2 or 3 as a square pixmap of `side` device-independent pixels. Needs a QGuiApplication.
QPixmap KeyFrame(int frame, int side, qreal device_pixel_ratio = 1);

}  // namespace ovindra::art
