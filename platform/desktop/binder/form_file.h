// The .ui files of the forms: layouts, labels, tab order and the widgets of the controls. A widget bears the
// name of its control; a member of a control array is called `m1_3` for `m1(3)`. A widget whose name begins
// with `look_` belongs to the look alone (labels, groups, lines, bars), as do the toolkit's own parts.
#pragma once

#include <QHash>
#include <QString>
#include <QWidget>

#include "base/controls/control.h"

namespace ovindra::desktop {

/// The widgets of the form's file, a new tree that the caller owns; null when there is no such file.
QWidget* LoadFormFile(const QString& form_name);

/// The text of the form's file, empty when there is none.
QByteArray ReadFormFile(const QString& form_name);

/// The name of the widget that shows the control.
QString WidgetName(const Control& control);

/// All widgets below `loaded` that bear the name of a control.
QHash<QString, QWidget*> ControlWidgets(const QWidget& loaded);

}  // namespace ovindra::desktop
