// How combo boxes, date fields and spin boxes are laid out and drawn: a bordered field with a chevron, since
// a style sheet can't draw an arrow without a picture file. The figures equal those of QLineEdit in
// theme.qss. Owns nothing.
#pragma once

#include <QPainter>
#include <QRect>
#include <QStyleOption>

namespace ovindra::theme {

/// The field, its focus ring and the chevron of a drop-down field.
void DrawComboBox(QPainter& painter, const QStyleOptionComboBox& option);

/// The field with up and down chevrons, unless it shows none.
void DrawSpinBox(QPainter& painter, const QStyleOptionSpinBox& option);

/// The part's place in the drop-down field.
QRect ComboBoxPart(const QStyleOptionComboBox& option, QStyle::SubControl part);

/// The part's place in the spin box.
QRect SpinBoxPart(const QStyleOptionSpinBox& option, QStyle::SubControl part);

/// The size of a drop-down field that shows `contents`: one height for all, never too narrow to be read.
QSize ComboBoxSize(const QSize& contents);

}  // namespace ovindra::theme
