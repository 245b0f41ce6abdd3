// A settings file of any bytes read by the program's store. Whatever the
// file held, the keys the program then writes read back exactly at the next
// start, and a usable file's other keys come back as they were read.

#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>

#include "core/shell/ini_settings_store.h"
#include "fuzz_check.h"
#include "os/system_file_ops.h"

namespace {

namespace fs = std::filesystem;

// Keys the start-up reads, some in a case the program does not write, one
// that is nobody's; `written` when the run below writes it (in any case).
struct Key {
  const char* section;
  const char* key;
  bool written;
};

constexpr std::array<Key, 8> kReadKeys = {{{"Settings", "Accuracy", true},
                                           {"Settings", "ShowKeys", false},
                                           {"settings", "zoom", true},
                                           {"Settings", "CalcTop", false},
                                           {"Colors", "ConvResult", false},
                                           {"COLORS", "calcbackground", true},
                                           {"Other", "Key", false},
                                           {"", "", false}}};

struct Written {
  const char* section;
  const char* key;
  const char* value;
};

constexpr std::array<Written, 4> kWrittenKeys = {
    {{"Settings", "Zoom", "75"},
     {"Settings", "Accuracy", "32"},
     {"Colors", "CalcBackGround", "8421376"},
     {"Settings", "MemoryFolder", "/home/a user/jobs [old]=1;x"}}};

// The system's files without fsync: durability is not what is fuzzed here,
// and a sync per input would cut the runs to a few dozen a second.
class UnsyncedFiles : public brenko::os::SystemFileOps {
 public:
  std::error_code Sync(brenko::FileHandle) override { return {}; }
  std::error_code SyncFolder(const fs::path&) override { return {}; }
};

// One folder per fuzzing process, made once (making and removing a folder
// per input costs more than the rest of the run), removed when the process
// ends normally; scripts/fuzz removes its whole scratch folder in any case.
class ScratchFolder {
 public:
  ScratchFolder()
      : path_(fs::temp_directory_path() /
              ("brenko-settings-fuzz-" + std::to_string(::getpid()))) {
    fs::create_directories(path_);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

const fs::path& Folder() {
  static const ScratchFolder folder;
  return folder.Path();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  std::error_code ignored;
  fs::remove(Folder() / "Brenko.ini.bad", ignored);
  const fs::path path = Folder() / "Brenko.ini";
  {
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(data),
              static_cast<std::streamsize>(size));
  }
  UnsyncedFiles files;

  std::array<std::optional<std::string>, kReadKeys.size()> before;
  bool usable = false;
  {
    brenko::IniSettingsStore store(path, files);
    usable = store.ReadProblem().empty();
    for (std::size_t i = 0; i < kReadKeys.size(); ++i) {
      before[i] = store.Get(kReadKeys[i].section, kReadKeys[i].key);
    }
    store.Text();
    for (const Written& w : kWrittenKeys) store.Save(w.section, w.key, w.value);
    BRENKO_FUZZ_CHECK(store.Flush());
  }

  brenko::IniSettingsStore next(path, files);
  BRENKO_FUZZ_CHECK(next.ReadProblem().empty());
  for (const Written& w : kWrittenKeys) {
    BRENKO_FUZZ_CHECK(next.Get(w.section, w.key) == std::string(w.value));
  }
  if (usable) {
    for (std::size_t i = 0; i < kReadKeys.size(); ++i) {
      if (kReadKeys[i].written) continue;
      BRENKO_FUZZ_CHECK(next.Get(kReadKeys[i].section, kReadKeys[i].key) ==
                        before[i]);
    }
  }
  return 0;
}
