#pragma once
// The keypad: one table (keys.cpp) with one row per key, giving its control
// name and index, its caption, its place, and the handlers of its Click and
// of its mouse-down. The calculator window's controls are built from it,
// and every key's click and mouse-down, from the Qt keypad and from the
// scenario runner alike, is routed by it.

#include <span>
#include <string_view>
#include <vector>

#include "core/base/calculator_form.h"
#include "core/commands/handler.h"

namespace brenko {

struct App;

// A key's name and what it does, in words, for those who cannot see its
// caption ("Backspace", not an arrow): what a screen reader says.
struct KeyWords {
  const char* name;
  const char* description;
};

struct KeyRow {
  KeyDesign design;
  Handler click;
  void (*mouseDown)(App& app, int button);
  KeyWords words;
};

std::span<const KeyRow> KeypadKeys();

// The words of the key `name` (with `index` for the digits); both nullptr
// when there is no such key.
KeyWords SpokenKeyWords(std::string_view name, int index);

// The calculator window's designed controls: the three labels and the keys
// of the table.
std::vector<CalcControl> DesignControls();

// Runs the Click handler of the control `name`: a key (with `index` for the
// digit keys "Number"), or the tape window's "cmdScrollTape" button 0 or 1.
// False when there is no such control.
bool ClickControl(App& app, std::string_view name, int index = -1);

// Runs the mouse-down handler of a key with the button code (2 = right);
// false when there is no such key.
bool ControlMouseDown(App& app, std::string_view name, int index, int button);

}  // namespace brenko
