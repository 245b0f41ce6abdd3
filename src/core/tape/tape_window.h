#pragma once
// The model of the tape window frmTape: one tape of the tape store in view,
// with its name as title and two buttons that step between tapes.

#include "core/shell/window_model.h"

namespace brenko {

struct App;

struct TapeWindowForm {
  Rect geometry;
  bool loaded = false;
  bool visible = false;
  Label title;  // Label1: the shown tape's name
  // The memory selection buttons cmdScrollTape(0) and (1).
  bool scrollButtonsVisible = true;
};

// Handlers of the tape window and of the calculator's show/hide commands.
void frmTape_Form_Load(App& app);
void frmTape_Form_Resize(App& app);
void cmdScrollTape_Click(App& app, int index);
void Grid1_KeyDown(App& app, int keyCode);
void MoveToTape(App& app, bool right);
void mnuTape_Click(App& app);
void mnuPopup1ShowTape_Click(App& app);

}  // namespace brenko
