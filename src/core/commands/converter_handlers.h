#pragma once
// The converter window's events and the Display menu's "&Converter".

#include "core/memory/drag_source.h"

namespace brenko {

struct App;

void Converter_Form_Load(App& app);
void Converter_Form_Unload(App& app);
void Converter_Form_Resize(App& app);
void Converter_Form_DblClick(App& app);
void Converter_Form_DragOver(App& app, const DragSource& source, float x,
                             float y);
void Converter_Label1_DblClick(App& app);
void Converter_Label1_DragDrop(App& app, const DragSource& source, float x,
                               float y);

// Display, Converter: shows the converter beside the calculator, or hides
// it.
void mnuConverter_Click(App& app);

// The start-up, the colours and the shutdown make the window, hidden, when
// it is not loaded yet; the shutdown unloads it.
void LoadConverterWindow(App& app);
void UnloadConverterWindow(App& app);

}  // namespace brenko
