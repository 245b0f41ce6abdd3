#include <string>

#include "core/calc/formulas.h"
#include "core/commands/app.h"
#include "core/commands/tape_handlers.h"
#include "core/shell/menu_commands.h"
#include "core/tape/tape_window.h"

namespace brenko {

namespace {

struct CalcMenuCommand {
  const char* name;
  void (*handler)(App&);
};

// The formula entries of the File menu share their handlers with the keys of
// the same names.
constexpr CalcMenuCommand kCommands[] = {
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
};

}  // namespace

bool RunCalcMenuCommand(App& app, const std::string& name, int /*index*/) {
  for (const CalcMenuCommand& c : kCommands) {
    if (name == c.name) {
      c.handler(app);
      return true;
    }
  }
  return false;
}

}  // namespace brenko
