#include "core/memory/memory_file.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "core/measure/number_text.h"

namespace brenko {

namespace {

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

}  // namespace

FileDialogRequest MemoryFileDialog(const std::string& helpFile,
                                   const char* title) {
  FileDialogRequest request;
  request.title = title;
  request.filter = kMemoryFileFilter;
  request.defaultExtension = kMemoryFileExtension;
  request.initialFolder = FolderOf(helpFile);
  return request;
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

bool SaveMemoryFile(const MemoryFileContent& content, const std::string& path) {
  namespace fs = std::filesystem;
  const fs::path target(path);
  fs::path temporary = target;
  temporary += ".saving";
  std::error_code ignored;
  bool written = false;
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (out) written = WriteMemoryFile(out, content);
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

}  // namespace brenko
