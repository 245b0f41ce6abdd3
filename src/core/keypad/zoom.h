#pragma once
// The two sizes of the calculator window: the designed layout (100%) and a
// reduced one (75%). Which one is in force is read back from the window's
// width, at most 3000 twips meaning 75%.

namespace brenko {

struct App;

// The fixed values of the two layouts, in twips and points.
inline constexpr float kZoomFactor = 0.75f;
inline constexpr float kLargeReadoutLeft = 185;
inline constexpr float kLargeReadoutWidth = 3180;
inline constexpr float kSmallReadoutLeft = 139;
inline constexpr float kSmallReadoutWidth = 2385;
inline constexpr float kLargeReadoutFont = 13.5f;
inline constexpr float kSmallReadoutFont = 9.75f;
inline constexpr float kLargeWindowWidth = 3615;
inline constexpr float kSmallWindowWidth = 2745;

// Where the tape window sits relative to the calculator: inset by this much
// at each side and overlapping its top edge.
inline constexpr float kTapeInset = 240;
inline constexpr float kTapeOverlap = 60;

void ZoomLarge_Click(App& app);
void ZoomSmall_Click(App& app);
void mnuPopup1Zoom100_Click(App& app);
void mnuPopup1Zoom75_Click(App& app);

}  // namespace brenko
