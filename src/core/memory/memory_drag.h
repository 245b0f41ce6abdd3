#pragma once
// Drag and drop between the calculator's readout and the memory cells. A
// drop on the right half of its target adds, on the left half subtracts;
// X is in the target control's container (its window's client area), twips.

#include "core/memory/drag_source.h"

namespace brenko {

struct App;
struct Label;

// The drag pictures kept on the calculator window.
inline constexpr const char* kAddPicture = "Image1";
inline constexpr const char* kSubtractPicture = "Image2";
inline constexpr const char* kPlainPicture = "Image3";
inline constexpr const char* kMultiplyPicture = "Image4";
inline constexpr const char* kDividePicture = "Image5";

// The midpoints of the halves rule, in single precision: the readout's
// Left + Width / 2, a memory value label's Top + Width / 2 (the label's top,
// not its left, as the memory has always measured it).
float ReadoutMidpoint(const Label& readout);
float MemoryMidpoint(const Label& valueLabel);

// Calculator: a mouse button pressed on the readout. The left button (1)
// starts a drag with the plain picture and returns true; the right button
// (2) opens the context menu mnuPopup1.
bool Readout_MouseDown(App& app, int button);

// Calculator: the readout as drop target.
void Readout_DragOver(App& app, const DragSource& source, float x, float y);
void Readout_DragDrop(App& app, const DragSource& source, float x, float y);

// A memory window's value label as drop target.
void MemoryForm_Label1_DragOver(App& app, int number, const DragSource& source,
                                float x, float y);
void MemoryForm_Label1_DragDrop(App& app, int number, const DragSource& source,
                                float x, float y);

}  // namespace brenko
