#include "core/commands/tape_handlers.h"

#include "core/commands/app.h"
#include "core/tape/print_tape.h"
#include "core/tape/tape_window.h"

namespace brenko {

namespace {

// The calculator must stay above its tape.
void KeepTapeUnderCalculator(Platform& platform) {
  platform.SetTopmost({WindowKind::kTape, 0}, true);
  platform.SetTopmost({WindowKind::kCalculator, 0}, true);
}

void CheckTape(MenuModel& menus, bool shown) {
  menus.SetChecked(MenuId::mnuTape, shown);
  menus.SetChecked(MenuId::mnuPopup1ShowTape, shown);
}

}  // namespace

void frmTape_Form_Load(App& app) {
  LoadTapeWindowModel(app.tapeWindow, app.tapes, app.calculator.geometry);
  app.calculator.focus = "Equal";
}

void frmTape_Form_Resize(App& app) {
  TapeWindowForm& window = app.tapeWindow;
  if (app.calculator.state == WindowState::kMinimized) {
    window.resizeGuard = false;
    return;
  }
  if (window.resizeGuard) {
    window.resizeGuard = false;
    return;
  }
  window.resizeGuard = true;
  FitTapeWindow(window, app.tapes);
  KeepTapeUnderCalculator(app.platform);
  window.resizeGuard = false;
}

void Grid1_KeyDown(App& app, int keyCode) {
  if (keyCode == kTapeKeyLeft) MoveToTape(app.tapes, app.tapeWindow, false);
  if (keyCode == kTapeKeyRight) MoveToTape(app.tapes, app.tapeWindow, true);
}

void cmdScrollTape_Click(App& app, int index) {
  Grid1_KeyDown(app, index == 0 ? kTapeKeyLeft : kTapeKeyRight);
}

void mnuTape_Click(App& app) {
  if (app.menus.IsChecked(MenuId::mnuTape)) {
    app.tapeWindow.resizeGuard = true;
    app.tapeWindow.visible = false;
    CheckTape(app.menus, false);
    // The resize that hiding the window delivers.
    frmTape_Form_Resize(app);
    return;
  }
  app.tapeWindow.visible = true;
  CheckTape(app.menus, true);
  KeepTapeUnderCalculator(app.platform);
}

void mnuPopup1ShowTape_Click(App& app) { mnuTape_Click(app); }

namespace {

// Asks the platform where the command's documents go; false when nothing
// is to be printed. No printer at all is said, not passed over.
bool StartPrintJob(App& app) {
  switch (app.platform.BeginPrintJob()) {
    case PrintJob::kPrint:
      return true;
    case PrintJob::kNoPrinter:
      app.platform.MessageBox(kNoPrinterMessage, "Error", MsgButtons::kOk,
                              MsgIcon::kExclamation);
      return false;
    case PrintJob::kCancelled:
      return false;
  }
  return false;
}

}  // namespace

void mnuPrint_Click(App& app) {
  if (!StartPrintJob(app)) return;
  PrintTape(app.tapes, app.platform, app.tapes.col);
  app.platform.EndPrintJob();
}

void mnuPrintAll_Click(App& app) {
  if (!StartPrintJob(app)) return;
  PrintAllTapes(app.tapes, app.platform, app.memory.nextNumber);
  app.platform.EndPrintJob();
}

void mnuPopup2PrintTape_Click(App& app) { mnuPrint_Click(app); }
void mnuPopup2PrintAllTapes_Click(App& app) { mnuPrintAll_Click(app); }

}  // namespace brenko
