#pragma once
// The file operations of a safe save as the operating system offers them:
// POSIX calls, or the Win32 ones on Windows.

#include "core/base/file_ops.h"

namespace brenko::os {

class SystemFileOps : public FileOps {
 public:
  std::error_code CreateExclusive(const std::filesystem::path& path,
                                  unsigned mode, FileHandle& handle) override;
  std::error_code Write(FileHandle handle, const char* data,
                        std::size_t size) override;
  std::error_code SetMode(FileHandle handle, unsigned mode) override;
  std::error_code Sync(FileHandle handle) override;
  std::error_code Close(FileHandle handle) override;
  std::error_code Rename(const std::filesystem::path& from,
                         const std::filesystem::path& to) override;
  void Remove(const std::filesystem::path& path) override;
  std::error_code Inspect(const std::filesystem::path& path,
                          FileFacts& facts) override;
  std::optional<std::filesystem::path> LinkTarget(
      const std::filesystem::path& path) override;
  std::error_code SyncFolder(const std::filesystem::path& folder) override;
};

}  // namespace brenko::os
