#pragma once
// The calculator's two display options: the accuracy linear results are
// rounded to, and whether the keypad is shown or the window is cut down to
// its readout. The menu bar and the context menu mnuPopup1 always carry the
// same check marks.

namespace brenko {

struct App;

// The window heights of the key display, in twips.
inline constexpr float kHeightSmallWithKeys = 2844;
inline constexpr float kHeightSmallReadoutOnly = 1200;
inline constexpr float kHeightLargeWithKeys = 3590;
inline constexpr float kHeightLargeReadoutOnly = 1350;
// A window at most this wide is in the 75% layout.
inline constexpr float kSmallLayoutMaxWidth = 3000;

void Sixteen_Click(App& app);
void thirtysecond_Click(App& app);
void mnuPopup1Accuracy16_Click(App& app);
void mnuPopup1Accuracy32_Click(App& app);
void ShowKeys_Click(App& app);
void mnuPopup1ShowKeys_Click(App& app);

}  // namespace brenko
