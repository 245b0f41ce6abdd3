#include "core/keypad/keyboard_map.h"

#include "core/commands/app.h"
#include "core/commands/calc_handlers.h"
#include "core/keypad/readout_entry.h"

namespace brenko {

namespace {

constexpr int kBackspace = 8;
constexpr int kEnter = 13;
constexpr int kEscape = 27;
constexpr int kSpace = 32;

int UpperCase(int code) {
  return code >= 'a' && code <= 'z' ? code - 32 : code;
}

}  // namespace

void Form_KeyPress(App& app, int code) {
  if (code >= '0' && code <= '9') {
    Number_Click(app, code - '0');
  } else if (code == kSpace) {
    Spacebar_Click(app);
  } else if (code == kEscape) {
    // Escape on an empty entry clears everything, otherwise just the entry.
    if (app.calculator.Readout().caption == kEmptyEntry) {
      Cancel_Click(app);
    } else {
      CancelEntry_Click(app);
    }
  } else if (code == kEnter || code == '=') {
    Equal_Click(app);
    app.calculator.ActionLabel().caption.clear();
  } else if (code == '\'') {
    Foot_Click(app);
  } else if (code == '"') {
    Inch_Click(app);
  } else if (code == '+') {
    Plus_Click(app);
  } else if (code == '-') {
    Minus_Click(app);
  } else if (code == '*' || UpperCase(code) == 'X') {
    Multiply_Click(app);
  } else if (code == '/') {
    Divide_Click(app);
  } else if (code == '.') {
    Decimal_Click(app);
  } else if (code == kBackspace) {
    RemoveLastPiece(app.calculator.Readout().caption);
  } else if (UpperCase(code) == 'C') {
    Cancel_Click(app);
  }
}

void Form_KeyUp(App&, int& keyCode) {
  if (keyCode == kSpace) keyCode = 0;
}

}  // namespace brenko
