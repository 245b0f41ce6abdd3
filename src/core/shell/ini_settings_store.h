#pragma once
// The settings store of the program: one INI-style text file per user, with
// the sections [Settings] and [Colors]. Where the file lives is the
// desktop's business: the Qt layer finds the place and hands it over. The
// file is read once when the store is made and written only by Flush(),
// which the shutdown calls after the last setting has been saved; the new
// text replaces the old file safely (SafeWrite), so a crash while writing
// never leaves half a file behind. Keys and comments the program does not
// know are kept as they were.

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/base/file_ops.h"
#include "core/base/settings_store.h"

namespace brenko {

// A settings file larger than this is not the program's: it is not read.
inline constexpr std::uintmax_t kMostSettingsBytes = 1024 * 1024;

class IniSettingsStore : public SettingsStore {
 public:
  // Reads `path` in one pass. A missing file gives an empty store; lines
  // that are neither "[Section]" nor "Key=Value" are kept but mean nothing.
  // A file the program cannot use (unreadable, not text, too large) is put
  // aside as "Brenko.ini.bad" beside it, so that writing the settings never
  // replaces it, and the store starts empty. Never throws.
  IniSettingsStore(std::filesystem::path path, FileOps& files);

  std::optional<std::string> Get(const std::string& section,
                                 const std::string& key) const override;
  void Save(const std::string& section, const std::string& key,
            const std::string& value) override;
  // Writes the file when something was saved since it was read; false when
  // the file could not be written (the old file then stays as it was).
  bool Flush() override;
  std::string ReadProblem() const override { return problem_; }

  // The file's text as Flush() would write it.
  std::string Text() const;
  const std::filesystem::path& Path() const { return path_; }
  // Where an unusable file is put aside.
  std::filesystem::path BadPath() const;

 private:
  // A line of a section: a key and its value, or a line kept as it was
  // (a comment, or one the program cannot read).
  struct Line {
    std::string key, value;
    bool kept = false;
  };
  struct Section {
    std::string name;
    std::vector<Line> lines;
    std::unordered_map<std::string, std::size_t> keys;  // folded key -> line
  };
  void Load();
  void ParseText(const std::string& text);
  void SetAside(const std::string& reason);
  Section& SectionNamed(const std::string& name);
  const Section* FindSection(const std::string& name) const;
  void Put(Section& section, const std::string& key, const std::string& value);

  std::filesystem::path path_;
  FileOps& files_;
  std::vector<std::string> preamble_;  // kept lines before the first section
  std::vector<Section> sections_;
  std::unordered_map<std::string, std::size_t> sectionIndex_;
  bool dirty_ = false;
  // The file could not be read nor put aside: it is left alone.
  bool leaveFileAlone_ = false;
  std::string problem_;
};

}  // namespace brenko
