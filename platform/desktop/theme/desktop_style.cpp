#include "platform/desktop/theme/desktop_style.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QFrame>
#include <QMdiSubWindow>
#include <QStyleFactory>
#include <QStyleOption>

#include "platform/desktop/theme/dressing.h"
#include "platform/desktop/theme/fields.h"
#include "platform/desktop/theme/icons.h"
#include "platform/desktop/theme/options.h"
#include "platform/desktop/theme/roles.h"
#include "platform/desktop/theme/theme.h"
#include "platform/desktop/theme/title_bar.h"

namespace ovindra::theme {
namespace {

// Margins of a layout: those of a form on the form itself, none on the groups and panes within it.
struct Margins {
  int left, top, right, bottom;
};
constexpr Margins kFormMargins{16, 10, 16, 12};
constexpr Margins kCardMargins{16, 12, 16, 14};
constexpr Margins kNoMargins{0, 0, 0, 0};
// Two of the three are ground: a frame of one pixel can't be caught with the mouse.
constexpr int kChildFrame = 3;
constexpr int kMessageSign = 38;
// One for both directions: a row within a form layout has no spacing at all when the two differ.
constexpr int kSpacing = 6;
constexpr int kButtonSpacing = 8;
constexpr int kCellMargin = 7;

Margins MarginsOf(const QWidget* widget) {
  if (widget == nullptr) return kFormMargins;
  if (widget->property("card").toBool()) return kCardMargins;
  const bool form =
      widget->isWindow() || qobject_cast<const QMdiSubWindow*>(widget->parentWidget()) != nullptr;
  return form ? kFormMargins : kNoMargins;
}

bool IsRowView(const QWidget* widget) {
  return qobject_cast<const QAbstractItemView*>(widget) != nullptr && !widget->inherits("QCalendarView");
}

// The line edit within a field lets the field's own ground through.
bool IsPartOfField(const QWidget* widget) {
  const QWidget* parent = widget == nullptr ? nullptr : widget->parentWidget();
  return qobject_cast<const QComboBox*>(parent) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(parent) != nullptr;
}

bool IsLine(const QStyleOption* option) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  return frame != nullptr && (frame->frameShape == QFrame::HLine || frame->frameShape == QFrame::VLine);
}

void DrawHairline(QPainter& painter, const QStyleOptionFrame& option) {
  QRect line = option.rect;
  if (option.frameShape == QFrame::HLine) {
    line = QRect(line.left(), line.center().y(), line.width(), 1);
  } else {
    line = QRect(line.center().x(), line.top(), 1, line.height());
  }
  painter.fillRect(line, Current().hair);
}

}  // namespace

DesktopStyle::DesktopStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

void DesktopStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  DressWidget(*widget);
  if (qobject_cast<QMdiSubWindow*>(widget) != nullptr) {
    widget->setAutoFillBackground(widget->isMaximized());
    widget->installEventFilter(this);
  } else if (qobject_cast<QAbstractItemView*>(widget) != nullptr) {
    widget->installEventFilter(this);
  }
}

void DesktopStyle::unpolish(QWidget* widget) {
  widget->removeEventFilter(this);
  QProxyStyle::unpolish(widget);
}

bool DesktopStyle::eventFilter(QObject* watched, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(watched);
  if (widget != nullptr && event->type() == QEvent::WindowStateChange) {
    // The corners of a child window let the ground through; a maximised one has no title bar that fills it.
    if (qobject_cast<QMdiSubWindow*>(widget) != nullptr) widget->setAutoFillBackground(widget->isMaximized());
  } else if (widget != nullptr && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
    // Qt repaints a view's rows, not the ring round them.
    widget->update();
  }
  return QProxyStyle::eventFilter(watched, event);
}

void DesktopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  switch (element) {
    case PE_IndicatorRadioButton:
      return DrawRadioSign(*painter, *option);
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
      return DrawCheckSign(*painter, *option);
    case PE_PanelLineEdit:
      if (IsPartOfField(widget)) return;
      break;
    case PE_FrameWindow:
      return DrawChildFrame(*painter, *option);
    case PE_FrameFocusRect:
      return;  // every focus is shown by the widget's own ring
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void DesktopStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (button != nullptr && (element == CE_RadioButton || element == CE_CheckBox)) {
    const bool radio = element == CE_RadioButton;
    DrawOptionFocus(*painter, *button);
    QStyleOptionButton part = *button;
    part.rect = OptionSign(*button);
    proxy()->drawPrimitive(radio ? PE_IndicatorRadioButton : PE_IndicatorCheckBox, &part, painter, widget);
    part.rect = OptionCaption(*button);
    proxy()->drawControl(radio ? CE_RadioButtonLabel : CE_CheckBoxLabel, &part, painter, widget);
    return;
  }
  if (element == CE_ShapedFrame && IsLine(option)) {
    DrawHairline(*painter, *qstyleoption_cast<const QStyleOptionFrame*>(option));
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void DesktopStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option); combo != nullptr) {
    DrawComboBox(*painter, *combo);
  } else if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option); spin != nullptr) {
    DrawSpinBox(*painter, *spin);
  } else if (const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option); bar != nullptr) {
    DrawTitleBar(*painter, *bar);
  } else if (control == CC_MdiControls) {
    DrawMdiControls(*painter, *option);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

QRect DesktopStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
  switch (element) {
    case SE_RadioButtonIndicator:
    case SE_CheckBoxIndicator:
      return OptionSign(*option);
    case SE_RadioButtonContents:
    case SE_CheckBoxContents:
      return OptionCaption(*option);
    case SE_RadioButtonFocusRect:
    case SE_RadioButtonClickRect:
    case SE_CheckBoxFocusRect:
    case SE_CheckBoxClickRect:
      return option->rect;
    default:
      return QProxyStyle::subElementRect(element, option, widget);
  }
}

QRect DesktopStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
  if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option); combo != nullptr) {
    return ComboBoxPart(*combo, part);
  }
  if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option); spin != nullptr) {
    return SpinBoxPart(*spin, part);
  }
  if (const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option); bar != nullptr) {
    return TitleBarPart(*bar, part);
  }
  if (control == CC_MdiControls) return MdiControl(*option, part);
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize DesktopStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                     const QWidget* widget) const {
  switch (type) {
    case CT_ComboBox:
      return ComboBoxSize(contents);
    case CT_RadioButton:
    case CT_CheckBox:
      return OptionSize(contents);
    case CT_MdiControls:
      if (const auto* controls = qstyleoption_cast<const QStyleOptionComplex*>(option); controls != nullptr) {
        return MdiControlsSize(*controls);
      }
      break;
    default:
      break;
  }
  return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int DesktopStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_TitleBarHeight:
      return kChildTitleHeight;
    case PM_MdiSubWindowFrameWidth:
      return kChildFrame;
    case PM_LayoutLeftMargin:
      return MarginsOf(widget).left;
    case PM_LayoutTopMargin:
      return MarginsOf(widget).top;
    case PM_LayoutRightMargin:
      return MarginsOf(widget).right;
    case PM_LayoutBottomMargin:
      return MarginsOf(widget).bottom;
    case PM_LayoutHorizontalSpacing:
      if (qobject_cast<const QDialogButtonBox*>(widget) != nullptr) return kButtonSpacing;
      return kSpacing;
    case PM_LayoutVerticalSpacing:
      return kSpacing;
    case PM_MessageBoxIconSize:
      return kMessageSign;
    case PM_FocusFrameHMargin:
      return IsRowView(widget) ? kCellMargin : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return 16;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* answer) const {
  switch (hint) {
    case SH_EtchDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ComboBox_Popup:
    case SH_MessageBox_CenterButtons:
      return 0;
    case SH_DialogButtonLayout:
      return QDialogButtonBox::WinLayout;
    case SH_TitleBar_NoBorder:  // the frame is drawn below the bar, not round it
    case SH_ItemView_ShowDecorationSelected:
    case SH_UnderlineShortcut:
      return 1;
    case SH_LineEdit_PasswordCharacter: {
      const QVariant own = widget == nullptr ? QVariant() : widget->property(role::kPasswordCharacter);
      return own.isValid() ? own.toInt() : '$';
    }
    case SH_ComboBox_PopupFrameStyle:
      return QFrame::NoFrame;
    case SH_FormLayoutLabelAlignment:
      return static_cast<int>((Qt::AlignLeft | Qt::AlignVCenter).toInt());
    case SH_FormLayoutFieldGrowthPolicy:
      return QFormLayout::AllNonFixedFieldsGrow;
    default:
      return QProxyStyle::styleHint(hint, option, widget, answer);
  }
}

QIcon DesktopStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
  switch (icon) {
    case SP_MessageBoxCritical:
      return MessageIcon(art::MessageSign::Critical);
    case SP_MessageBoxWarning:
      return MessageIcon(art::MessageSign::Exclamation);
    case SP_MessageBoxInformation:
      return MessageIcon(art::MessageSign::Information);
    case SP_MessageBoxQuestion:
      return MessageIcon(art::MessageSign::Question);
    default:
      return QProxyStyle::standardIcon(icon, option, widget);
  }
}

}  // namespace ovindra::theme
