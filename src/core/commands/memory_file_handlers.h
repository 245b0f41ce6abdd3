#pragma once
// File, Open / Save / Save As: the set of memories in a memory file.

#include <filesystem>

namespace brenko {

struct App;

void mnuOpen_Click(App& app);
void mnuSave_Click(App& app);
void mnuSaveAs_Click(App& app);

// Opens `path` as File, Open does once a path is chosen, for a file named
// from outside the program (the command line, a file manager): no dialog and
// no question, since nothing has been made yet to lose; the file becomes the
// current file. A file that cannot be read is reported with
// ReportOpenFailure and nothing changes. True when the file was read.
bool OpenMemoryFilePath(App& app, const std::filesystem::path& path);

// Erases the memories and builds them afresh from `path`. Stops quietly when
// there is no such file or a line is missing or unreadable; what was read
// so far stays.
void LoadMemoryFile(App& app, const std::filesystem::path& path);

}  // namespace brenko
