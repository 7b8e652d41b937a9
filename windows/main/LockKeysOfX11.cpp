#include <QGuiApplication>
#include <X11/XKBlib.h>

#include "windows/main/LockKeys.h"

namespace trelonit {

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

}  // namespace trelonit
