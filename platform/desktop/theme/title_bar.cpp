#include "platform/desktop/theme/title_bar.h"

#include <QApplication>
#include <QPainterPath>
#include <array>

#include "platform/desktop/art/glyphs.h"
#include "platform/desktop/art/shapes.h"
#include "platform/desktop/theme/theme.h"

namespace ovindra::theme {
namespace {

constexpr int kButtonWidth = 30;
constexpr int kRightMargin = 3;
constexpr int kTitleMargin = 12;
constexpr int kGlyph = 16;
constexpr int kCorner = 6;
constexpr int kMdiButton = 28;

// The buttons from right to left, as they are found on the bar.
struct BarButton {
  QStyle::SubControl part;
  art::Glyph glyph;
};
constexpr std::array<BarButton, 4> kBarButtons = {{{QStyle::SC_TitleBarCloseButton, art::Glyph::Close},
                                                   {QStyle::SC_TitleBarMaxButton, art::Glyph::Maximise},
                                                   {QStyle::SC_TitleBarNormalButton, art::Glyph::Restore},
                                                   {QStyle::SC_TitleBarMinButton, art::Glyph::Minimise}}};
constexpr std::array<BarButton, 3> kMdiButtons = {{{QStyle::SC_MdiCloseButton, art::Glyph::Close},
                                                   {QStyle::SC_MdiNormalButton, art::Glyph::Restore},
                                                   {QStyle::SC_MdiMinButton, art::Glyph::Minimise}}};

bool HasButton(const QStyleOptionTitleBar& option, QStyle::SubControl part) {
  const bool maximised = option.titleBarState & Qt::WindowMaximized;
  const bool minimised = option.titleBarState & Qt::WindowMinimized;
  const Qt::WindowFlags flags = option.titleBarFlags;
  switch (part) {
    case QStyle::SC_TitleBarCloseButton:
      return flags.testFlag(Qt::WindowSystemMenuHint);
    case QStyle::SC_TitleBarMaxButton:
      return flags.testFlag(Qt::WindowMaximizeButtonHint) && !maximised;
    case QStyle::SC_TitleBarNormalButton:
      return minimised || (maximised && flags.testFlag(Qt::WindowMaximizeButtonHint));
    case QStyle::SC_TitleBarMinButton:
      return flags.testFlag(Qt::WindowMinimizeButtonHint) && !minimised;
    default:
      return false;
  }
}

bool IsActive(const QStyleOptionTitleBar& option) {
  return option.titleBarState & QStyle::State_Active;
}

QRect CentredGlyph(const QRect& button) {
  return {button.left() + (button.width() - kGlyph) / 2, button.top() + (button.height() - kGlyph) / 2,
          kGlyph, kGlyph};
}

void DrawButton(QPainter& painter, const QStyleOptionComplex& option, const BarButton& button,
                const QRect& rect, const QColor& ink) {
  if (option.activeSubControls.testFlag(button.part) &&
      (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken))) {
    const bool down = option.state.testFlag(QStyle::State_Sunken);
    painter.setPen(Qt::NoPen);
    painter.setBrush(art::WithAlpha(ink, down ? 0.3 : 0.18));
    painter.drawRoundedRect(QRectF(rect).adjusted(2, 3, -2, -3), 3, 3);
  }
  art::DrawGlyph(painter, button.glyph, CentredGlyph(rect), ink);
}

QPainterPath BarShape(const QRectF& rect) {
  QPainterPath shape(rect.bottomLeft());
  shape.lineTo(rect.left(), rect.top() + kCorner);
  shape.quadTo(rect.topLeft(), rect.topLeft() + QPointF(kCorner, 0));
  shape.lineTo(rect.topRight() - QPointF(kCorner, 0));
  shape.quadTo(rect.topRight(), rect.topRight() + QPointF(0, kCorner));
  shape.lineTo(rect.bottomRight());
  shape.closeSubpath();
  return shape;
}

}  // namespace

void DrawTitleBar(QPainter& painter, const QStyleOptionTitleBar& option) {
  const Tokens& tokens = Current();
  const bool active = IsActive(option);
  const QColor ink = active ? tokens.on_title_on : tokens.on_title_off;
  const art::PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(BarShape(option.rect), active ? tokens.title_on : tokens.title_off);
  painter.setPen(ink);
  QFont font = QApplication::font();
  font.setWeight(QFont::Bold);
  painter.setFont(font);
  const QRect label = TitleBarPart(option, QStyle::SC_TitleBarLabel);
  painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(option.text, Qt::ElideRight, label.width()));
  for (const BarButton& button : kBarButtons) {
    if (HasButton(option, button.part)) {
      DrawButton(painter, option, button, TitleBarPart(option, button.part), ink);
    }
  }
}

void DrawChildFrame(QPainter& painter, const QStyleOption& option) {
  const Tokens& tokens = Current();
  const bool active = option.state.testFlag(QStyle::State_Active);
  const QRect body = option.rect.adjusted(0, kChildTitleHeight, 0, 0);
  painter.fillRect(body, tokens.window);
  const QColor border = art::WithAlpha(active ? tokens.title_on : tokens.line, 0.5);
  painter.fillRect(QRect(body.left(), body.top(), 1, body.height()), border);
  painter.fillRect(QRect(body.right(), body.top(), 1, body.height()), border);
  painter.fillRect(QRect(body.left() + 1, body.bottom(), body.width() - 2, 1), border);
}

QRect TitleBarPart(const QStyleOptionTitleBar& option, QStyle::SubControl part) {
  const QRect& bar = option.rect;
  int right = bar.right() + 1 - kRightMargin;
  for (const BarButton& button : kBarButtons) {
    if (!HasButton(option, button.part)) continue;
    right -= kButtonWidth;
    if (button.part == part) return {right, bar.top(), kButtonWidth, bar.height()};
  }
  if (part != QStyle::SC_TitleBarLabel) return {};
  return {bar.left() + kTitleMargin, bar.top(), right - bar.left() - kTitleMargin - 4, bar.height()};
}

void DrawMdiControls(QPainter& painter, const QStyleOptionComplex& option) {
  const art::PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const BarButton& button : kMdiButtons) {
    if (!option.subControls.testFlag(button.part)) continue;
    DrawButton(painter, option, button, MdiControl(option, button.part), Current().text);
  }
}

QRect MdiControl(const QStyleOptionComplex& option, QStyle::SubControl part) {
  int right = option.rect.right() + 1;
  for (const BarButton& button : kMdiButtons) {
    if (!option.subControls.testFlag(button.part)) continue;
    right -= kMdiButton;
    if (button.part == part) return {right, option.rect.top(), kMdiButton, option.rect.height()};
  }
  return {};
}

QSize MdiControlsSize(const QStyleOptionComplex& option) {
  int width = 0;
  for (const BarButton& button : kMdiButtons)
    width += option.subControls.testFlag(button.part) ? kMdiButton : 0;
  return {width, kFieldHeight - 4};
}

}  // namespace ovindra::theme
