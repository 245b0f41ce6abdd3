#pragma once
// The calculator's display options: the accuracy linear results are
// rounded to, whether the keypad shows, and the 75% and 100% sizes. The
// menu bar and the context menu mnuPopup1 always carry the same check
// marks.

namespace brenko {

struct App;

// Only results formatted from now on use the new accuracy; what the
// readout, the memories and the tapes already show stays as it is.
void Sixteen_Click(App& app);
void thirtysecond_Click(App& app);
void mnuPopup1Accuracy16_Click(App& app);
void mnuPopup1Accuracy32_Click(App& app);

void ShowKeys_Click(App& app);
void mnuPopup1ShowKeys_Click(App& app);

void ZoomLarge_Click(App& app);
void ZoomSmall_Click(App& app);
void mnuPopup1Zoom100_Click(App& app);
void mnuPopup1Zoom75_Click(App& app);

}  // namespace brenko
