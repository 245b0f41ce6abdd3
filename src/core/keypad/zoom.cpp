#include "core/keypad/zoom.h"

#include "core/commands/app.h"
#include "core/commands/tape_handlers.h"
#include "core/keypad/accuracy.h"

namespace brenko {

namespace {

void CheckZoom(App& app, bool small) {
  app.menus.SetChecked("ZoomSmall", small);
  app.menus.SetChecked("mnuPopup1Zoom75", small);
  app.menus.SetChecked("ZoomLarge", !small);
  app.menus.SetChecked("mnuPopup1Zoom100", !small);
}

// A shown tape window follows the calculator's new width, so that it keeps
// sitting on top of it, centred.
void KeepTapeBesideCalculator(App& app) {
  if (!app.tapeWindow.visible) return;
  const Rect& calc = app.calculator.geometry;
  Rect& tape = app.tapeWindow.geometry;
  tape.left = calc.left + kTapeInset;
  tape.width = calc.width - 2 * kTapeInset;
  tape.top = calc.top - tape.height + kTapeOverlap;
  // The new width is a resize like one made by the user: the title, the grid
  // and the scroll buttons are fitted to it.
  frmTape_Form_Resize(app);
}

}  // namespace

// The two tests are not mirror images on purpose: 100% acts below 3000
// twips, 75% above, so a window of exactly 3000 is left alone by both.
void ZoomLarge_Click(App& app) {
  CalculatorForm& calc = app.calculator;
  if (calc.geometry.width >= kSmallLayoutMaxWidth) return;
  // Back to the recorded design values rather than scaling up again, so
  // that going back and forth never drifts.
  const std::vector<Rect>& design = app.shell.designGeometry;
  for (std::size_t i = 0; i < calc.controls.size() && i < design.size(); ++i) {
    calc.controls[i].label.rect = design[i];
  }
  calc.Readout().rect.left = kLargeReadoutLeft;
  calc.Readout().rect.width = kLargeReadoutWidth;
  app.menus.SetCaption("Memory", "&Memory");
  CheckZoom(app, false);
  calc.Readout().fontSize = kLargeReadoutFont;
  calc.geometry.width = kLargeWindowWidth;
  calc.geometry.height = app.menus.IsChecked("ShowKeys")
                             ? kHeightLargeWithKeys
                             : kHeightLargeReadoutOnly;
  KeepTapeBesideCalculator(app);
}

// Scales what the controls have now; the width test keeps it from being
// applied twice.
void ZoomSmall_Click(App& app) {
  CalculatorForm& calc = app.calculator;
  if (calc.geometry.width <= kSmallLayoutMaxWidth) return;
  for (CalcControl& control : calc.controls) {
    Rect& r = control.label.rect;
    r.top *= kZoomFactor;
    r.left *= kZoomFactor;
    r.width *= kZoomFactor;
    r.height *= kZoomFactor;
  }
  calc.Readout().rect.left = kSmallReadoutLeft;
  calc.Readout().rect.width = kSmallReadoutWidth;
  CheckZoom(app, true);
  calc.Readout().fontSize = kSmallReadoutFont;
  calc.geometry.width = kSmallWindowWidth;
  calc.geometry.height = app.menus.IsChecked("ShowKeys")
                             ? kHeightSmallWithKeys
                             : kHeightSmallReadoutOnly;
  KeepTapeBesideCalculator(app);
}

void mnuPopup1Zoom100_Click(App& app) { ZoomLarge_Click(app); }
void mnuPopup1Zoom75_Click(App& app) { ZoomSmall_Click(app); }

}  // namespace brenko
