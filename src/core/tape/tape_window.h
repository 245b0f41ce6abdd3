#pragma once
// The model of the tape window frmTape: one tape of the tape store in view,
// with its name as title and two buttons that step between tapes.

#include <string>

#include "core/base/window_model.h"
#include "core/tape/tape_store.h"

namespace brenko {

// The tape window has no title bar of its own (its Label1 is the title), so
// only the thin frame takes anything from the outer size.
inline constexpr float kTapeNonClientWidth = 120;
inline constexpr float kTapeNonClientHeight = 120;
inline constexpr float kTapeDesignHeight = 1525;
inline constexpr float kTapeTitleHeight = 280;
inline constexpr float kTapeGridHeight = 1125;
inline constexpr float kTapeScrollButtonWidth = 280;

// The key codes Grid1 answers: the arrows step to the tape on the left or
// on the right.
inline constexpr int kTapeKeyLeft = 37;
inline constexpr int kTapeKeyRight = 39;

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
  // Shared by the resize handling and the show/hide command: hiding the
  // window delivers one resize of its own, which this swallows.
  bool resizeGuard = false;
  bool operator==(const TapeWindowForm&) const = default;
};

// The window as its load leaves it: just above the calculator `calc`, and
// the tape store back to the calculator's tape alone.
void LoadTapeWindowModel(TapeWindowForm& window, TapeStore& tapes,
                         const Rect& calc);

// Fits the title, the grid (whole rows, at least one) and the scroll buttons
// to the window's present size.
void FitTapeWindow(TapeWindowForm& window, TapeStore& tapes);

// Steps to the tape on the left or right, wrapping at both ends; the title
// follows, and the newest line of that tape comes into view.
void MoveToTape(TapeStore& tapes, TapeWindowForm& window, bool right);

}  // namespace brenko
