#include "core/keypad/key_display.h"

namespace brenko {

bool ToggleKeys(Rect& window, bool keysShown) {
  if (window.width <= kSmallLayoutMaxWidth) {
    window.height = keysShown ? kHeightSmallReadoutOnly : kHeightSmallWithKeys;
    return !keysShown;
  }
  if (window.height != kHeightLargeReadoutOnly) {
    window.height = kHeightLargeReadoutOnly;
    return false;
  }
  window.height = kHeightLargeWithKeys;
  return true;
}

}  // namespace brenko
