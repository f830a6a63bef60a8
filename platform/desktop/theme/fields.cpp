#include "platform/desktop/theme/fields.h"

#include "platform/desktop/art/glyphs.h"
#include "platform/desktop/art/shapes.h"
#include "platform/desktop/theme/theme.h"

namespace ovindra::theme {
namespace {

constexpr int kArrowWidth = 26;
constexpr int kSpinWidth = 22;
constexpr int kMinimumCombo = 96;
// The label of a combo box adds 1 to this, its line edit 2.
constexpr int kLabelMargin = 7;
constexpr int kEditMargin = 6;
constexpr int kGlyph = 16;

bool IsOn(const QStyleOption& option) {
  return option.state.testFlag(QStyle::State_Enabled);
}

// A combo box whose list is open has handed the focus to the list, but still is where the typing goes.
bool HasFocus(const QStyleOption& option) {
  return IsOn(option) && (option.state & (QStyle::State_HasFocus | QStyle::State_On));
}

void DrawField(QPainter& painter, const QStyleOption& option) {
  const Tokens& tokens = Current();
  const art::PainterScope scope(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool focus = HasFocus(option);
  const qreal width = focus ? 2 : 1;
  const QRectF middle = QRectF(option.rect).adjusted(width / 2, width / 2, -width / 2, -width / 2);
  const QColor border = !IsOn(option) ? tokens.dis_line : focus ? tokens.focus : tokens.line;
  painter.setPen(QPen(border, width));
  painter.setBrush(!IsOn(option) ? tokens.dis_fill : focus ? tokens.focus_fill : tokens.base);
  painter.drawRoundedRect(middle, kRadius - width / 2, kRadius - width / 2);
}

void DrawChevron(QPainter& painter, const QStyleOption& option, art::Glyph glyph, const QRect& rect,
                 int side) {
  QRect square(0, 0, side, side);
  square.moveCenter(rect.center());
  const Tokens& tokens = Current();
  art::DrawGlyph(painter, glyph, square, IsOn(option) ? tokens.muted : tokens.dis_line);
}

}  // namespace

void DrawComboBox(QPainter& painter, const QStyleOptionComboBox& option) {
  DrawField(painter, option);
  DrawChevron(painter, option, art::Glyph::ChevronDown, ComboBoxPart(option, QStyle::SC_ComboBoxArrow),
              kGlyph);
}

void DrawSpinBox(QPainter& painter, const QStyleOptionSpinBox& option) {
  DrawField(painter, option);
  if (option.buttonSymbols == QAbstractSpinBox::NoButtons) return;
  DrawChevron(painter, option, art::Glyph::ChevronUp, SpinBoxPart(option, QStyle::SC_SpinBoxUp),
              kGlyph / 2 + 3);
  DrawChevron(painter, option, art::Glyph::ChevronDown, SpinBoxPart(option, QStyle::SC_SpinBoxDown),
              kGlyph / 2 + 3);
}

QRect ComboBoxPart(const QStyleOptionComboBox& option, QStyle::SubControl part) {
  const QRect& whole = option.rect;
  switch (part) {
    case QStyle::SC_ComboBoxArrow:
      return {whole.right() + 1 - kArrowWidth, whole.top(), kArrowWidth, whole.height()};
    case QStyle::SC_ComboBoxEditField:
      return whole.adjusted(option.editable ? kEditMargin : kLabelMargin, 2, -kArrowWidth, -2);
    case QStyle::SC_ComboBoxListBoxPopup:
      return whole.adjusted(0, 0, 0, 1);
    default:
      return whole;
  }
}

QRect SpinBoxPart(const QStyleOptionSpinBox& option, QStyle::SubControl part) {
  const QRect& whole = option.rect;
  const bool bare = option.buttonSymbols == QAbstractSpinBox::NoButtons;
  const QRect buttons(whole.right() + 1 - kSpinWidth, whole.top(), kSpinWidth, whole.height());
  const int half = whole.height() / 2;
  switch (part) {
    case QStyle::SC_SpinBoxUp:
      return bare ? QRect() : buttons.adjusted(0, 2, 0, half - whole.height());
    case QStyle::SC_SpinBoxDown:
      return bare ? QRect() : buttons.adjusted(0, half, 0, -2);
    case QStyle::SC_SpinBoxEditField:
      return whole.adjusted(kEditMargin, 2, bare ? -kEditMargin : -kSpinWidth, -2);
    default:
      return whole;
  }
}

QSize ComboBoxSize(const QSize& contents) {
  return {qMax(contents.width() + kLabelMargin + 2 + kArrowWidth, kMinimumCombo), kFieldHeight};
}

}  // namespace ovindra::theme
