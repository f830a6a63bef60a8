// The desktop application that the window player plays on: one for the whole process, offscreen where there
// is no display.
#pragma once

#include <QApplication>

namespace ovindra::driver {

/// The look of the windows, chosen before the first player is made.
void UseDarkLook(bool dark);

/// Made at the first call, in the program's look.
QApplication& DesktopApplication();

}  // namespace ovindra::driver
