#pragma once
// The shell's commands and events: colours, About and Help, and the mouse
// events of the calculator window and its prompt line Label1 (the context
// menu and the double-click shortcut).

namespace brenko {

struct App;

// Display, Colors: picks a colour for one of seven targets (0 calculator,
// 1 its readout, 2 memories, 3 memory readouts, 4 converter, 5 its readout,
// 6 its result readouts).
void mnuColor_Click(App& app, int index);

void mnuAbout_Click(App& app);
void mnuHelpContents_Click(App& app);
// The About box's "&System Info..." button.
void cmdSysInfo_Click(App& app);

// The right button opens the context menu mnuPopup1; other buttons do
// nothing.
void Form_MouseDown(App& app, int button);
void Label1_MouseDown(App& app, int button);
// A double click shows or hides the keypad.
void Form_DblClick(App& app);
void Label1_DblClick(App& app);

// The context menu's Cancel: choosing it only closes the menu.
void mnuPopup1Cancel_Click(App& app);

}  // namespace brenko
