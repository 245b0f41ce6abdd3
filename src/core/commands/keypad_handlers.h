#pragma once
// The entry keys of the keypad, the keyboard, and the mouse-down of every
// key: the right button on any key opens the calculator's context menu;
// other buttons leave the work to the key's Click.

namespace brenko {

struct App;

void Number_Click(App& app, int index);
void Decimal_Click(App& app);
void Foot_Click(App& app);
void Inch_Click(App& app);
void Spacebar_Click(App& app);
void Backspace_Click(App& app);
void CancelEntry_Click(App& app);
void Cancel_Click(App& app);
void Pi_Click(App& app);

// One typed character (its code); a character no key shows is ignored.
// Every character reaches the handler of the key that shows it, whichever
// control has the focus.
void Form_KeyPress(App& app, int code);
// Swallows the key-up of the space bar (the code becomes 0), so that a
// focused button is not pressed by it as well.
void Form_KeyUp(App& app, int& keyCode);

// Mouse-down on a calculator key with the given button code (2 = right).
void Key_MouseDown(App& app, int button);
void Number_MouseDown(App& app, int button);
void Decimal_MouseDown(App& app, int button);
void Foot_MouseDown(App& app, int button);
void Inch_MouseDown(App& app, int button);
void Spacebar_MouseDown(App& app, int button);
void Backspace_MouseDown(App& app, int button);
void Cancel_MouseDown(App& app, int button);
void CancelEntry_MouseDown(App& app, int button);
void Pi_MouseDown(App& app, int button);
void Plus_MouseDown(App& app, int button);
void Minus_MouseDown(App& app, int button);
void Multiply_MouseDown(App& app, int button);
void Divide_MouseDown(App& app, int button);
void Equal_MouseDown(App& app, int button);
void Square_MouseDown(App& app, int button);
void SquareRoot_MouseDown(App& app, int button);

}  // namespace brenko
