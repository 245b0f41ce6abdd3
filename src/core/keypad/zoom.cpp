#include "core/keypad/zoom.h"

#include "core/keypad/key_display.h"

namespace brenko {

bool ZoomToLarge(CalculatorForm& calc, const std::vector<Rect>& design,
                 bool keysShown) {
  if (calc.geometry.width >= kSmallLayoutMaxWidth) return false;
  // Back to the recorded design values rather than scaling up again, so
  // that going back and forth never drifts.
  for (std::size_t i = 0; i < calc.controls.size() && i < design.size(); ++i) {
    calc.controls[i].label.rect = design[i];
  }
  calc.Readout().rect.left = kLargeReadoutLeft;
  calc.Readout().rect.width = kLargeReadoutWidth;
  calc.Readout().fontSize = kLargeReadoutFont;
  calc.geometry.width = kLargeWindowWidth;
  calc.geometry.height =
      keysShown ? kHeightLargeWithKeys : kHeightLargeReadoutOnly;
  return true;
}

// Scales what the controls have now; the width test keeps it from being
// applied twice.
bool ZoomToSmall(CalculatorForm& calc, bool keysShown) {
  if (calc.geometry.width <= kSmallLayoutMaxWidth) return false;
  for (CalcControl& control : calc.controls) {
    Rect& r = control.label.rect;
    r.top *= kZoomFactor;
    r.left *= kZoomFactor;
    r.width *= kZoomFactor;
    r.height *= kZoomFactor;
  }
  calc.Readout().rect.left = kSmallReadoutLeft;
  calc.Readout().rect.width = kSmallReadoutWidth;
  calc.Readout().fontSize = kSmallReadoutFont;
  calc.geometry.width = kSmallWindowWidth;
  calc.geometry.height =
      keysShown ? kHeightSmallWithKeys : kHeightSmallReadoutOnly;
  return true;
}

void PlaceTapeOverCalculator(Rect& tape, const Rect& calc) {
  tape.left = calc.left + kTapeInset;
  tape.width = calc.width - 2 * kTapeInset;
  tape.top = calc.top - tape.height + kTapeOverlap;
}

}  // namespace brenko
