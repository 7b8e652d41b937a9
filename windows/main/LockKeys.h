#pragma once

namespace trelonit {

/// States of the keyboard's locks.
struct LockKeys {
  bool Num = false;
  bool Caps = false;
  bool Scroll = false;
};

/// The present states; all off where the desktop does not tell them.
LockKeys ReadLockKeys();

}  // namespace trelonit
