#pragma once
// The Memory menu and its context-menu twins, and the events of the memory
// windows. A memory window is addressed by its number.

#include <string>

namespace brenko {

struct App;
struct MemoryForm;

void NewMemory_Click(App& app);
void mnuPopup1NewMemory_Click(App& app);
void NamedMemory_Click(App& app);
void mnuPopup1NamedMemory_Click(App& app);
void ClearMemory_Click(App& app);
void EraseMemory_Click(App& app);

// Events of the memory window with this number.
void MemoryForm_Label1_DblClick(App& app, int number);
void MemoryForm_Form_Click(App& app, int number);
void MemoryForm_Form_DblClick(App& app, int number);
// Runs after the window's geometry has taken its new size.
void MemoryForm_Form_Resize(App& app, int number);
void MemoryForm_Form_Activate(App& app, int number);
void MemoryForm_Form_MouseUp(App& app, int number);
void MemoryForm_Form_GotFocus(App& app, int number);
void MemoryForm_Form_Unload(App& app, int number);

// Creates a memory window captioned `caption` under the next number, with
// its tape, in the main frame, as New Memory does; returns it, or nullptr
// when no window could be made.
MemoryForm* CreateMemory(App& app, const std::string& caption);

}  // namespace brenko
