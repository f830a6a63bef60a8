// The few forms that every picture of the program shares: the eye's lids, the ring that is open to the upper
// right (as on a sight-testing chart) and the rays of an iris. Nothing is owned; a path is returned or the
// painter is used with its settings restored. Sizes are in the painter's own units, so pictures scale with
// it.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>

namespace ovindra::art {

inline constexpr QColor kPetrol{0x0F, 0x63, 0x72};
inline constexpr QColor kDeepPetrol{0x07, 0x31, 0x3B};
inline constexpr QColor kAmber{0xF2, 0xB0, 0x40};
inline constexpr QColor kPaleWater{0xBF, 0xDF, 0xE3};

/// Saves the painter's settings and puts them back at the end of the block.
class PainterScope {
 public:
  explicit PainterScope(QPainter& painter) : painter_(painter) { painter_.save(); }
  ~PainterScope() { painter_.restore(); }
  PainterScope(const PainterScope&) = delete;
  PainterScope& operator=(const PainterScope&) = delete;

 private:
  QPainter& painter_;
};

/// The colour with another opacity, 0 to 1.
QColor WithAlpha(QColor color, qreal alpha);

/// The almond between two lids that meet at `half_width` to both sides and are `half_height` off the centre.
QPainterPath EyeLids(QPointF centre, qreal half_width, qreal half_height);

/// A ring of `width`, `radius` at its middle, whose gap of `gap_degrees` looks to the upper right.
QPainterPath OpenRing(QPointF centre, qreal radius, qreal width, qreal gap_degrees);

/// How the rays of an iris stand: `count` of them round the full circle, growing inwards from `outer`; the
/// longest reach `inner`.
struct Rays {
  int count;
  qreal outer;
  qreal inner;
};

/// Draws the rays with the painter's pen.
void DrawRays(QPainter& painter, QPointF centre, const Rays& rays);

}  // namespace ovindra::art
