#pragma once
// Drag and drop between the calculator's readout and the memories' value
// labels. X is in the target control's container (its window's client
// area), twips; a drop on the right half of its target adds, on the left
// half subtracts.

#include "core/memory/drag_source.h"

namespace brenko {

struct App;

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
