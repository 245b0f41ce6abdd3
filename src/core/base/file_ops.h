#pragma once
// The few file-system calls a safe save needs, behind one interface: the
// program's own implementation talks to the operating system (src/os), the
// tests put one in between that fails where they want it to.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <system_error>

namespace brenko {

// An open file: a descriptor on POSIX, a HANDLE on Windows.
using FileHandle = std::intptr_t;

// What a save needs to know of the file it replaces (links followed).
struct FileFacts {
  bool exists = false;
  bool regular = false;
  bool writable = false;  // the user may write it
  unsigned mode = 0;      // its permission bits, to be kept
};

class FileOps {
 public:
  virtual ~FileOps() = default;

  // Creates `path` as a new, empty file open for writing; fails (with
  // file_exists) when anything is there already, a symlink included, which
  // is never followed. `mode` is the permission the file starts with (the
  // user's umask applies).
  virtual std::error_code CreateExclusive(const std::filesystem::path& path,
                                          unsigned mode,
                                          FileHandle& handle) = 0;
  // Writes all `size` bytes, or fails.
  virtual std::error_code Write(FileHandle handle, const char* data,
                                std::size_t size) = 0;
  // Gives the open file these permission bits.
  virtual std::error_code SetMode(FileHandle handle, unsigned mode) = 0;
  // Puts the file's data on the disk.
  virtual std::error_code Sync(FileHandle handle) = 0;
  virtual std::error_code Close(FileHandle handle) = 0;
  // Replaces `to` by `from` in one step.
  virtual std::error_code Rename(const std::filesystem::path& from,
                                 const std::filesystem::path& to) = 0;
  // Removes a file (not following a link); quietly does nothing when it is
  // not there.
  virtual void Remove(const std::filesystem::path& path) = 0;
  // The facts of the file at `path`, following links; not existing is no
  // failure.
  virtual std::error_code Inspect(const std::filesystem::path& path,
                                  FileFacts& facts) = 0;
  // Where the symlink at `path` points, as written in the link; nothing
  // when `path` is not a symlink.
  virtual std::optional<std::filesystem::path> LinkTarget(
      const std::filesystem::path& path) = 0;
  // Puts the folder's entries (a rename in it) on the disk.
  virtual std::error_code SyncFolder(const std::filesystem::path& folder) = 0;
};

}  // namespace brenko
