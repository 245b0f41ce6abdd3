#include "core/commands/control_dispatch.h"

#include "core/commands/app.h"
#include "core/commands/calc_handlers.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/tape_handlers.h"
#include "core/keypad/readout_entry.h"
#include "core/tape/tape_window.h"

namespace brenko {

namespace {

using Handler = void (*)(App&);
using MouseHandler = void (*)(App&, int);

struct ClickEntry {
  const char* name;
  Handler click;
};

constexpr ClickEntry kClicks[] = {
    {"Decimal", Decimal_Click},
    {"Foot", Foot_Click},
    {"Inch", Inch_Click},
    {"Spacebar", Spacebar_Click},
    {"Backspace", Backspace_Click},
    {"Cancel", Cancel_Click},
    {"CancelEntry", CancelEntry_Click},
    {"Pi", Pi_Click},
    {"Plus", Plus_Click},
    {"Minus", Minus_Click},
    {"Multiply", Multiply_Click},
    {"Divide", Divide_Click},
    {"Equal", Equal_Click},
    {"Square", Square_Click},
    {"SquareRoot", SquareRoot_Click},
    {"Circumference", Circumference_Click},
    {"CircArea", CircArea_Click},
    {"CylVolume", CylVolume_Click},
};

struct MouseEntry {
  const char* name;
  MouseHandler mouseDown;
};

constexpr MouseEntry kMouseDowns[] = {
    {"Number", Number_MouseDown},
    {"Decimal", Decimal_MouseDown},
    {"Foot", Foot_MouseDown},
    {"Inch", Inch_MouseDown},
    {"Spacebar", Spacebar_MouseDown},
    {"Backspace", Backspace_MouseDown},
    {"Cancel", Cancel_MouseDown},
    {"CancelEntry", CancelEntry_MouseDown},
    {"Pi", Pi_MouseDown},
    {"Plus", Plus_MouseDown},
    {"Minus", Minus_MouseDown},
    {"Multiply", Multiply_MouseDown},
    {"Divide", Divide_MouseDown},
    {"Equal", Equal_MouseDown},
    {"Square", Square_MouseDown},
    {"SquareRoot", SquareRoot_MouseDown},
    // The formula keys answer the right button as every other key does.
    {"Circumference", Key_MouseDown},
    {"CircArea", Key_MouseDown},
    {"CylVolume", Key_MouseDown},
};

}  // namespace

bool ClickControl(App& app, const std::string& name, int index) {
  if (name == "Number") {
    if (index < 0 || index > 9) return false;
    Number_Click(app, index);
    return true;
  }
  if (name == "cmdScrollTape") {
    cmdScrollTape_Click(app, index);
    return true;
  }
  for (const ClickEntry& e : kClicks) {
    if (name == e.name) {
      e.click(app);
      return true;
    }
  }
  return false;
}

bool ControlMouseDown(App& app, const std::string& name, int index,
                      int button) {
  if (name == "Number" && (index < 0 || index > 9)) return false;
  for (const MouseEntry& e : kMouseDowns) {
    if (name == e.name) {
      e.mouseDown(app, button);
      return true;
    }
  }
  return false;
}

}  // namespace brenko
