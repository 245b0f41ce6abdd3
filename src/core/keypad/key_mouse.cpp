#include "core/keypad/key_mouse.h"

#include "core/commands/app.h"

namespace brenko {

void Key_MouseDown(App& app, int button) {
  if (button == kRightButton) app.platform.ShowPopupMenu("mnuPopup1");
}

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
