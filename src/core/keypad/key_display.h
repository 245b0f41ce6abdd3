#pragma once
// Whether the keypad is shown or the calculator window is cut down to its
// readout. (The other display option, the accuracy linear results are
// rounded to, is a number and two pairs of check marks.)

#include "core/base/window_model.h"

namespace brenko {

// The window heights of the key display, in twips.
inline constexpr float kHeightSmallWithKeys = 2844;
inline constexpr float kHeightSmallReadoutOnly = 1200;
inline constexpr float kHeightLargeWithKeys = 3590;
inline constexpr float kHeightLargeReadoutOnly = 1350;
// A window at most this wide is in the 75% layout.
inline constexpr float kSmallLayoutMaxWidth = 3000;

// Shows or hides the keys by the calculator window's height; `keysShown` is
// the present check mark. Returns whether the keys show afterwards. In the
// full-size layout the height decides, not the check mark: a window the
// user has stretched is first cut down to its readout.
bool ToggleKeys(Rect& window, bool keysShown);

}  // namespace brenko
