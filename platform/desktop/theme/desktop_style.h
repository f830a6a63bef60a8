// The style under the style sheet: Fusion with what a sheet can't do drawn and measured by the program. It
// also dresses widgets as they are polished: lists get the row delegate, calendars their week, cards their
// shadow. Owned by the application; made by theme::Apply.
#pragma once

#include <QProxyStyle>

namespace ovindra::theme {

class DesktopStyle : public QProxyStyle {
 public:
  DesktopStyle();

  void polish(QWidget* widget) override;
  void unpolish(QWidget* widget) override;
  using QProxyStyle::polish;
  using QProxyStyle::unpolish;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace ovindra::theme
