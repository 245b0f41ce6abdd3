#include "core/memory/memory_file.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "core/base/path_text.h"
#include "core/measure/number_text.h"

namespace brenko {

FileDialogRequest MemoryFileDialog(const std::filesystem::path& startFolder,
                                   const char* title) {
  FileDialogRequest request;
  request.title = title;
  request.filter = kMemoryFileFilter;
  request.defaultExtension = kMemoryFileExtension;
  request.initialFolder = startFolder;
  return request;
}

std::filesystem::path DialogStartFolder(
    const std::filesystem::path& currentFile,
    const std::filesystem::path& lastFolder,
    const std::filesystem::path& documentsFolder) {
  std::filesystem::path current = currentFile.parent_path();
  if (!current.empty()) return current;
  if (!lastFolder.empty()) return lastFolder;
  return documentsFolder;
}

MemoryFileContent CollectMemoryFile(const Rect& frame,
                                    const MemoryState& memory) {
  MemoryFileContent content;
  content.left = frame.left;
  content.top = frame.top;
  content.width = frame.width;
  content.height = frame.height;
  std::int16_t width = 0;
  if (ToInt16(memory.sharedWidth, width)) content.memoryWidth = width;
  for (const auto& form : memory.Forms()) {
    if (!form->IsMemoryWindow()) continue;
    content.memories.push_back({form->caption, form->label1.caption});
  }
  std::int16_t count = 0;
  if (ToInt16(static_cast<double>(content.memories.size()), count)) {
    content.count = count;
  }
  return content;
}

std::string MemoryFileTitle(const std::filesystem::path& file) {
  // Either separator ends the folder, whichever system wrote the name.
  const std::string path = PathText(file);
  const std::size_t slash = path.find_last_of("/\\");
  std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  const std::size_t dot = name.find('.');
  if (dot != std::string::npos) name.erase(dot);
  return name;
}

WriteOutcome SaveMemoryFile(FileOps& files, const MemoryFileContent& content,
                            const std::filesystem::path& path) {
  std::ostringstream text;
  WriteMemoryFile(text, content);
  return SafeWrite(files, path, text.view());
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
  return SystemWords(error);
}

std::optional<std::string> MemoryFileOpenProblem(
    const std::filesystem::path& path) {
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
  const std::uintmax_t size = fs::file_size(path, error);
  if (!error && size > kMostMemoryFileBytes) return "the file is too large";
  // The stream opens the file by its wide name on Windows, where a narrow
  // fopen would lose letters outside the local code page; the system's
  // reason is left in errno either way.
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open()) {
    const int code = errno != 0 ? errno : EIO;
    return OpenFailureReason(std::error_code(code, std::generic_category()));
  }
  if (HasOverlongLine(file)) return "a line is too long";
  return std::nullopt;
}

std::string OpenFailureMessage(const std::filesystem::path& path,
                               const std::string& reason) {
  return "Could not open " + PathText(path.filename()) + ": " + reason + ".";
}

std::string SaveFailureMessage(const std::filesystem::path& path,
                               const std::string& reason) {
  return "Could not save " + PathText(path.filename()) + ": " + reason + ".";
}

void ReportSaveFailure(Platform& platform, const std::filesystem::path& path,
                       const std::string& reason) {
  platform.MessageBox(SaveFailureMessage(path, reason), "Error",
                      MsgButtons::kOk, MsgIcon::kExclamation);
}

void ReportOpenFailure(Platform& platform, const std::filesystem::path& path,
                       const std::string& reason) {
  platform.MessageBox(OpenFailureMessage(path, reason), "Error",
                      MsgButtons::kOk, MsgIcon::kExclamation);
}

}  // namespace brenko
