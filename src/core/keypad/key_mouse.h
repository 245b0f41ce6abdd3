#pragma once
// The right mouse button on any key of the keypad opens the calculator's
// context menu; other buttons leave the work to the key's Click.

namespace brenko {

struct App;

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
