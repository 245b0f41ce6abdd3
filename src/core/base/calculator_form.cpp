#include "core/base/calculator_form.h"

namespace brenko {

namespace {

struct KeySpec {
  const char* name;
  int index;
  const char* caption;
  int row;
  int column;
};

// One table for the whole keypad: seven columns, four rows. The Qt layer
// builds its buttons from this table and sends every click through one
// handler, so a key is added or moved here and nowhere else.
constexpr KeySpec kKeys[] = {
    {"Number", 7, "7", 0, 0},
    {"Number", 8, "8", 0, 1},
    {"Number", 9, "9", 0, 2},
    {"Divide", -1, "\xC3\xB7", 0, 3},
    {"Cancel", -1, "C", 0, 4},
    {"CancelEntry", -1, "CE", 0, 5},
    {"Backspace", -1, "\xE2\x86\x90", 0, 6},
    {"Number", 4, "4", 1, 0},
    {"Number", 5, "5", 1, 1},
    {"Number", 6, "6", 1, 2},
    {"Multiply", -1, "\xC3\x97", 1, 3},
    {"Foot", -1, "'", 1, 4},
    {"Inch", -1, "\"", 1, 5},
    {"Square", -1, "x\xC2\xB2", 1, 6},
    {"Number", 1, "1", 2, 0},
    {"Number", 2, "2", 2, 1},
    {"Number", 3, "3", 2, 2},
    {"Minus", -1, "\xE2\x88\x92", 2, 3},
    {"Spacebar", -1, "\xE2\x90\xA3", 2, 4},
    {"Pi", -1, "\xCF\x80", 2, 5},
    {"SquareRoot", -1, "\xE2\x88\x9A", 2, 6},
    {"Number", 0, "0", 3, 0},
    {"Decimal", -1, ".", 3, 1},
    {"Equal", -1, "=", 3, 2},
    {"Plus", -1, "+", 3, 3},
    {"Circumference", -1, "Circ", 3, 4},
    {"CircArea", -1, "Area", 3, 5},
    {"CylVolume", -1, "Cyl", 3, 6},
};

constexpr float kKeyLeft = 185;
constexpr float kKeyPitchX = 462;
constexpr float kKeyWidth = 410;
constexpr float kKeyTop = 900;
constexpr float kKeyPitchY = 480;
constexpr float kKeyHeight = 420;

}  // namespace

std::vector<CalcControl> DesignControls() {
  std::vector<CalcControl> controls;
  CalcControl readout{"Readout", -1, {}, false};
  readout.label.caption = "0.";
  readout.label.backColor = kPaleYellow;
  readout.label.rect = {185, 120, 3180, 450};
  readout.label.fontSize = 13.5f;
  controls.push_back(readout);

  CalcControl action{"ActionLabel", -1, {}, false};
  action.label.backColor = kTeal;
  action.label.rect = {185, 600, 450, 270};
  controls.push_back(action);

  CalcControl prompt{"Label1", -1, {}, false};
  prompt.label.backColor = kTeal;
  prompt.label.rect = {700, 600, 2665, 270};
  controls.push_back(prompt);

  for (const KeySpec& k : kKeys) {
    CalcControl key{k.name, k.index, {}, true};
    key.label.caption = k.caption;
    key.label.rect = {kKeyLeft + kKeyPitchX * static_cast<float>(k.column),
                      kKeyTop + kKeyPitchY * static_cast<float>(k.row),
                      kKeyWidth, kKeyHeight};
    controls.push_back(key);
  }
  return controls;
}

CalculatorForm::CalculatorForm() : controls(DesignControls()) {}

CalcControl* CalculatorForm::Find(const std::string& name, int index) {
  for (CalcControl& c : controls) {
    if (c.name == name && c.index == index) return &c;
  }
  return nullptr;
}

const CalcControl* CalculatorForm::Find(const std::string& name,
                                        int index) const {
  for (const CalcControl& c : controls) {
    if (c.name == name && c.index == index) return &c;
  }
  return nullptr;
}

}  // namespace brenko
