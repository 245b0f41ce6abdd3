#pragma once
// Memory cells: creating, naming, clearing and closing the memory windows,
// and the events of a memory window. Every handler takes the App; a memory
// window is addressed by its number (the number in its tag "memory N").

#include <string>
#include <string_view>

namespace brenko {

struct App;
struct MemoryForm;

// Memory menu and context menu.
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

// Creates a memory window captioned `caption` under the next number, as New
// Memory does; returns it, or nullptr when no window could be made.
MemoryForm* CreateMemory(App& app, const std::string& caption);

// Makes this memory the current one: the tape window shows its tape under
// its name.
void MakeCurrentMemory(App& app, int number);

// Width refitting. A value label's font is taken as kMemoryCharWidth twips a
// character (a digit of the memory font); a window needs that for every
// character of its value plus kMemoryFitAllowance for the label's padding and
// the window's borders, and never less than the first memory's width.
inline constexpr double kMemoryCharWidth = 105;
inline constexpr double kMemoryFitAllowance = 300;
double MemoryFitWidth(std::string_view valueText);

// Refits every memory window to the widest value text and arranges them
// again. With `growOnly` a window is only ever widened (after a sum); a refit
// that would not fit a window's 16-bit width changes nothing.
void RefitMemoryWidths(App& app, bool growOnly);

// Gives one memory window a width, its value label widened to match.
void SetMemoryWidth(MemoryForm& form, float width);

// Gives every memory window the shared width (its value label widened to
// match) and the common height.
void ApplySharedWidth(App& app);

}  // namespace brenko
