#pragma once
// A folder of a test's own in the system's temporary folder: made empty
// with a random name, removed with all it holds when the test ends (its
// permissions given back first, for a test that took them away). Files in
// it are named relative to it.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "core/base/path_text.h"

namespace brenko::testing_support {

class ScratchFolder {
 public:
  // The folder's name is `prefix` and a random number.
  explicit ScratchFolder(std::string_view prefix = "brenko-test-") {
    std::random_device rd;
    folder_ =
        std::filesystem::temp_directory_path() /
        (std::string(prefix) + std::to_string(rd()) + std::to_string(rd()));
    std::filesystem::create_directories(folder_);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::permissions(folder_, std::filesystem::perms::owner_all,
                                 ignored);
    std::filesystem::remove_all(folder_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& Folder() const { return folder_; }

  // `name` (a file's name, or a path below the folder) in the folder.
  std::filesystem::path Path(const std::filesystem::path& name) const {
    return folder_ / name;
  }

  // Writes `bytes` as the whole file `name`, making the folders on its way.
  void Write(const std::filesystem::path& name, std::string_view bytes) const {
    const std::filesystem::path path = Path(name);
    std::error_code ignored;
    std::filesystem::create_directories(path.parent_path(), ignored);
    std::ofstream out(path, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }

  // The whole file `name`; empty when it cannot be read.
  std::string Read(const std::filesystem::path& name) const {
    std::ifstream in(Path(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }

  // The names of what the folder holds (not below it), each as UTF-8 text,
  // sorted.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
      names.push_back(PathText(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace brenko::testing_support
