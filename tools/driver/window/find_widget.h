// Parts of WindowPlayer that its hands and its eyes share. To be included by their source files alone.
#pragma once

#include "tools/driver/window/window_player.h"

namespace ovindra::driver {

template <typename Kind>
Kind& WindowPlayer::WidgetOf(const ControlName& name) const {
  auto* widget = qobject_cast<Kind*>(&BindingOf(name).widget());
  if (widget == nullptr)
    throw StepFailure(name.control + " to be a " + Kind::staticMetaObject.className(), "it is none");
  return *widget;
}

}  // namespace ovindra::driver
