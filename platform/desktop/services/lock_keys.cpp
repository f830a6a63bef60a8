#include "platform/desktop/services/lock_keys.h"

#include <QGuiApplication>

#if defined(Q_OS_WIN)
#include <windows.h>
#elif defined(OVINDRA_HAS_X11)
// Last, since its headers define common words as macros.
#include <X11/XKBlib.h>
#endif

namespace ovindra::desktop {

#if defined(Q_OS_WIN)

LockKeys ReadLockKeys() {
  return {(GetKeyState(VK_CAPITAL) & 1) != 0, (GetKeyState(VK_NUMLOCK) & 1) != 0};
}

#elif defined(OVINDRA_HAS_X11)

LockKeys ReadLockKeys() {
  constexpr unsigned kCapsLamp = 1;
  constexpr unsigned kNumLamp = 2;
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  unsigned lamps = 0;
  if (x11 == nullptr || x11->display() == nullptr) return {};
  if (XkbGetIndicatorState(x11->display(), XkbUseCoreKbd, &lamps) != Success) return {};
  return {(lamps & kCapsLamp) != 0, (lamps & kNumLamp) != 0};
}

#else

LockKeys ReadLockKeys() {
  return {};
}

#endif

}  // namespace ovindra::desktop
