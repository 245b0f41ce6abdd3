#pragma once
// File, Open / Save / Save As: the set of memories in a memory file.

#include <string>

namespace brenko {

struct App;

void mnuOpen_Click(App& app);
void mnuSave_Click(App& app);
void mnuSaveAs_Click(App& app);

// Erases the memories and builds them afresh from `path`. Stops quietly when
// there is no such file or a line is missing or unreadable; what was read
// so far stays.
void LoadMemoryFile(App& app, const std::string& path);

}  // namespace brenko
