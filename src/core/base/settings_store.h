#pragma once
// The per-user settings: application "Brenko", sections "Settings" and
// "Colors". Section and key names compare without regard to case, because
// two colour keys are read as "...BackGround" and written as "...Background".

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brenko {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::optional<std::string> Get(const std::string& section,
                                         const std::string& key) const = 0;
  virtual void Save(const std::string& section, const std::string& key,
                    const std::string& value) = 0;
  // Makes what was saved permanent; called once, at the end of the shutdown.
  // A store that keeps nothing beyond the run has nothing to do.
  virtual bool Flush() { return true; }
  // Why the stored settings could not be read and what became of them, in
  // a sentence or two for the user; empty when they were read.
  virtual std::string ReadProblem() const { return {}; }

  std::string GetSetting(const std::string& section, const std::string& key,
                         const std::string& fallback) const {
    auto value = Get(section, key);
    return value ? *value : fallback;
  }
};

// Lower-cases ASCII letters; the key for case-insensitive lookups.
std::string FoldCase(const std::string& text);

// The store used by tests and the scenario runner.
class MemorySettingsStore : public SettingsStore {
 public:
  std::optional<std::string> Get(const std::string& section,
                                 const std::string& key) const override;
  void Save(const std::string& section, const std::string& key,
            const std::string& value) override;
  // Sections and keys in the order they were first written, with the
  // spelling of that first write.
  struct Entry {
    std::string section, key, value;
  };
  const std::vector<Entry>& Entries() const { return entries_; }

 private:
  std::vector<Entry> entries_;
};

}  // namespace brenko
