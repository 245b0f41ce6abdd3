#pragma once
// The set of memories in a memory file: what a save writes, and the file
// dialogs of File, Open / Save / Save As.

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "core/base/platform.h"
#include "core/base/safe_write.h"
#include "core/base/window_model.h"
#include "core/memory/memory_file_io.h"
#include "core/memory/memory_form.h"

namespace brenko {

inline constexpr const char* kMemoryFileFilter =
    "Memory (*.mem)|*.mem|all files (*.*)|*.*";
inline constexpr const char* kMemoryFileExtension = "mem";
inline constexpr const char* kOpenConfirmation =
    "Existing memory and memory tapes will be erased. Are you sure you want "
    "to continue?";
inline constexpr const char* kApplicationTitle = "Brenko Calculator";

// The settings key (section "Settings") of the folder a memory file was
// last opened from or saved to.
inline constexpr const char* kMemoryFolderKey = "MemoryFolder";

// The open or save dialog titled `title`, opening in `startFolder`.
FileDialogRequest MemoryFileDialog(const std::filesystem::path& startFolder,
                                   const char* title);

// Where the file dialogs start: the current memory file's folder, else the
// folder last used, else the user's documents; never the program's own.
std::filesystem::path DialogStartFolder(
    const std::filesystem::path& currentFile,
    const std::filesystem::path& lastFolder,
    const std::filesystem::path& documentsFolder);

// What a save writes: the frame's place and size, the shared width and
// every memory window's name and value.
MemoryFileContent CollectMemoryFile(const Rect& frame,
                                    const MemoryState& memory);

// Writes the content to `path` safely (SafeWrite): a save that fails
// leaves the previous file whole, and says why.
WriteOutcome SaveMemoryFile(FileOps& files, const MemoryFileContent& content,
                            const std::filesystem::path& path);

// "Could not save NAME: REASON." with NAME the file's name without its
// folder.
std::string SaveFailureMessage(const std::filesystem::path& path,
                               const std::string& reason);

// Shows SaveFailureMessage in a message box titled "Error".
void ReportSaveFailure(Platform& platform, const std::filesystem::path& path,
                       const std::string& reason);

// Why `path` cannot be read as a memory file, in plain words ("the file does
// not exist", "permission denied"); nothing when it can.
std::optional<std::string> MemoryFileOpenProblem(
    const std::filesystem::path& path);

// The plain words for a system error met while opening a file.
std::string OpenFailureReason(std::error_code error);

// "Could not open NAME: REASON." with NAME the file's name without its
// folder. Every failed open is worded so.
std::string OpenFailureMessage(const std::filesystem::path& path,
                               const std::string& reason);

// Shows OpenFailureMessage in a message box titled "Error".
void ReportOpenFailure(Platform& platform, const std::filesystem::path& path,
                       const std::string& reason);

// The frame's caption for a file: the name without its folder and without
// everything from its first ".".
std::string MemoryFileTitle(const std::filesystem::path& path);

}  // namespace brenko
