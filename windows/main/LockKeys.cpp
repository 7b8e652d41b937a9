#include "windows/main/LockKeys.h"

#include <QGuiApplication>
#include <QtGlobal>

#if defined(Q_OS_WIN)
#include <windows.h>
#elif defined(TRELONIT_X11)
#include <X11/XKBlib.h>
#endif

namespace trelonit {

#if defined(Q_OS_WIN)

LockKeys ReadLockKeys() {
  const auto on = [](int key) { return (::GetKeyState(key) & 1) != 0; };
  return {on(VK_NUMLOCK), on(VK_CAPITAL), on(VK_SCROLL)};
}

#elif defined(TRELONIT_X11)

LockKeys ReadLockKeys() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  unsigned int lamps = 0;
  if (x11 == nullptr || x11->display() == nullptr ||
      XkbGetIndicatorState(x11->display(), XkbUseCoreKbd, &lamps) != Success) {
    return {};
  }
  // The order of the lamps in the keyboard's usual map.
  return {.Num = (lamps & 2U) != 0, .Caps = (lamps & 1U) != 0, .Scroll = (lamps & 4U) != 0};
}

#else

LockKeys ReadLockKeys() {
  return {};
}

#endif

}  // namespace trelonit
