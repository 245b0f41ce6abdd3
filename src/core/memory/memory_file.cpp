#include "core/memory/memory_file.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>

#include "core/commands/app.h"
#include "core/measure/number_text.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_file_io.h"

namespace brenko {

namespace {

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

FileDialogRequest MemoryDialog(const App& app, const char* title) {
  FileDialogRequest request;
  request.title = title;
  request.filter = kMemoryFileFilter;
  request.defaultExtension = kMemoryFileExtension;
  // The program's own folder, where its help file lives.
  request.initialFolder = FolderOf(app.shell.helpFile);
  return request;
}

MemoryFileContent Collect(const App& app) {
  MemoryFileContent content;
  const Rect& frame = app.mainFrame.geometry;
  content.left = frame.left;
  content.top = frame.top;
  content.width = frame.width;
  content.height = frame.height;
  std::int16_t width = 0;
  if (ToInt16(app.memory.sharedWidth, width)) content.memoryWidth = width;
  for (const auto& form : app.memory.forms) {
    if (form->label1.tag.find("memory") == std::string::npos) continue;
    content.memories.push_back({form->caption, form->label1.caption});
  }
  std::int16_t count = 0;
  if (ToInt16(static_cast<double>(content.memories.size()), count)) {
    content.count = count;
  }
  return content;
}

}  // namespace

std::string MemoryFileTitle(const std::string& path) {
  const std::size_t slash = path.find_last_of("/\\");
  std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  const std::size_t dot = name.find('.');
  if (dot != std::string::npos) name.erase(dot);
  return name;
}

bool SaveMemoryFile(const App& app, const std::string& path) {
  namespace fs = std::filesystem;
  const fs::path target(path);
  fs::path temporary = target;
  temporary += ".saving";
  std::error_code ignored;
  bool written = false;
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (out) written = WriteMemoryFile(out, Collect(app));
    if (out.is_open()) {
      out.close();
      written = written && !out.fail();
    }
  }
  if (written) {
    std::error_code error;
    fs::rename(temporary, target, error);
    written = !error;
  }
  if (!written) fs::remove(temporary, ignored);
  return written;
}

void LoadMemoryFile(App& app, const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return;
  EraseMemory_Click(app);

  std::ifstream in(path, std::ios::binary);
  if (!in) return;
  MemoryFileReader reader(in);
  MemoryFileHeader header;
  if (!reader.ReadHeader(header)) return;

  MainFrameForm& frame = app.mainFrame;
  frame.caption = MemoryFileTitle(path);
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
  app.memory.sharedWidth = header.memoryWidth;

  for (std::int16_t k = 1; k <= header.count; ++k) {
    MemoryFileRecord record;
    if (!reader.ReadMemory(record)) return;
    app.memory.sharedWidth = header.memoryWidth;
    MemoryForm* form = CreateMemory(app, record.name);
    if (form == nullptr) return;
    form->label1.caption = record.value;
    app.memory.sharedWidth = header.memoryWidth;
    SetMemoryWidth(*form, app.memory.sharedWidth);
    if (k == INT16_MAX) break;
  }
}

void mnuOpen_Click(App& app) {
  if (app.memory.nextNumber > 1) {
    const MsgAnswer answer =
        app.platform.MessageBox(kOpenConfirmation, kApplicationTitle,
                                MsgButtons::kOkCancel, MsgIcon::kExclamation);
    if (answer != MsgAnswer::kOk) return;
  }
  const std::optional<std::string> path =
      app.platform.OpenFileDialog(MemoryDialog(app, "Open"));
  if (!path) return;
  app.memory.filePath = *path;
  LoadMemoryFile(app, *path);
}

void mnuSave_Click(App& app) {
  if (app.memory.windowCounter == 1) return;
  if (app.memory.filePath.empty()) {
    mnuSaveAs_Click(app);
    return;
  }
  SaveMemoryFile(app, app.memory.filePath);
}

void mnuSaveAs_Click(App& app) {
  const std::optional<std::string> path =
      app.platform.SaveFileDialog(MemoryDialog(app, "Save As"));
  if (!path) return;
  app.memory.filePath = *path;
  SaveMemoryFile(app, *path);
}

}  // namespace brenko
