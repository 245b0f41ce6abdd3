#pragma once
// The calculator's controls by name: the Qt keypad sends every key's click
// and mouse-down here, as the scenario runner does, so a key is found by the
// same name in the keypad table, the window and the scenarios.

#include <string>

namespace brenko {

struct App;

// Runs the Click handler of the control `name` (with `index` for the digit
// keys "Number" and the tape window's "cmdScrollTape"); false when there is
// no such control.
bool ClickControl(App& app, const std::string& name, int index = -1);

// Runs the mouse-down handler of a key with the button code (2 = right);
// false when the control has none.
bool ControlMouseDown(App& app, const std::string& name, int index, int button);

}  // namespace brenko
