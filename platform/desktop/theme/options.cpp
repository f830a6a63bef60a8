#include "platform/desktop/theme/options.h"

#include "platform/desktop/art/glyphs.h"
#include "platform/desktop/art/shapes.h"
#include "platform/desktop/theme/theme.h"

namespace ovindra::theme {
namespace {

constexpr int kSign = 16;
constexpr int kBefore = 5;
constexpr int kBetween = 7;
constexpr int kAfter = 8;

struct SignColors {
  QColor border, ground, mark;
};

SignColors ColorsOf(const QStyleOption& option) {
  const Tokens& tokens = Current();
  const bool marked = option.state & (QStyle::State_On | QStyle::State_NoChange);
  if (!option.state.testFlag(QStyle::State_Enabled))
    return {tokens.dis_line, tokens.dis_fill, tokens.dis_text};
  if (!marked) return {tokens.line, tokens.base, tokens.text};
  return {tokens.accent, tokens.accent, tokens.on_accent};
}

}  // namespace

void DrawOptionFocus(QPainter& painter, const QStyleOptionButton& option) {
  if (!option.state.testFlag(QStyle::State_HasFocus)) return;
  const Tokens& tokens = Current();
  const art::PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(tokens.focus, 2));
  painter.setBrush(tokens.focus_fill);
  // The ring goes round the caption even where a layout has made the option wider.
  const int caption = option.fontMetrics.size(Qt::TextShowMnemonic, option.text).width();
  QRectF ring(option.rect);
  ring.setWidth(qMin(option.rect.width(), OptionSize(QSize(caption, 0)).width()));
  painter.drawRoundedRect(ring.adjusted(1, 1, -1, -1), kRadius - 1, kRadius - 1);
}

void DrawRadioSign(QPainter& painter, const QStyleOption& option) {
  const SignColors colors = ColorsOf(option);
  const art::PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colors.border, 1));
  painter.setBrush(colors.ground);
  const QRectF disc = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.drawEllipse(disc);
  if (!option.state.testFlag(QStyle::State_On)) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors.mark);
  painter.drawEllipse(disc.center(), 3, 3);
}

void DrawCheckSign(QPainter& painter, const QStyleOption& option) {
  const SignColors colors = ColorsOf(option);
  const art::PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colors.border, 1));
  painter.setBrush(colors.ground);
  const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.drawRoundedRect(box, 3, 3);
  if (option.state.testFlag(QStyle::State_NoChange)) {
    painter.fillRect(QRectF(box.center() - QPointF(4, 1), QSizeF(8, 2)), colors.mark);
  } else if (option.state.testFlag(QStyle::State_On)) {
    art::DrawGlyph(painter, art::Glyph::Check, option.rect, colors.mark);
  }
}

QRect OptionSign(const QStyleOption& option) {
  const QRect& whole = option.rect;
  return {whole.left() + kBefore, whole.top() + (whole.height() - kSign) / 2, kSign, kSign};
}

QRect OptionCaption(const QStyleOption& option) {
  return option.rect.adjusted(kBefore + kSign + kBetween, 0, 0, 0);
}

QSize OptionSize(const QSize& contents) {
  const int width = kBefore + kSign + (contents.width() > 0 ? kBetween + contents.width() : 0) + kAfter;
  return {width, qMax(contents.height(), kFieldHeight)};
}

}  // namespace ovindra::theme
