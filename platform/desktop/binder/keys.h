// Keys as the toolkit tells them, turned into the keys that controls know. Nothing is owned.
#pragma once

#include <QKeyEvent>
#include <optional>

#include "base/controls/control.h"

namespace ovindra::desktop {

/// The key that a control is told; nothing for one that is the widget's own affair: a caret key, a chord with
/// Ctrl or Alt.
std::optional<Key> KeyOf(const QKeyEvent& event);

/// True for the keys that open and close a drop-down list: F4 and Alt with an arrow.
bool OpensList(const QKeyEvent& event);

}  // namespace ovindra::desktop
