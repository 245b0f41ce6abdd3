#pragma once
// The start-up and the shutdown open and close the other windows through
// their own handlers; these are the few calls they make.

namespace brenko {

struct App;

// Creates the converter window, hidden, if it is not loaded yet.
void LoadConverterWindow(App& app);
// The Display menu's "&Converter" command, as the start-up replays it.
void OpenConverterFromMenu(App& app);
void UnloadConverterWindow(App& app);
// Loads the tape window hidden (its own Form_Load).
void LoadTapeWindow(App& app);
void UnloadTapeWindow(App& app);
// Memory, Erase All: closes every memory window.
void EraseAllMemories(App& app);

}  // namespace brenko
