#pragma once
// Typing on the calculator: every character reaches the handler of the key
// that shows it, whichever control has the focus.

namespace brenko {

struct App;

// One typed character (its code); a character no key shows is ignored.
void Form_KeyPress(App& app, int code);
// Swallows the key-up of the space bar (the code becomes 0), so that a
// focused button is not pressed by it as well.
void Form_KeyUp(App& app, int& keyCode);

}  // namespace brenko
