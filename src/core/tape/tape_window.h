#pragma once
// The model of the tape window frmTape: one tape of the tape store in view,
// with its name as title and two buttons that step between tapes.

#include <string>

#include "core/base/window_model.h"

namespace brenko {

struct App;

// The tape window has no title bar of its own (its Label1 is the title), so
// only the thin frame takes anything from the outer size.
inline constexpr float kTapeNonClientWidth = 120;
inline constexpr float kTapeNonClientHeight = 120;
inline constexpr float kTapeDesignHeight = 1525;
inline constexpr float kTapeTitleHeight = 280;
inline constexpr float kTapeGridHeight = 1125;
inline constexpr float kTapeScrollButtonWidth = 280;

struct TapeWindowForm {
  Rect geometry{0, 0, 3135, kTapeDesignHeight};
  std::string caption = "Tape";
  bool loaded = false;
  bool visible = false;
  Label title;  // Label1: the shown tape's name
  // Grid1's place in the client area (its height is the tape store's).
  Rect grid{0, kTapeTitleHeight, 3015, kTapeGridHeight};
  // The memory selection buttons cmdScrollTape(0) and (1).
  bool scrollButtonsVisible = true;
  Rect scrollButtons[2] = {{0, 0, kTapeScrollButtonWidth, kTapeTitleHeight},
                           {3015 - kTapeScrollButtonWidth, 0,
                            kTapeScrollButtonWidth, kTapeTitleHeight}};
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
