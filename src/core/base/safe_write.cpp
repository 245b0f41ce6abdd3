#include "core/base/safe_write.h"

#include <random>

namespace brenko {

namespace fs = std::filesystem;

namespace {

// A chain of links longer than this is a loop; the system gives up sooner.
constexpr int kMostLinks = 40;
// Names already taken (by another copy of the program, or planted) are
// passed over; this many in a row means something else is wrong.
constexpr int kMostNames = 100;
constexpr unsigned kNewFileMode = 0666;  // the umask takes its part
constexpr unsigned kPrivateMode = 0600;  // until the old file's are copied

bool Is(std::error_code error, std::errc condition) {
  return error.default_error_condition() == condition;
}

// A failure to make a file in the folder says something about the folder.
std::string CreateFailureReason(std::error_code error) {
  if (Is(error, std::errc::permission_denied) ||
      Is(error, std::errc::operation_not_permitted) ||
      Is(error, std::errc::read_only_file_system)) {
    return "the folder is read-only";
  }
  if (Is(error, std::errc::no_such_file_or_directory) ||
      Is(error, std::errc::not_a_directory)) {
    return "the folder does not exist";
  }
  return WriteFailureReason(error);
}

// ".NAME.XXXXXXXX.saving", built as a path: the target's name keeps its
// letters on every system (no round trip through the local code page).
fs::path TemporaryName(const fs::path& target, std::minstd_rand& random) {
  static constexpr char kHex[] = "0123456789abcdef";
  std::uniform_int_distribution<int> digit(0, 15);
  std::string tail = ".";
  for (int i = 0; i < 8; ++i) tail += kHex[digit(random)];
  tail += ".saving";
  fs::path name = ".";
  name += target.filename();
  name += tail;
  return name;
}

WriteOutcome Failed(std::error_code error, std::string reason) {
  return {error, std::move(reason)};
}

}  // namespace

std::string SystemWords(std::error_code error) {
  std::string words = error.message();
  if (words.empty()) return "the system refused it";
  // The system's words start a sentence; here they end one.
  if (words[0] >= 'A' && words[0] <= 'Z') {
    words[0] = static_cast<char>(words[0] - 'A' + 'a');
  }
  while (!words.empty() && (words.back() == '.' || words.back() == ' ')) {
    words.pop_back();
  }
  return words;
}

std::string WriteFailureReason(std::error_code error) {
  if (Is(error, std::errc::no_space_on_device)) return "the disk is full";
#ifdef EDQUOT
  if (error.category() == std::generic_category() && error.value() == EDQUOT) {
    return "the disk is full";
  }
#endif
  if (Is(error, std::errc::file_too_large)) return "the file is too large";
  if (Is(error, std::errc::read_only_file_system)) {
    return "the disk is read-only";
  }
  if (Is(error, std::errc::permission_denied) ||
      Is(error, std::errc::operation_not_permitted)) {
    return "permission denied";
  }
  if (Is(error, std::errc::is_a_directory)) return "it is a folder";
  if (Is(error, std::errc::io_error)) return "the disk could not be written";
  return SystemWords(error);
}

fs::path WriteDestination(FileOps& files, const fs::path& path) {
  fs::path at = path;
  for (int i = 0; i < kMostLinks; ++i) {
    std::optional<fs::path> next = files.LinkTarget(at);
    if (!next) return at;
    at = next->is_absolute() ? *next : at.parent_path() / *next;
  }
  return at;
}

WriteOutcome SafeWrite(FileOps& files, const fs::path& target,
                       std::string_view data) {
  const fs::path destination = WriteDestination(files, target);
  if (files.LinkTarget(destination)) {
    return Failed(
        std::make_error_code(std::errc::too_many_symbolic_link_levels),
        "its links go round in a circle");
  }
  FileFacts facts;
  if (const std::error_code error = files.Inspect(destination, facts)) {
    return Failed(error, WriteFailureReason(error));
  }
  if (facts.exists && !facts.regular) {
    return Failed(std::make_error_code(std::errc::is_a_directory),
                  "it is not a plain file");
  }
  if (facts.exists && !facts.writable) {
    return Failed(std::make_error_code(std::errc::permission_denied),
                  "the file is read-only");
  }

  fs::path folder = destination.parent_path();
  std::random_device seed;
  // A small engine: the name need only differ from another copy's, which
  // the exclusive create checks anyway, and a Mersenne twister's 2.5 KB of
  // state costs more to seed than the rest of a small save.
  std::minstd_rand random(seed());
  fs::path temporary;
  FileHandle handle = 0;
  std::error_code error;
  for (int i = 0; i < kMostNames; ++i) {
    temporary = folder / TemporaryName(destination, random);
    error = files.CreateExclusive(
        temporary, facts.exists ? kPrivateMode : kNewFileMode, handle);
    if (!Is(error, std::errc::file_exists)) break;
  }
  if (error) return Failed(error, CreateFailureReason(error));

  // From here on the temporary file goes again whatever fails.
  const auto give_up = [&](std::error_code why, bool open) {
    if (open) files.Close(handle);
    files.Remove(temporary);
    return Failed(why, WriteFailureReason(why));
  };
  if (facts.exists) {
    if ((error = files.SetMode(handle, facts.mode)))
      return give_up(error, true);
  }
  if ((error = files.Write(handle, data.data(), data.size()))) {
    return give_up(error, true);
  }
  if ((error = files.Sync(handle))) return give_up(error, true);
  if ((error = files.Close(handle))) return give_up(error, false);
  if ((error = files.Rename(temporary, destination))) {
    return give_up(error, false);
  }
  // The new file is in place; a folder that cannot be synced changes
  // nothing the user could act on.
  files.SyncFolder(folder.empty() ? fs::path(".") : folder);
  return {};
}

}  // namespace brenko
