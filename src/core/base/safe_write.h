#pragma once
// Writing a file so that it is, at every moment, either the old file or the
// new one, whole: the data goes to a new file of a unique name in the same
// folder, reaches the disk, and only then takes the old file's place. A
// symlink is written through (it stays a link), the old file's permissions
// are kept, a file the user may not write is not replaced, and any failure
// leaves the old file as it was and no temporary file behind.

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "core/base/file_ops.h"

namespace brenko {

struct WriteOutcome {
  std::error_code error;  // empty when the file was written
  std::string reason;     // the failure in plain words ("the disk is full")
  bool ok() const { return !error; }
};

WriteOutcome SafeWrite(FileOps& files, const std::filesystem::path& target,
                       std::string_view data);

// The file a write to `path` reaches: the end of its chain of symlinks
// (a dangling link's target included). `path` itself when it is no link.
std::filesystem::path WriteDestination(FileOps& files,
                                       const std::filesystem::path& path);

// The system's own words for an error, made to end a sentence ("no such
// device"); for errors the program has no plainer words for.
std::string SystemWords(std::error_code error);

// The plain words for an error met while writing a file.
std::string WriteFailureReason(std::error_code error);

}  // namespace brenko
