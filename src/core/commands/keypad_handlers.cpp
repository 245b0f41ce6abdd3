#include "core/commands/keypad_handlers.h"

#include "core/commands/app.h"
#include "core/commands/calc_handlers.h"
#include "core/commands/shell_handlers.h"
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

std::string& ReadoutText(CalculatorForm& calculator) {
  return calculator.Readout().caption;
}

}  // namespace

void Number_Click(App& app, int index) {
  EnterDigit(app.calculator, app.engine, index);
}

void Decimal_Click(App& app) {
  AddPoint(ReadoutText(app.calculator), app.calculator.readoutMarks);
}
void Foot_Click(App& app) { AddFeetMark(ReadoutText(app.calculator)); }
void Inch_Click(App& app) {
  AddInchMark(ReadoutText(app.calculator), app.calculator.readoutMarks);
}
void Spacebar_Click(App& app) {
  AddSpace(ReadoutText(app.calculator), app.calculator.readoutMarks);
}
void Backspace_Click(App& app) {
  RemoveLastPiece(ReadoutText(app.calculator), app.calculator.readoutMarks);
}

void CancelEntry_Click(App& app) { app.calculator.SetReadout(kEmptyEntry); }

void Cancel_Click(App& app) {
  CancelCalculation(app.engine, app.calculator, app.tapes);
}

void Pi_Click(App& app) {
  if (EnterPi(ReadoutText(app.calculator), app.engine)) {
    app.calculator.readoutMarks.Forget();
    Calculate(CalcPartsOf(app));
  }
}

void Form_KeyPress(App& app, int code) {
  if (code >= '0' && code <= '9') {
    Number_Click(app, code - '0');
  } else if (code == kSpace) {
    Spacebar_Click(app);
  } else if (code == kEscape) {
    // Escape on an empty entry clears everything, otherwise just the entry.
    if (ReadoutText(app.calculator) == kEmptyEntry) {
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
    Backspace_Click(app);
  } else if (UpperCase(code) == 'C') {
    Cancel_Click(app);
  }
}

void Form_KeyUp(App&, int& keyCode) {
  if (keyCode == kSpace) keyCode = 0;
}

// A key takes a right button as the calculator's own background does.
void Key_MouseDown(App& app, int button) { Form_MouseDown(app, button); }

void Number_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Decimal_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Foot_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Inch_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Spacebar_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Backspace_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Cancel_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void CancelEntry_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Pi_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Plus_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Minus_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Multiply_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Divide_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Equal_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void Square_MouseDown(App& app, int button) { Key_MouseDown(app, button); }
void SquareRoot_MouseDown(App& app, int button) { Key_MouseDown(app, button); }

}  // namespace brenko
