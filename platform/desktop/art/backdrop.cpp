#include "platform/desktop/art/backdrop.h"

#include <QFont>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainterPath>
#include <QPen>
#include <QRadialGradient>
#include <array>

#include "platform/desktop/art/chart.h"
#include "platform/desktop/art/children.h"
#include "platform/desktop/art/painted_icon.h"
#include "platform/desktop/art/shapes.h"
#include "platform/desktop/art/wordmark.h"

namespace ovindra::art {
namespace {

// The scene is composed on an area of this size and scaled to the one at hand.
constexpr qreal kWidth = 1366;
constexpr qreal kHeight = 649;
constexpr QPointF kSun{909, 519};
constexpr QPointF kKiteHand{1044, 470};

struct Colors {
  QColor sky_top, sky_foot, glow, chart, iris, iris_line, ray, sun, lid, outer_lid;
  QColor back_hill, front_hill, child, string, kite, kite_light, word, subtitle;
};

Colors LightColors() {
  return {QColor(0xDC, 0xE9, 0xEB),       QColor(0xF1, 0xEF, 0xE4),       QColor(0xF2, 0xB9, 0x5C, 0x60),
          QColor(0xB4, 0xCE, 0xD1),       QColor(0x6E, 0xA9, 0xB1, 0x78), QColor(0x8A, 0xB9, 0xBE),
          QColor(0xFF, 0xFF, 0xFF, 0x48), QColor(0xF2, 0xB9, 0x5C),       QColor(0xAA, 0xC9, 0xC9),
          QColor(0xAA, 0xC9, 0xC9, 0x90), QColor(0xBB, 0xD5, 0xD6),       QColor(0x9C, 0xC3, 0xC6),
          QColor(0x5E, 0x97, 0x9F),       QColor(0x6F, 0xA9, 0xB0),       QColor(0xE0, 0x83, 0x5B),
          QColor(0xEC, 0xB5, 0x58),       QColor(0x1A, 0x5F, 0x6C),       QColor(0x13, 0x4F, 0x5B)};
}

Colors DarkColors() {
  return {QColor(0x10, 0x19, 0x1C),       QColor(0x19, 0x2E, 0x34),       QColor(0xB9, 0x8A, 0x45, 0x40),
          QColor(0x22, 0x36, 0x3B),       QColor(0x2B, 0x62, 0x6C, 0x80), QColor(0x2F, 0x66, 0x70),
          QColor(0x8F, 0xC8, 0xD0, 0x30), QColor(0xA5, 0x80, 0x3F),       QColor(0x25, 0x4E, 0x56),
          QColor(0x25, 0x4E, 0x56, 0x90), QColor(0x17, 0x30, 0x36),       QColor(0x12, 0x26, 0x2B),
          QColor(0x3D, 0x76, 0x80),       QColor(0x35, 0x63, 0x6B),       QColor(0x8F, 0x5C, 0x40),
          QColor(0xA5, 0x80, 0x3F),       QColor(0x8F, 0xC3, 0xCB),       QColor(0x8C, 0xB1, 0xB8)};
}

// Where the scene's points come to lie. One scale for both directions keeps the sun round; what hangs on the
// left edge, the ground or the sun moves with it.
struct Place {
  QRectF rect;
  qreal scale;
  QPointF sun;
};

Place PlaceIn(const QRectF& rect) {
  const qreal scale = qMin(rect.width() / kWidth, rect.height() / kHeight);
  const QPointF sun(rect.left() + rect.width() * kSun.x() / kWidth,
                    rect.bottom() - (kHeight - kSun.y()) * scale);
  return {rect, scale, sun};
}

// Sets the painter to the scene's units with the sun where it belongs.
void MoveToSun(QPainter& painter, const Place& place) {
  painter.translate(place.sun);
  painter.scale(place.scale, place.scale);
  painter.translate(-kSun);
}

void PaintSky(QPainter& painter, const Place& place, const Colors& colors) {
  QLinearGradient sky(place.rect.topLeft(), place.rect.bottomLeft());
  sky.setColorAt(0, colors.sky_top);
  sky.setColorAt(0.8, colors.sky_foot);
  painter.fillRect(place.rect, sky);
  QRadialGradient glow(place.sun, 480 * place.scale);
  glow.setColorAt(0, colors.glow);
  glow.setColorAt(1, WithAlpha(colors.glow, 0));
  painter.fillRect(place.rect, glow);
}

void PaintChart(QPainter& painter, const Place& place, const Colors& colors) {
  using enum ChartPicture;
  struct Row {
    qreal y, size, step;
    std::array<ChartPicture, 6> pictures;
    int count;
  };
  constexpr std::array<Row, 4> kRows = {{{91, 58, 90, {House, Apple, Star}, 3},
                                         {184, 43, 62, {Ball, Kite, Fish, House}, 4},
                                         {253, 31, 46.5, {Apple, Star, Kite, Fish, Ball}, 5},
                                         {306, 21, 33, {Ball, House, Fish, Apple, Star, Kite}, 6}}};
  const PainterScope scope(painter);
  painter.translate(place.rect.left() + place.rect.width() * 260 / kWidth, place.rect.top());
  painter.scale(place.scale, place.scale);
  for (const Row& row : kRows) {
    for (int i = 0; i < row.count; ++i) {
      const qreal x = (i - (row.count - 1) / 2.0) * row.step;
      DrawChartPicture(painter, row.pictures.at(static_cast<std::size_t>(i)), {x, row.y}, row.size,
                       colors.chart);
    }
  }
}

QPainterPath LidArc(qreal half_width, qreal height) {
  const QPointF left = kSun + QPointF(-half_width, 60);
  const QPointF right = kSun + QPointF(half_width, 60);
  QPainterPath arc(left);
  const qreal handle = 4.0 / 3 * (height + 60);
  arc.cubicTo(left + QPointF(half_width * 0.42, -handle), right + QPointF(-half_width * 0.42, -handle),
              right);
  return arc;
}

void PaintSun(QPainter& painter, const Colors& colors) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colors.outer_lid, 2));
  painter.drawPath(LidArc(500, 327));
  painter.setPen(QPen(colors.lid, 3));
  painter.drawPath(LidArc(455, 300));
  painter.setPen(QPen(colors.iris_line, 3));
  painter.setBrush(colors.iris);
  painter.drawEllipse(kSun, 223, 223);
  painter.setPen(QPen(colors.ray, 2, Qt::SolidLine, Qt::RoundCap));
  DrawRays(painter, kSun, {98, 212, 118});
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors.sun);
  painter.drawEllipse(kSun, 103, 103);
}

// A hill whose ridge runs through the points, given from the left edge on in the scene's units; it fills the
// width.
void PaintHill(QPainter& painter, const Place& place, const std::array<QPointF, 7>& ridge,
               const QColor& color) {
  const auto at = [&](const QPointF& point) {
    return QPointF(place.rect.left() + place.rect.width() * point.x() / kWidth,
                   place.rect.bottom() - (kHeight - point.y()) * place.scale);
  };
  QPainterPath hill(at(ridge[0]));
  hill.cubicTo(at(ridge[1]), at(ridge[2]), at(ridge[3]));
  hill.cubicTo(at(ridge[4]), at(ridge[5]), at(ridge[6]));
  hill.lineTo(place.rect.bottomRight());
  hill.lineTo(place.rect.bottomLeft());
  hill.closeSubpath();
  painter.fillPath(hill, color);
}

void PaintChildren(QPainter& painter, const Colors& colors) {
  using enum Child::Kind;
  // Neighbours name the same point for the hands they hold.
  constexpr std::array<QPointF, 5> kHands = {{{772, 512}, {827, 508}, {885.5, 506}, {934, 507}, {992, 509}}};
  const std::array<Child, 5> children = {{{Boy, {799, 555}, 95, kHands[0], kHands[1]},
                                          {Girl, {855, 551}, 106.5, kHands[1], kHands[2]},
                                          {Boy, {909, 550}, 82.5, kHands[2], kHands[3]},
                                          {Girl, {962, 549}, 100, kHands[3], kHands[4]},
                                          {Boy, {1020, 551}, 91, kHands[4], kKiteHand}}};
  for (const Child& child : children) DrawChild(painter, child, colors.child);
}

void PaintKite(QPainter& painter, const Colors& colors) {
  constexpr QPointF kTop{1276, 208};
  constexpr QPointF kRight{1286, 237};
  constexpr QPointF kFoot{1256, 261};
  constexpr QPointF kLeft{1249, 222};
  constexpr QPointF kCross{1268, 230};
  QPainterPath string(kKiteHand);
  string.cubicTo({1150, 462}, {1240, 370}, {1267, 250});
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colors.string, 1.4));
  painter.drawPath(string);
  painter.setPen(Qt::NoPen);
  const auto quarter = [&](QPointF from, QPointF to, const QColor& color) {
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF{from, to, kCross});
  };
  quarter(kLeft, kTop, colors.kite_light);
  quarter(kTop, kRight, colors.kite);
  quarter(kRight, kFoot, colors.kite_light);
  quarter(kFoot, kLeft, colors.kite);
}

void PaintName(QPainter& painter, const Place& place, const Colors& colors) {
  const PainterScope scope(painter);
  painter.translate(place.rect.left() + 41 * place.scale, place.rect.bottom());
  painter.scale(place.scale, place.scale);
  DrawText(painter, {0, -49}, kProgramName, {29, QFont::Bold}, colors.word);
  DrawText(painter, {1, -23}, kSubtitle, {15, QFont::Normal}, colors.subtitle);
}

}  // namespace

void PaintBackdrop(QPainter& painter, const QRectF& rect, bool dark) {
  const PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(rect, Qt::IntersectClip);
  const Colors colors = dark ? DarkColors() : LightColors();
  const Place place = PlaceIn(rect);
  PaintSky(painter, place, colors);
  PaintChart(painter, place, colors);
  {
    const PainterScope sun(painter);
    MoveToSun(painter, place);
    PaintSun(painter, colors);
  }
  PaintHill(painter, place,
            {{{0, 532}, {180, 498}, {360, 505}, {610, 519}, {860, 533}, {1080, 480}, {1366, 518}}},
            colors.back_hill);
  PaintHill(painter, place,
            {{{0, 585}, {300, 583}, {560, 556}, {800, 545}, {1040, 534}, {1200, 552}, {1366, 574}}},
            colors.front_hill);
  {
    const PainterScope scene(painter);
    MoveToSun(painter, place);
    PaintChildren(painter, colors);
    PaintKite(painter, colors);
  }
  PaintName(painter, place, colors);
}

const QPixmap& Backdrop::Picture(QSize size, qreal device_pixel_ratio, bool dark) {
  const bool fits = picture_.size() == size * device_pixel_ratio && dark_ == dark;
  if (!fits) {
    picture_ = PaintedPixmap(size, device_pixel_ratio, [&](QPainter& painter) {
      PaintBackdrop(painter, QRectF(QPointF(), size), dark);
    });
    dark_ = dark;
  }
  return picture_;
}

}  // namespace ovindra::art
