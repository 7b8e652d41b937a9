#pragma once

#include <QKeyEvent>
#include <cstdint>

#include "platform/values/Integers.h"

namespace trelonit {

// Keys as the editing rules know them: by the code that Windows gives a key, on every platform.

/// What is known of a pressed key.
struct PressedKey {
  int Key = 0;  ///< Qt::Key
  bool Keypad = false;
  /// Where the key lies: the number by X11 and Wayland; 0 if the platform tells none.
  std::uint32_t ScanCode = 0;
};

/// The code, or 0 for a key without one. A letter key has the code of its Latin letter, whatever
/// layout is on; the keys of punctuation have theirs by where they lie.
Integer KeyCodeOf(const PressedKey& pressed);
Integer KeyCodeOf(const QKeyEvent& event);

/// 1 Shift, 2 Ctrl, 4 Alt, added together. Ctrl and Alt together with a text is the third level of
/// a layout (AltGr on Windows) and counts as neither.
Integer ShiftStateOf(const QKeyEvent& event);

}  // namespace trelonit
