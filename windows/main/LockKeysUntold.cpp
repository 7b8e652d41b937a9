#include "windows/main/LockKeys.h"

namespace trelonit {

LockKeys ReadLockKeys() {
  return {};
}

}  // namespace trelonit
