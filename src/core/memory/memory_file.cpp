#include "core/memory/memory_file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>

#include "core/measure/number_text.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_file_io.h"
#include "core/shell/app.h"

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

std::string OpenFailureReason(std::error_code error) {
  const std::error_condition condition = error.default_error_condition();
  if (condition == std::errc::no_such_file_or_directory ||
      condition == std::errc::not_a_directory) {
    return "the file does not exist";
  }
  if (condition == std::errc::permission_denied ||
      condition == std::errc::operation_not_permitted) {
    return "permission denied";
  }
  if (condition == std::errc::is_a_directory) return "it is a folder";
  std::string words = error.message();
  if (words.empty()) return "it cannot be read";
  // The system's words start a sentence; here they end one.
  if (words[0] >= 'A' && words[0] <= 'Z') {
    words[0] = static_cast<char>(words[0] - 'A' + 'a');
  }
  return words;
}

std::optional<std::string> MemoryFileOpenProblem(const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) {
    return "the file does not exist";
  }
  if (error) return OpenFailureReason(error);
  if (status.type() == fs::file_type::directory) return "it is a folder";
  // A pipe or a device would block or never end.
  if (status.type() != fs::file_type::regular) {
    return "it is not a regular file";
  }
  errno = 0;
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) {
    const int code = errno != 0 ? errno : EIO;
    return OpenFailureReason(std::error_code(code, std::generic_category()));
  }
  std::fclose(file);
  return std::nullopt;
}

std::string OpenFailureMessage(const std::string& path,
                               const std::string& reason) {
  const std::size_t slash = path.find_last_of('/');
  const std::string name =
      slash == std::string::npos ? path : path.substr(slash + 1);
  return "Could not open " + name + ": " + reason + ".";
}

void ReportOpenFailure(App& app, const std::string& path,
                       const std::string& reason) {
  app.platform.MessageBox(OpenFailureMessage(path, reason), "Error",
                          MsgButtons::kOk, MsgIcon::kExclamation);
}

bool OpenMemoryFilePath(App& app, const std::string& path) {
  if (const std::optional<std::string> problem = MemoryFileOpenProblem(path)) {
    ReportOpenFailure(app, path, *problem);
    return false;
  }
  app.memory.filePath = path;
  LoadMemoryFile(app, path);
  return true;
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
