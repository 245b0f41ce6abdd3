#pragma once
// The settings store of the program: one INI-style text file per user, with
// the sections [Settings] and [Colors]. Where the file lives is the
// desktop's business: the Qt layer finds the place and hands it over. The file
// is read once when the store is made and written only by Flush(), which the
// shutdown calls after the last setting has been saved; the new text replaces
// the old file in one rename, so a crash while writing never leaves half a file
// behind.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/base/settings_store.h"

namespace brenko {

class IniSettingsStore : public SettingsStore {
 public:
  // Reads `path`. A missing or unreadable file, or one that is not text,
  // gives an empty store; lines that are neither "[Section]" nor
  // "Key=Value" are passed over. Never throws.
  explicit IniSettingsStore(std::filesystem::path path);

  std::optional<std::string> Get(const std::string& section,
                                 const std::string& key) const override;
  void Save(const std::string& section, const std::string& key,
            const std::string& value) override;
  // Writes the file when something was saved since it was read; false when
  // the file could not be written (the old file then stays as it was).
  bool Flush() override;

  // The file's text as Flush() would write it.
  std::string Text() const;
  const std::filesystem::path& Path() const { return path_; }

 private:
  struct Entry {
    std::string key, value;
  };
  struct Section {
    std::string name;
    std::vector<Entry> entries;
  };
  void Load();
  Section& SectionNamed(const std::string& name);
  void Put(Section& section, const std::string& key, const std::string& value);

  std::filesystem::path path_;
  std::vector<Section> sections_;
  bool dirty_ = false;
};

}  // namespace brenko
