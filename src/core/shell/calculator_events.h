#pragma once
// Mouse events of the calculator window and its prompt line Label1 that the
// shell answers: the context menu and the double-click shortcut.

#include "core/base/window_model.h"

namespace brenko {

struct App;

// The right button opens the context menu mnuPopup1; other buttons do
// nothing.
void Form_MouseDown(App& app, int button);
void Label1_MouseDown(App& app, int button);
// A double click shows or hides the keypad.
void Form_DblClick(App& app);
void Label1_DblClick(App& app);

}  // namespace brenko
