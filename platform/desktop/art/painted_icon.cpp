#include "platform/desktop/art/painted_icon.h"

#include <QIconEngine>
#include <utility>

namespace ovindra::art {
namespace {

class PaintedIconEngine : public QIconEngine {
 public:
  explicit PaintedIconEngine(IconPainting painting) : painting_(std::move(painting)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painting_(*painter, QRectF(rect), mode);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
    return PaintedPixmap(size, 1,
                         [&](QPainter& painter) { painting_(painter, QRectF(QPointF(), size), mode); });
  }

  QIconEngine* clone() const override { return new PaintedIconEngine(painting_); }

 private:
  IconPainting painting_;
};

}  // namespace

QIcon PaintedIcon(IconPainting painting) {
  return QIcon(new PaintedIconEngine(std::move(painting)));
}

QPixmap PaintedPixmap(QSize size, qreal device_pixel_ratio, const std::function<void(QPainter&)>& painting) {
  QPixmap pixmap(size * device_pixel_ratio);
  pixmap.setDevicePixelRatio(device_pixel_ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painting(painter);
  return pixmap;
}

}  // namespace ovindra::art
