#pragma once
// The life of the program: start-up of the calculator window, activation,
// and the shutdown that writes the settings.

namespace brenko {

struct App;

void Form_Load(App& app);
void Form_Activate(App& app);
void Form_GotFocus(App& app);
void Form_QueryUnload(App& app);
void Form_Unload(App& app);
void Exit_Click(App& app);

}  // namespace brenko
