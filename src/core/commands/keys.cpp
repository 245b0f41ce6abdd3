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
    {{"Number", 7, "7", 0, 0}, Number_Click, Number_MouseDown},
    {{"Number", 8, "8", 0, 1}, Number_Click, Number_MouseDown},
    {{"Number", 9, "9", 0, 2}, Number_Click, Number_MouseDown},
    {{"Divide", -1, "\xC3\xB7", 0, 3}, Divide_Click, Divide_MouseDown},
    {{"Cancel", -1, "C", 0, 4}, Cancel_Click, Cancel_MouseDown},
    {{"CancelEntry", -1, "CE", 0, 5}, CancelEntry_Click, CancelEntry_MouseDown},
    {{"Backspace", -1, "\xE2\x86\x90", 0, 6},
     Backspace_Click,
     Backspace_MouseDown},
    {{"Number", 4, "4", 1, 0}, Number_Click, Number_MouseDown},
    {{"Number", 5, "5", 1, 1}, Number_Click, Number_MouseDown},
    {{"Number", 6, "6", 1, 2}, Number_Click, Number_MouseDown},
    {{"Multiply", -1, "\xC3\x97", 1, 3}, Multiply_Click, Multiply_MouseDown},
    {{"Foot", -1, "'", 1, 4}, Foot_Click, Foot_MouseDown},
    {{"Inch", -1, "\"", 1, 5}, Inch_Click, Inch_MouseDown},
    {{"Square", -1, "x\xC2\xB2", 1, 6}, Square_Click, Square_MouseDown},
    {{"Number", 1, "1", 2, 0}, Number_Click, Number_MouseDown},
    {{"Number", 2, "2", 2, 1}, Number_Click, Number_MouseDown},
    {{"Number", 3, "3", 2, 2}, Number_Click, Number_MouseDown},
    {{"Minus", -1, "\xE2\x88\x92", 2, 3}, Minus_Click, Minus_MouseDown},
    {{"Spacebar", -1, "\xE2\x90\xA3", 2, 4},
     Spacebar_Click,
     Spacebar_MouseDown},
    {{"Pi", -1, "\xCF\x80", 2, 5}, Pi_Click, Pi_MouseDown},
    {{"SquareRoot", -1, "\xE2\x88\x9A", 2, 6},
     SquareRoot_Click,
     SquareRoot_MouseDown},
    {{"Number", 0, "0", 3, 0}, Number_Click, Number_MouseDown},
    {{"Decimal", -1, ".", 3, 1}, Decimal_Click, Decimal_MouseDown},
    {{"Equal", -1, "=", 3, 2}, Equal_Click, Equal_MouseDown},
    {{"Plus", -1, "+", 3, 3}, Plus_Click, Plus_MouseDown},
    {{"Circumference", -1, "Circ", 3, 4}, Circumference_Click, Key_MouseDown},
    {{"CircArea", -1, "Area", 3, 5}, CircArea_Click, Key_MouseDown},
    {{"CylVolume", -1, "Cyl", 3, 6}, CylVolume_Click, Key_MouseDown},
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
