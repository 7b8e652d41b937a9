#include <windows.h>

#include "windows/main/LockKeys.h"

namespace trelonit {

LockKeys ReadLockKeys() {
  const auto on = [](int key) { return (::GetKeyState(key) & 1) != 0; };
  return {on(VK_NUMLOCK), on(VK_CAPITAL), on(VK_SCROLL)};
}

}  // namespace trelonit
