#pragma once
// The events of the tape window frmTape, the calculator's commands that show
// or hide it, and the print commands of the menus.

namespace brenko {

struct App;

void frmTape_Form_Load(App& app);
void frmTape_Form_Resize(App& app);
void cmdScrollTape_Click(App& app, int index);
void Grid1_KeyDown(App& app, int keyCode);

// Display, Tape and its context-menu twin: shows or hides the tape window.
void mnuTape_Click(App& app);
void mnuPopup1ShowTape_Click(App& app);

// File, Print Current Tape / Print All Tapes, and the tape window's context
// menu mnuPopup2.
void mnuPrint_Click(App& app);
void mnuPrintAll_Click(App& app);
void mnuPopup2PrintTape_Click(App& app);
void mnuPopup2PrintAllTapes_Click(App& app);

}  // namespace brenko
