#include "core/memory/memory_file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "core/measure/number_text.h"

namespace brenko {

namespace {

std::string FileNameOf(const std::string& path) {
#ifdef _WIN32
  const std::size_t slash = path.find_last_of("/\\");
#else
  const std::size_t slash = path.find_last_of('/');
#endif
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.find_last_of("/\\");
  if (slash == std::string::npos) return std::string();
  // The root keeps its slash.
  return slash == 0 ? path.substr(0, 1) : path.substr(0, slash);
}

FileDialogRequest MemoryFileDialog(const std::string& startFolder,
                                   const char* title) {
  FileDialogRequest request;
  request.title = title;
  request.filter = kMemoryFileFilter;
  request.defaultExtension = kMemoryFileExtension;
  request.initialFolder = startFolder;
  return request;
}

std::string DialogStartFolder(const std::string& currentFile,
                              const std::string& lastFolder,
                              const std::string& documentsFolder) {
  const std::string current = FolderOf(currentFile);
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

std::string MemoryFileTitle(const std::string& path) {
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
  const std::uintmax_t size = fs::file_size(path, error);
  if (!error && size > kMostMemoryFileBytes) return "the file is too large";
  errno = 0;
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) {
    const int code = errno != 0 ? errno : EIO;
    return OpenFailureReason(std::error_code(code, std::generic_category()));
  }
  std::fclose(file);
  std::ifstream in(path, std::ios::binary);
  if (HasOverlongLine(in)) return "a line is too long";
  return std::nullopt;
}

std::string OpenFailureMessage(const std::string& path,
                               const std::string& reason) {
  return "Could not open " + FileNameOf(path) + ": " + reason + ".";
}

std::string SaveFailureMessage(const std::string& path,
                               const std::string& reason) {
  return "Could not save " + FileNameOf(path) + ": " + reason + ".";
}

void ReportSaveFailure(Platform& platform, const std::string& path,
                       const std::string& reason) {
  platform.MessageBox(SaveFailureMessage(path, reason), "Error",
                      MsgButtons::kOk, MsgIcon::kExclamation);
}

void ReportOpenFailure(Platform& platform, const std::string& path,
                       const std::string& reason) {
  platform.MessageBox(OpenFailureMessage(path, reason), "Error",
                      MsgButtons::kOk, MsgIcon::kExclamation);
}

}  // namespace brenko
