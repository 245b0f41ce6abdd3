#include "core/base/settings_store.h"

namespace brenko {

std::string FoldCase(const std::string& text) {
  std::string folded = text;
  for (char& c : folded) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return folded;
}

std::optional<std::string> MemorySettingsStore::Get(
    const std::string& section, const std::string& key) const {
  const std::string s = FoldCase(section);
  const std::string k = FoldCase(key);
  for (const Entry& e : entries_) {
    if (FoldCase(e.section) == s && FoldCase(e.key) == k) return e.value;
  }
  return std::nullopt;
}

void MemorySettingsStore::Save(const std::string& section,
                               const std::string& key,
                               const std::string& value) {
  const std::string s = FoldCase(section);
  const std::string k = FoldCase(key);
  for (Entry& e : entries_) {
    if (FoldCase(e.section) == s && FoldCase(e.key) == k) {
      e.value = value;
      return;
    }
  }
  entries_.push_back({section, key, value});
}

}  // namespace brenko
