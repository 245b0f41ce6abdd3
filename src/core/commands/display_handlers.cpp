#include "core/commands/display_handlers.h"

#include "core/commands/app.h"
#include "core/commands/tape_handlers.h"
#include "core/keypad/key_display.h"
#include "core/keypad/zoom.h"

namespace brenko {

namespace {

void CheckAccuracy(MenuModel& menus, bool thirtySeconds) {
  menus.SetChecked(MenuId::Sixteen, !thirtySeconds);
  menus.SetChecked(MenuId::mnuPopup1Accuracy16, !thirtySeconds);
  menus.SetChecked(MenuId::thirtysecond, thirtySeconds);
  menus.SetChecked(MenuId::mnuPopup1Accuracy32, thirtySeconds);
}

void CheckShowKeys(MenuModel& menus, bool shown) {
  menus.SetChecked(MenuId::ShowKeys, shown);
  menus.SetChecked(MenuId::mnuPopup1ShowKeys, shown);
}

void CheckZoom(MenuModel& menus, bool small) {
  menus.SetChecked(MenuId::ZoomSmall, small);
  menus.SetChecked(MenuId::mnuPopup1Zoom75, small);
  menus.SetChecked(MenuId::ZoomLarge, !small);
  menus.SetChecked(MenuId::mnuPopup1Zoom100, !small);
}

// A shown tape window follows the calculator's new width; the new width is
// a resize like one made by the user, so the title, the grid and the scroll
// buttons are fitted to it.
void KeepTapeOverCalculator(App& app) {
  if (!app.tapeWindow.visible) return;
  PlaceTapeOverCalculator(app.tapeWindow.geometry, app.calculator.geometry);
  frmTape_Form_Resize(app);
}

}  // namespace

void Sixteen_Click(App& app) {
  app.accuracy = 16;
  CheckAccuracy(app.menus, false);
}

void thirtysecond_Click(App& app) {
  app.accuracy = 32;
  CheckAccuracy(app.menus, true);
}

void mnuPopup1Accuracy16_Click(App& app) { Sixteen_Click(app); }
void mnuPopup1Accuracy32_Click(App& app) { thirtysecond_Click(app); }

void ShowKeys_Click(App& app) {
  CheckShowKeys(app.menus, ToggleKeys(app.calculator.geometry,
                                      app.menus.IsChecked(MenuId::ShowKeys)));
}

void mnuPopup1ShowKeys_Click(App& app) { ShowKeys_Click(app); }

void ZoomLarge_Click(App& app) {
  if (!ZoomToLarge(app.calculator, app.shell.designGeometry,
                   app.menus.IsChecked(MenuId::ShowKeys))) {
    return;
  }
  app.menus.SetCaption(MenuId::Memory, "&Memory");
  CheckZoom(app.menus, false);
  KeepTapeOverCalculator(app);
}

void ZoomSmall_Click(App& app) {
  if (!ZoomToSmall(app.calculator, app.menus.IsChecked(MenuId::ShowKeys)))
    return;
  CheckZoom(app.menus, true);
  KeepTapeOverCalculator(app);
}

void mnuPopup1Zoom100_Click(App& app) { ZoomLarge_Click(app); }
void mnuPopup1Zoom75_Click(App& app) { ZoomSmall_Click(app); }

}  // namespace brenko
