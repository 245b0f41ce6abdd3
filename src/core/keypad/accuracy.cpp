#include "core/keypad/accuracy.h"

#include "core/commands/app.h"

namespace brenko {

namespace {

void CheckAccuracy(App& app, bool thirtySeconds) {
  app.menus.SetChecked("Sixteen", !thirtySeconds);
  app.menus.SetChecked("mnuPopup1Accuracy16", !thirtySeconds);
  app.menus.SetChecked("thirtysecond", thirtySeconds);
  app.menus.SetChecked("mnuPopup1Accuracy32", thirtySeconds);
}

void CheckShowKeys(App& app, bool shown) {
  app.menus.SetChecked("ShowKeys", shown);
  app.menus.SetChecked("mnuPopup1ShowKeys", shown);
}

}  // namespace

// Only results formatted from now on use the new accuracy; what the readout,
// the memories and the tapes already show stays as it is.
void Sixteen_Click(App& app) {
  app.accuracy = 16;
  CheckAccuracy(app, false);
}

void thirtysecond_Click(App& app) {
  app.accuracy = 32;
  CheckAccuracy(app, true);
}

void mnuPopup1Accuracy16_Click(App& app) { Sixteen_Click(app); }
void mnuPopup1Accuracy32_Click(App& app) { thirtysecond_Click(app); }

void ShowKeys_Click(App& app) {
  Rect& window = app.calculator.geometry;
  if (window.width <= kSmallLayoutMaxWidth) {
    if (!app.menus.IsChecked("ShowKeys")) {
      window.height = kHeightSmallWithKeys;
      CheckShowKeys(app, true);
    } else {
      window.height = kHeightSmallReadoutOnly;
      CheckShowKeys(app, false);
    }
    return;
  }
  // In the full-size layout the height decides, not the check mark: a window
  // the user has stretched is first cut down to its readout.
  if (window.height != kHeightLargeReadoutOnly) {
    window.height = kHeightLargeReadoutOnly;
    CheckShowKeys(app, false);
  } else {
    window.height = kHeightLargeWithKeys;
    CheckShowKeys(app, true);
  }
}

void mnuPopup1ShowKeys_Click(App& app) { ShowKeys_Click(app); }

}  // namespace brenko
