#pragma once
// The model of the Calculator window: its controls in the window's control
// order (the order the zoom walks), its captions, colours, focus and geometry.

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "core/base/readout_marks.h"
#include "core/base/window_model.h"

namespace brenko {

// One control of the calculator window. Control arrays (the digit keys
// "Number") share a name and differ by index; other controls have index -1.
struct CalcControl {
  std::string name;
  int index = -1;
  Label label;         // caption, geometry (client twips), colour, font size
  bool isKey = false;  // a push button of the keypad
  bool operator==(const CalcControl&) const = default;
};

// Fixed positions of the three labels in the control list.
inline constexpr int kReadoutControl = 0;
inline constexpr int kActionLabelControl = 1;
inline constexpr int kLabel1Control = 2;

// The window as designed (100%). Width and height are the outer size of the
// window, as the window arranging rules measure it; the controls are placed
// in the client area below the menu bar.
inline constexpr float kCalcDesignWidth = 3615;
inline constexpr float kCalcDesignHeight = 3590;
// What the frame, title bar and menu bar take of the outer size; the Qt layer
// gives the client area the rest.
inline constexpr float kCalcNonClientWidth = 120;
inline constexpr float kCalcNonClientHeight = 765;

struct CalculatorForm {
  // The window with its designed controls (DesignControls).
  explicit CalculatorForm(std::vector<CalcControl> designed);

  Rect geometry{0, 0, kCalcDesignWidth, kCalcDesignHeight};
  std::string caption = "Brenko Calculator";
  WindowState state = WindowState::kNormal;
  bool visible = false;
  bool loaded = false;
  ColorNumber backColor = kTeal;
  std::vector<CalcControl> controls;
  // Name of the control that has the keyboard focus ("Equal", "Number 7").
  std::string focus = "Equal";
  // The picture the readout shows while dragged: "Image3" plain, "Image1" add,
  // "Image2" subtract, "Image4" multiply, "Image5" divide.
  std::string readoutDragIcon = "Image3";
  // What the entry keys know of the readout's text. Whoever replaces the
  // text (rather than the entry keys adding to it) does it with SetReadout.
  ReadoutMarks readoutMarks;

  // Replaces the readout's text; the entry keys then read it afresh.
  void SetReadout(std::string text) {
    Readout().caption = std::move(text);
    readoutMarks.Forget();
  }

  Label& Readout() { return controls[kReadoutControl].label; }
  const Label& Readout() const { return controls[kReadoutControl].label; }
  Label& ActionLabel() { return controls[kActionLabelControl].label; }
  const Label& ActionLabel() const {
    return controls[kActionLabelControl].label;
  }
  Label& Label1() { return controls[kLabel1Control].label; }
  const Label& Label1() const { return controls[kLabel1Control].label; }

  // Finds a control by name (and index for control arrays); nullptr if none.
  CalcControl* Find(const std::string& name, int index = -1);
  const CalcControl* Find(const std::string& name, int index = -1) const;
};

// A key of the keypad as designed: its control name and index, its caption,
// and its place in the grid of seven columns and four rows.
struct KeyDesign {
  const char* name;
  int index;
  const char* caption;
  int row;
  int column;
};

// The designed controls, in control order: Readout, ActionLabel, Label1,
// then the keys in the order given.
std::vector<CalcControl> DesignControls(std::span<const KeyDesign> keys);

}  // namespace brenko
