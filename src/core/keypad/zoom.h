#pragma once
// The two sizes of the calculator window: the designed layout (100%) and a
// reduced one (75%). Which one is in force is read back from the window's
// width, at most 3000 twips meaning 75%.

#include <vector>

#include "core/base/calculator_form.h"
#include "core/base/window_model.h"

namespace brenko {

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

// The two layouts. Each returns false and changes nothing when the window
// is already in its size range: 100% acts below 3000 twips, 75% above, so a
// window of exactly 3000 is left alone by both. `design` is the keypad's
// geometry as recorded at start-up; `keysShown` picks the window's height.
bool ZoomToLarge(CalculatorForm& calculator, const std::vector<Rect>& design,
                 bool keysShown);
bool ZoomToSmall(CalculatorForm& calculator, bool keysShown);

// A shown tape window follows the calculator's new width, so that it keeps
// sitting on top of it, centred.
void PlaceTapeOverCalculator(Rect& tape, const Rect& calculator);

}  // namespace brenko
