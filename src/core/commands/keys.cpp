#include "core/commands/keys.h"

#include <iterator>

#include "core/commands/calc_handlers.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/tape_handlers.h"

namespace brenko {

namespace {

// The whole keypad: seven columns, four rows. A key is added or moved here
// and nowhere else. The formula keys have no mouse-down of their own: they
// answer the right button as every other key does.
constexpr KeyRow kKeys[] = {
    {{"Number", 7, "7", 0, 0},
     Number_Click,
     Number_MouseDown,
     {"7", "Enters the digit seven"}},
    {{"Number", 8, "8", 0, 1},
     Number_Click,
     Number_MouseDown,
     {"8", "Enters the digit eight"}},
    {{"Number", 9, "9", 0, 2},
     Number_Click,
     Number_MouseDown,
     {"9", "Enters the digit nine"}},
    {{"Divide", -1, "\xC3\xB7", 0, 3},
     Divide_Click,
     Divide_MouseDown,
     {"Divide", "Divides by the next entry, or enters a fraction"}},
    {{"Cancel", -1, "C", 0, 4},
     Cancel_Click,
     Cancel_MouseDown,
     {"Clear", "Clears the calculation and the tape"}},
    {{"CancelEntry", -1, "CE", 0, 5},
     CancelEntry_Click,
     CancelEntry_MouseDown,
     {"Clear Entry", "Clears the entry"}},
    {{"Backspace", -1, "\xE2\x86\x90", 0, 6},
     Backspace_Click,
     Backspace_MouseDown,
     {"Backspace", "Removes the last character of the entry"}},
    {{"Number", 4, "4", 1, 0},
     Number_Click,
     Number_MouseDown,
     {"4", "Enters the digit four"}},
    {{"Number", 5, "5", 1, 1},
     Number_Click,
     Number_MouseDown,
     {"5", "Enters the digit five"}},
    {{"Number", 6, "6", 1, 2},
     Number_Click,
     Number_MouseDown,
     {"6", "Enters the digit six"}},
    {{"Multiply", -1, "\xC3\x97", 1, 3},
     Multiply_Click,
     Multiply_MouseDown,
     {"Multiply", "Multiplies by the next entry"}},
    {{"Foot", -1, "'", 1, 4},
     Foot_Click,
     Foot_MouseDown,
     {"Feet", "Enters the feet mark"}},
    {{"Inch", -1, "\"", 1, 5},
     Inch_Click,
     Inch_MouseDown,
     {"Inch", "Enters the inch mark"}},
    {{"Square", -1, "x\xC2\xB2", 1, 6},
     Square_Click,
     Square_MouseDown,
     {"Square", "Squares the entry"}},
    {{"Number", 1, "1", 2, 0},
     Number_Click,
     Number_MouseDown,
     {"1", "Enters the digit one"}},
    {{"Number", 2, "2", 2, 1},
     Number_Click,
     Number_MouseDown,
     {"2", "Enters the digit two"}},
    {{"Number", 3, "3", 2, 2},
     Number_Click,
     Number_MouseDown,
     {"3", "Enters the digit three"}},
    {{"Minus", -1, "\xE2\x88\x92", 2, 3},
     Minus_Click,
     Minus_MouseDown,
     {"Minus", "Subtracts the next entry"}},
    {{"Spacebar", -1, "\xE2\x90\xA3", 2, 4},
     Spacebar_Click,
     Spacebar_MouseDown,
     {"Space", "Separates the inches from the fraction"}},
    {{"Pi", -1, "\xCF\x80", 2, 5}, Pi_Click, Pi_MouseDown, {"Pi", "Enters pi"}},
    {{"SquareRoot", -1, "\xE2\x88\x9A", 2, 6},
     SquareRoot_Click,
     SquareRoot_MouseDown,
     {"Square Root", "Takes the square root of the entry"}},
    {{"Number", 0, "0", 3, 0},
     Number_Click,
     Number_MouseDown,
     {"0", "Enters the digit zero"}},
    {{"Decimal", -1, ".", 3, 1},
     Decimal_Click,
     Decimal_MouseDown,
     {"Decimal Point", "Enters the decimal point"}},
    {{"Equal", -1, "=", 3, 2},
     Equal_Click,
     Equal_MouseDown,
     {"Equals", "Completes the calculation"}},
    {{"Plus", -1, "+", 3, 3},
     Plus_Click,
     Plus_MouseDown,
     {"Plus", "Adds the next entry"}},
    {{"Circumference", -1, "Circ", 3, 4},
     Circumference_Click,
     Key_MouseDown,
     {"Circumference", "Asks for a diameter and gives the circumference"}},
    {{"CircArea", -1, "Area", 3, 5},
     CircArea_Click,
     Key_MouseDown,
     {"Area of Circle", "Asks for a diameter and gives the circle's area"}},
    {{"CylVolume", -1, "Cyl", 3, 6},
     CylVolume_Click,
     Key_MouseDown,
     {"Volume of Cylinder",
      "Asks for a diameter and a height and gives the volume"}},
};

// The row of a key. A member of a control array (the digits) is found by
// its name and index; any other key by its name alone, whatever index is
// given.
const KeyRow* FindKey(std::string_view name, int index) {
  for (const KeyRow& k : kKeys) {
    if (k.design.name != name) continue;
    if (k.design.index < 0 || k.design.index == index) return &k;
  }
  return nullptr;
}

}  // namespace

std::span<const KeyRow> KeypadKeys() { return kKeys; }

KeyWords SpokenKeyWords(std::string_view name, int index) {
  const KeyRow* key = FindKey(name, index);
  return key != nullptr ? key->words : KeyWords{nullptr, nullptr};
}

std::vector<CalcControl> DesignControls() {
  std::vector<KeyDesign> designs;
  designs.reserve(std::size(kKeys));
  for (const KeyRow& k : kKeys) designs.push_back(k.design);
  return DesignControls(designs);
}

bool ClickControl(App& app, std::string_view name, int index) {
  // The tape window's two buttons that step between tapes.
  if (name == "cmdScrollTape") {
    cmdScrollTape_Click(app, index);
    return true;
  }
  const KeyRow* key = FindKey(name, index);
  if (key == nullptr) return false;
  key->click(app, index);
  return true;
}

bool ControlMouseDown(App& app, std::string_view name, int index, int button) {
  const KeyRow* key = FindKey(name, index);
  if (key == nullptr) return false;
  key->mouseDown(app, button);
  return true;
}

}  // namespace brenko
