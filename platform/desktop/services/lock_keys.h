// Which lock keys are on. Read from the X server or from Windows; where neither is there (Wayland, no
// display) the answer is off for both, since the desktop does not tell.
#pragma once

namespace ovindra::desktop {

struct LockKeys {
  bool caps = false;
  bool num = false;
};

LockKeys ReadLockKeys();

}  // namespace ovindra::desktop
