#include <map>

#include "core/commands/app.h"
#include "core/commands/calc_handlers.h"
#include "core/commands/display_handlers.h"
#include "core/commands/menu_commands.h"
#include "core/commands/shell_handlers.h"
#include "core/commands/startup.h"
#include "core/commands/tape_handlers.h"
#include "core/keypad/key_display.h"
#include "core/keypad/zoom.h"
#include "core/shell/about.h"
#include "core/shell/colors.h"
#include "core/tape/print_tape.h"

namespace brenko {

namespace {

using Handler = void (*)(App&);

// The menu entries whose actions the shell answers for, by entry name.
const std::map<std::string, Handler>& ShellHandlers() {
  static const std::map<std::string, Handler> handlers = {
      {"Circumference", Circumference_Click},
      {"CircArea", CircArea_Click},
      {"CylVolume", CylVolume_Click},
      {"mnuDiagonal", mnuDiagonal_Click},
      {"mnuPopUp1Circumference", mnuPopUp1Circumference_Click},
      {"mnuPopUp1AreaofCircle", mnuPopUp1AreaofCircle_Click},
      {"mnuPopUp1VolumeofCylinder", mnuPopUp1VolumeofCylinder_Click},
      {"mnuPopUp1Diagonal", mnuPopUp1Diagonal_Click},
      {"mnuTape", mnuTape_Click},
      {"mnuPopup1ShowTape", mnuPopup1ShowTape_Click},
      {"Exit", Exit_Click},
      {"mnuPrint", mnuPrint_Click},
      {"mnuPrintAll", mnuPrintAll_Click},
      {"mnuPopup2PrintTape", mnuPopup2PrintTape_Click},
      {"mnuPopup2PrintAllTapes", mnuPopup2PrintAllTapes_Click},
      {"Sixteen", Sixteen_Click},
      {"thirtysecond", thirtysecond_Click},
      {"mnuPopup1Accuracy16", mnuPopup1Accuracy16_Click},
      {"mnuPopup1Accuracy32", mnuPopup1Accuracy32_Click},
      {"ShowKeys", ShowKeys_Click},
      {"mnuPopup1ShowKeys", mnuPopup1ShowKeys_Click},
      {"ZoomSmall", ZoomSmall_Click},
      {"ZoomLarge", ZoomLarge_Click},
      {"mnuPopup1Zoom75", mnuPopup1Zoom75_Click},
      {"mnuPopup1Zoom100", mnuPopup1Zoom100_Click},
      {"mnuHelpContents", mnuHelpContents_Click},
      {"mnuAbout", mnuAbout_Click},
      // Choosing Cancel only closes the context menu.
      {"mnuPopup1Cancel", [](App&) {}},
  };
  return handlers;
}

}  // namespace

bool RunShellMenuCommand(App& app, const std::string& name, int index) {
  if (name == "mnuColor") {
    if (index < 0 || index > 6) return false;
    mnuColor_Click(app, index);
    return true;
  }
  const auto& handlers = ShellHandlers();
  const auto it = handlers.find(name);
  if (it == handlers.end()) return false;
  it->second(app);
  return true;
}

}  // namespace brenko
