#pragma once
// File, Open / Save / Save As: the set of memories in a memory file.

#include <string>

namespace brenko {

struct App;

inline constexpr const char* kMemoryFileFilter =
    "Memory (*.mem)|*.mem|all files (*.*)|*.*";
inline constexpr const char* kMemoryFileExtension = "mem";
inline constexpr const char* kOpenConfirmation =
    "Existing memory and memory tapes will be erased. Are you sure you want "
    "to continue?";
inline constexpr const char* kApplicationTitle = "Brenko Calculator";

void mnuOpen_Click(App& app);
void mnuSave_Click(App& app);
void mnuSaveAs_Click(App& app);

// Writes the memories to `path`. The file is written beside the old one
// under a temporary name and only then put in its place, so a save that
// fails part-way leaves the previous file whole. False when it failed
// (nothing is reported to the user).
bool SaveMemoryFile(const App& app, const std::string& path);

// Erases the memories and builds them afresh from `path`. Stops quietly when
// there is no such file or a line is missing or unreadable; what was read
// so far stays.
void LoadMemoryFile(App& app, const std::string& path);

// The frame's caption for a file: the name without its folder and without
// everything from its first ".".
std::string MemoryFileTitle(const std::string& path);

}  // namespace brenko
