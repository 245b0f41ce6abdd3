#include "core/commands/memory_file_handlers.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <new>
#include <optional>
#include <system_error>

#include "core/base/path_text.h"
#include "core/commands/app.h"
#include "core/commands/frame_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_file.h"
#include "core/memory/memory_file_io.h"

namespace brenko {

namespace {

// The folder the next dialog starts in.
std::filesystem::path StartFolder(const App& app) {
  return DialogStartFolder(
      app.memory.filePath,
      PathFromText(app.settings.GetSetting("Settings", kMemoryFolderKey, "")),
      app.shell.documentsFolder);
}

// A file opened or saved: its folder is where the dialogs start next time,
// in this run and the next.
void RememberFolder(App& app, const std::filesystem::path& path) {
  const std::filesystem::path folder = path.parent_path();
  if (!folder.empty()) {
    app.settings.Save("Settings", kMemoryFolderKey, PathText(folder));
  }
}

// Writes every memory to `path`; a save that fails says why and leaves
// the old file as it was.
bool SaveTo(App& app, const std::filesystem::path& path) {
  const WriteOutcome outcome = SaveMemoryFile(
      app.platform.Files(),
      CollectMemoryFile(app.mainFrame.geometry, app.memory), path);
  if (!outcome.ok()) {
    ReportSaveFailure(app.platform, path, outcome.reason);
    return false;
  }
  RememberFolder(app, path);
  return true;
}

void ReadMemoryFile(App& app, const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return;
  EraseMemory_Click(app);

  std::ifstream in(path, std::ios::binary);
  if (!in) return;
  MemoryFileReader reader(in);
  MemoryFileHeader header;
  if (!reader.ReadHeader(header)) return;

  app.mainFrame.caption = MemoryFileTitle(path);
  // A window cannot take a negative size: the move fails and so does the
  // rest of the command.
  if (header.width < 0 || header.height < 0) return;
  const ScreenInfo screen = app.platform.Screen();
  MoveMainFrame(
      app,
      KeepFrameOnScreen(
          {static_cast<float>(header.left), static_cast<float>(header.top),
           static_cast<float>(header.width), static_cast<float>(header.height)},
          screen.WidthTwips(), screen.HeightTwips()));
  // The width line is the memories' common width even when the file holds
  // no memory.
  MemoryState& memory = app.memory;
  memory.sharedWidth = header.memoryWidth;

  // Each new memory lays the frame out again, as New Memory does; the
  // windows themselves are placed once, when the reading ends however it
  // ends, where the last of those layouts put them.
  DeferredArrangement arrangement(app);
  for (std::int16_t k = 1; k <= header.count; ++k) {
    MemoryFileRecord record;
    if (!reader.ReadMemory(record)) return;
    memory.sharedWidth = header.memoryWidth;
    MemoryForm* form = CreateMemory(app, record.name);
    if (form == nullptr) return;
    form->label1.caption = record.value;
    memory.sharedWidth = header.memoryWidth;
    SetMemoryWidth(*form, memory.sharedWidth);
    if (k == INT16_MAX) break;
  }
}

}  // namespace

void LoadMemoryFile(App& app, const std::filesystem::path& path) {
  // Nothing a file holds may end the program: what was read stays, the
  // rest is not.
  try {
    ReadMemoryFile(app, path);
  } catch (const std::bad_alloc&) {
    ReportOpenFailure(app.platform, path, "there is not enough memory");
  } catch (const std::exception&) {
    ReportOpenFailure(app.platform, path, "it cannot be read");
  }
}

namespace {

// The file becomes the current one (its folder the dialogs' next start) and
// its memories are read.
void AdoptMemoryFile(App& app, const std::filesystem::path& path) {
  app.memory.filePath = path;
  RememberFolder(app, path);
  LoadMemoryFile(app, path);
}

}  // namespace

bool OpenMemoryFilePath(App& app, const std::filesystem::path& path) {
  if (const std::optional<std::string> problem = MemoryFileOpenProblem(path)) {
    ReportOpenFailure(app.platform, path, *problem);
    return false;
  }
  AdoptMemoryFile(app, path);
  return true;
}

void mnuOpen_Click(App& app) {
  if (app.memory.nextNumber > 1) {
    const MsgAnswer answer =
        app.platform.MessageBox(kOpenConfirmation, kApplicationTitle,
                                MsgButtons::kOkCancel, MsgIcon::kExclamation);
    if (answer != MsgAnswer::kOk) return;
  }
  const std::optional<std::filesystem::path> path =
      app.platform.OpenFileDialog(MemoryFileDialog(StartFolder(app), "Open"));
  if (!path) return;
  // A file that is there but cannot be read says why, before anything is
  // erased; a missing one stops without a word.
  std::error_code error;
  if (const std::optional<std::string> problem = MemoryFileOpenProblem(*path);
      problem && std::filesystem::symlink_status(*path, error).type() !=
                     std::filesystem::file_type::not_found) {
    ReportOpenFailure(app.platform, *path, *problem);
    return;
  }
  AdoptMemoryFile(app, *path);
}

void mnuSave_Click(App& app) {
  if (app.memory.windowCounter == 1) return;
  if (app.memory.filePath.empty()) {
    mnuSaveAs_Click(app);
    return;
  }
  SaveTo(app, app.memory.filePath);
}

void mnuSaveAs_Click(App& app) {
  const std::optional<std::filesystem::path> path = app.platform.SaveFileDialog(
      MemoryFileDialog(StartFolder(app), "Save As"));
  if (!path) return;
  // Only a file that was written becomes the current one.
  if (SaveTo(app, *path)) app.memory.filePath = *path;
}

}  // namespace brenko
