#include "os/system_file_ops.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <vector>
#endif

namespace brenko::os {

namespace fs = std::filesystem;

#ifdef _WIN32

namespace {

// The Win32 codes a save can meet, as the portable conditions the caller
// words; anything else keeps the system's own text.
std::error_code LastError() {
  const DWORD code = GetLastError();
  switch (code) {
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return std::make_error_code(std::errc::file_exists);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
      return std::make_error_code(std::errc::permission_denied);
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      return std::make_error_code(std::errc::no_such_file_or_directory);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return std::make_error_code(std::errc::no_space_on_device);
    case ERROR_WRITE_PROTECT:
      return std::make_error_code(std::errc::read_only_file_system);
    default:
      return {static_cast<int>(code), std::system_category()};
  }
}

HANDLE AsHandle(FileHandle handle) { return reinterpret_cast<HANDLE>(handle); }

}  // namespace

std::error_code SystemFileOps::CreateExclusive(const fs::path& path,
                                               unsigned /*mode*/,
                                               FileHandle& handle) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr,
                                  CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return LastError();
  handle = reinterpret_cast<FileHandle>(file);
  return {};
}

std::error_code SystemFileOps::Write(FileHandle handle, const char* data,
                                     std::size_t size) {
  while (size > 0) {
    const DWORD chunk =
        size > 0x40000000u ? 0x40000000u : static_cast<DWORD>(size);
    DWORD written = 0;
    if (!WriteFile(AsHandle(handle), data, chunk, &written, nullptr)) {
      return LastError();
    }
    if (written == 0) return std::make_error_code(std::errc::io_error);
    data += written;
    size -= written;
  }
  return {};
}

// Windows keeps no permission bits of this kind; the read-only mark of the
// old file already refused the save.
std::error_code SystemFileOps::SetMode(FileHandle, unsigned) { return {}; }

std::error_code SystemFileOps::Sync(FileHandle handle) {
  if (!FlushFileBuffers(AsHandle(handle))) return LastError();
  return {};
}

std::error_code SystemFileOps::Close(FileHandle handle) {
  if (!CloseHandle(AsHandle(handle))) return LastError();
  return {};
}

std::error_code SystemFileOps::Rename(const fs::path& from,
                                      const fs::path& to) {
  if (!MoveFileExW(from.c_str(), to.c_str(),
                   MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
    return LastError();
  }
  return {};
}

void SystemFileOps::Remove(const fs::path& path) { DeleteFileW(path.c_str()); }

std::error_code SystemFileOps::Inspect(const fs::path& path, FileFacts& facts) {
  facts = {};
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const std::error_code error = LastError();
    if (error == std::errc::no_such_file_or_directory) return {};
    return error;
  }
  facts.exists = true;
  facts.regular = (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
  facts.writable = (attributes & FILE_ATTRIBUTE_READONLY) == 0;
  return {};
}

std::optional<fs::path> SystemFileOps::LinkTarget(const fs::path& path) {
  std::error_code error;
  if (!fs::is_symlink(path, error)) return std::nullopt;
  fs::path target = fs::read_symlink(path, error);
  if (error) return std::nullopt;
  return target;
}

// A folder cannot be flushed on Windows; MOVEFILE_WRITE_THROUGH has done it.
std::error_code SystemFileOps::SyncFolder(const fs::path&) { return {}; }

#else

namespace {

std::error_code Errno() { return {errno, std::generic_category()}; }

int AsDescriptor(FileHandle handle) { return static_cast<int>(handle); }

}  // namespace

std::error_code SystemFileOps::CreateExclusive(const fs::path& path,
                                               unsigned mode,
                                               FileHandle& handle) {
  int fd = -1;
  do {
    fd = ::open(path.c_str(),
                O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                static_cast<mode_t>(mode));
  } while (fd < 0 && errno == EINTR);
  if (fd < 0) return Errno();
  handle = fd;
  return {};
}

std::error_code SystemFileOps::Write(FileHandle handle, const char* data,
                                     std::size_t size) {
  while (size > 0) {
    const ssize_t written = ::write(AsDescriptor(handle), data, size);
    if (written < 0) {
      if (errno == EINTR) continue;
      return Errno();
    }
    if (written == 0) return std::make_error_code(std::errc::io_error);
    data += written;
    size -= static_cast<std::size_t>(written);
  }
  return {};
}

std::error_code SystemFileOps::SetMode(FileHandle handle, unsigned mode) {
  if (::fchmod(AsDescriptor(handle), static_cast<mode_t>(mode)) != 0) {
    return Errno();
  }
  return {};
}

std::error_code SystemFileOps::Sync(FileHandle handle) {
  int result = 0;
  do {
    result = ::fsync(AsDescriptor(handle));
  } while (result != 0 && errno == EINTR);
  if (result != 0) return Errno();
  return {};
}

std::error_code SystemFileOps::Close(FileHandle handle) {
  // A close interrupted on Linux has closed the file all the same.
  if (::close(AsDescriptor(handle)) != 0 && errno != EINTR) return Errno();
  return {};
}

std::error_code SystemFileOps::Rename(const fs::path& from,
                                      const fs::path& to) {
  if (::rename(from.c_str(), to.c_str()) != 0) return Errno();
  return {};
}

void SystemFileOps::Remove(const fs::path& path) { ::unlink(path.c_str()); }

std::error_code SystemFileOps::Inspect(const fs::path& path, FileFacts& facts) {
  facts = {};
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0) {
    if (errno == ENOENT) return {};
    return Errno();
  }
  facts.exists = true;
  facts.regular = S_ISREG(info.st_mode);
  facts.mode = static_cast<unsigned>(info.st_mode & 07777);
  // A file that nobody may write is read-only for its owner and for root
  // too. On a read-only file system the making of the new file says so
  // better.
  facts.writable = (info.st_mode & 0222) != 0 &&
                   (::access(path.c_str(), W_OK) == 0 || errno == EROFS);
  return {};
}

std::optional<fs::path> SystemFileOps::LinkTarget(const fs::path& path) {
  struct stat info {};
  if (::lstat(path.c_str(), &info) != 0 || !S_ISLNK(info.st_mode)) {
    return std::nullopt;
  }
  std::vector<char> buffer(256);
  for (;;) {
    const ssize_t length =
        ::readlink(path.c_str(), buffer.data(), buffer.size());
    if (length < 0) return std::nullopt;
    if (static_cast<std::size_t>(length) < buffer.size()) {
      return fs::path(
          std::string(buffer.data(), static_cast<std::size_t>(length)));
    }
    buffer.resize(buffer.size() * 2);
  }
}

std::error_code SystemFileOps::SyncFolder(const fs::path& folder) {
  const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return Errno();
  std::error_code error;
  if (::fsync(fd) != 0) error = Errno();
  ::close(fd);
  return error;
}

#endif

}  // namespace brenko::os
