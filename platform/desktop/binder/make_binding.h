// Chooses the binding for a kind of control and the widget that bears its name.
#pragma once

#include <QWidget>

#include "base/controls/control.h"
#include "platform/desktop/binder/binding.h"

namespace ovindra::desktop {

/// Ties the control to the widget, which is null when there is none of its name. Null when the two don't fit.
/// The view owns the binding.
Binding* MakeBinding(FormView& view, Control& control, QWidget* widget);

}  // namespace ovindra::desktop
