// The desktop application that the window player plays on: one for the whole process, offscreen where there
// is no display.
#pragma once

#include <QApplication>

#include "tools/driver/player.h"

namespace ovindra::driver {

/// Made at the first call, in that look.
QApplication& DesktopApplication(Look look);

}  // namespace ovindra::driver
