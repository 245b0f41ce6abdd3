#pragma once
// File, Open / Save / Save As: the set of memories in a memory file.

#include <optional>
#include <string>
#include <system_error>

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

// Opens `path` as File, Open does once a path is chosen, for a file named
// from outside the program (the command line, a file manager): no dialog and
// no question, since nothing has been made yet to lose; the file becomes the
// current file. A file that cannot be read is reported with
// ReportOpenFailure and nothing changes. True when the file was read.
bool OpenMemoryFilePath(App& app, const std::string& path);

// Why `path` cannot be read as a memory file, in plain words ("the file does
// not exist", "permission denied"); nothing when it can.
std::optional<std::string> MemoryFileOpenProblem(const std::string& path);

// The plain words for a system error met while opening a file.
std::string OpenFailureReason(std::error_code error);

// "Could not open NAME: REASON." with NAME the file's name without its
// folder. Every failed open is worded so.
std::string OpenFailureMessage(const std::string& path,
                               const std::string& reason);

// Shows OpenFailureMessage in a message box titled "Error".
void ReportOpenFailure(App& app, const std::string& path,
                       const std::string& reason);

// The frame's caption for a file: the name without its folder and without
// everything from its first ".".
std::string MemoryFileTitle(const std::string& path);

}  // namespace brenko
