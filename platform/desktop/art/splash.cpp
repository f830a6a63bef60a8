#include "platform/desktop/art/splash.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <array>

#include "platform/desktop/art/chart.h"
#include "platform/desktop/art/children.h"
#include "platform/desktop/art/program_icon.h"
#include "platform/desktop/art/shapes.h"
#include "platform/desktop/art/wordmark.h"

namespace ovindra::art {
namespace {

constexpr QPointF kEye{496, 162};
constexpr QColor kFigure{0x0B, 0x3B, 0x46};

void PaintGround(QPainter& painter) {
  const QRectF panel(QPointF(), kSplashSize);
  QLinearGradient ground(panel.topLeft(), panel.bottomRight());
  ground.setColorAt(0, kDeepPetrol);
  ground.setColorAt(0.45, QColor(0x08, 0x37, 0x42));
  ground.setColorAt(1, QColor(0x0E, 0x4A, 0x56));
  painter.fillRect(panel, ground);
  QRadialGradient glow(kEye, 205);
  glow.setColorAt(0, WithAlpha(kAmber, 0.22));
  glow.setColorAt(0.5, WithAlpha(kAmber, 0.13));
  glow.setColorAt(1, WithAlpha(kAmber, 0));
  painter.fillRect(panel, glow);
}

void PaintPupil(QPainter& painter) {
  using enum Child::Kind;
  constexpr QPointF kMiddle{496, 162};
  constexpr QPointF kJoined{496.5, 173};
  const PainterScope scope(painter);
  QPainterPath pupil;
  pupil.addEllipse(kMiddle, 52.5, 52.5);
  QLinearGradient dusk(0, 110, 0, 195);
  dusk.setColorAt(0, QColor(0x0C, 0x3C, 0x47));
  dusk.setColorAt(0.6, QColor(0x2B, 0x66, 0x6E));
  dusk.setColorAt(1, QColor(0x8C, 0x93, 0x6C));
  painter.fillPath(pupil, dusk);
  painter.setClipPath(pupil, Qt::IntersectClip);
  painter.setBrush(QColor(0xF7, 0xC6, 0x6A));
  painter.drawEllipse(QPointF(496, 180), 32, 32);
  painter.setBrush(kFigure);
  painter.drawEllipse(QPointF(496, 250), 150, 63);
  DrawChild(painter, {Girl, {481.5, 189}, 49, {467.5, 171}, kJoined}, kFigure);
  DrawChild(painter, {Boy, {510, 189}, 42, kJoined, {522, 153}}, kFigure);
  painter.setBrush(QColor(0xE8, 0xF1, 0xF2));
  painter.setPen(Qt::NoPen);
  painter.drawEllipse(QPointF(464, 130), 7, 7);
}

void PaintEye(QPainter& painter) {
  const QColor lid(0x6C, 0xAF, 0xB8);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(WithAlpha(lid, 0.45), 1.3));
  painter.drawPath(EyeLids(kEye, 201, 126));
  painter.setPen(QPen(lid, 2.6));
  painter.drawPath(EyeLids(kEye, 183, 115));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0x1C, 0x6B, 0x79));
  painter.drawEllipse(kEye, 94.5, 94.5);
  painter.setPen(QPen(QColor(0x55, 0x96, 0xA1), 1.4));
  DrawRays(painter, kEye, {91, 85.5, 56});
  painter.fillPath(OpenRing(kEye, 90, 9.5, 43), QColor(0xE8, 0xF6, 0xF7));
  painter.setPen(Qt::NoPen);
  PaintPupil(painter);
}

void PaintChartRow(QPainter& painter) {
  using enum ChartPicture;
  struct Picture {
    ChartPicture picture;
    qreal x, size;
  };
  // Each smaller than the one before, as the lines of a chart are.
  constexpr std::array<Picture, 4> kPictures = {
      {{House, 47, 26}, {Apple, 85, 23}, {Star, 123, 19}, {Kite, 161, 16}}};
  for (const Picture& picture : kPictures) {
    DrawChartPicture(painter, picture.picture, {picture.x, 272}, picture.size, QColor(0x94, 0xC6, 0xCD));
  }
}

void PaintTexts(QPainter& painter, SplashTitle title) {
  if (title == SplashTitle::Painted) {
    const TextSize size{kSplashTitlePixels, QFont::Bold};
    const QFontMetricsF metrics(PictureFont(size));
    const qreal baseline =
        kSplashTitle.y() + (kSplashTitle.height() + metrics.ascent() - metrics.descent()) / 2;
    DrawText(painter, QPointF(kSplashTitle.x(), baseline), kProgramName, size, Qt::white);
  }
  DrawText(painter, {36, 158}, kSubtitle, {16, QFont::Normal}, kPaleWater);
}

}  // namespace

void PaintSplash(QPainter& painter, SplashTitle title) {
  const PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(QRectF(QPointF(), kSplashSize), Qt::IntersectClip);
  PaintGround(painter);
  PaintEye(painter);
  DrawProgramIcon(painter, QRectF(37, 39, 42, 42));
  PaintTexts(painter, title);
  PaintChartRow(painter);
  painter.fillRect(kSplashCredit, QColor(0x04, 0x27, 0x30));
}

}  // namespace ovindra::art
