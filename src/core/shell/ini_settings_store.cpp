#include "core/shell/ini_settings_store.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <system_error>

namespace brenko {

namespace {

std::string Trim(const std::string& text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string::npos) return "";
  const auto last = text.find_last_not_of(" \t");
  return text.substr(first, last - first + 1);
}

// A value is one line of the file; a line break inside it would split it, so
// it is written as a blank.
std::string OneLine(const std::string& value) {
  std::string line = value;
  for (char& c : line) {
    if (c == '\n' || c == '\r') c = ' ';
  }
  return line;
}

}  // namespace

IniSettingsStore::IniSettingsStore(std::filesystem::path path)
    : path_(std::move(path)) {
  Load();
}

void IniSettingsStore::Load() {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path_, error)) return;
  std::string text;
  // A read that fails half-way (the file vanishes, a device error) leaves the
  // store empty rather than half read.
  try {
    std::ifstream in(path_, std::ios::binary);
    if (!in) return;
    text.assign(std::istreambuf_iterator<char>(in),
                std::istreambuf_iterator<char>());
    if (in.bad()) return;
  } catch (...) {
    return;
  }
  // Not a text file: better to start from the defaults than to read noise.
  if (text.find('\0') != std::string::npos) return;
  if (text.rfind("\xEF\xBB\xBF", 0) == 0) text.erase(0, 3);

  Section* current = nullptr;
  std::istringstream lines(text);
  std::string line;
  while (std::getline(lines, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::string trimmed = Trim(line);
    if (trimmed.empty() || trimmed[0] == ';' || trimmed[0] == '#') continue;
    if (trimmed.front() == '[' && trimmed.back() == ']') {
      const std::string name = Trim(trimmed.substr(1, trimmed.size() - 2));
      current = name.empty() ? nullptr : &SectionNamed(name);
      continue;
    }
    const auto equals = line.find('=');
    if (current == nullptr || equals == std::string::npos) continue;
    const std::string key = Trim(line.substr(0, equals));
    if (key.empty()) continue;
    // The value is kept as written: colour numbers start with a blank.
    Put(*current, key, line.substr(equals + 1));
  }
  dirty_ = false;
}

IniSettingsStore::Section& IniSettingsStore::SectionNamed(
    const std::string& name) {
  const std::string folded = FoldCase(name);
  for (Section& s : sections_) {
    if (FoldCase(s.name) == folded) return s;
  }
  sections_.push_back({name, {}});
  return sections_.back();
}

void IniSettingsStore::Put(Section& section, const std::string& key,
                           const std::string& value) {
  const std::string folded = FoldCase(key);
  for (Entry& e : section.entries) {
    if (FoldCase(e.key) == folded) {
      if (e.value != value) dirty_ = true;
      e.value = value;
      return;
    }
  }
  section.entries.push_back({key, value});
  dirty_ = true;
}

std::optional<std::string> IniSettingsStore::Get(const std::string& section,
                                                 const std::string& key) const {
  const std::string s = FoldCase(section);
  const std::string k = FoldCase(key);
  for (const Section& sec : sections_) {
    if (FoldCase(sec.name) != s) continue;
    for (const Entry& e : sec.entries) {
      if (FoldCase(e.key) == k) return e.value;
    }
  }
  return std::nullopt;
}

void IniSettingsStore::Save(const std::string& section, const std::string& key,
                            const std::string& value) {
  const std::string name = OneLine(Trim(section));
  const std::string k = OneLine(Trim(key));
  if (name.empty() || k.empty()) return;
  Put(SectionNamed(name), k, OneLine(value));
}

std::string IniSettingsStore::Text() const {
  std::string text;
  for (const Section& s : sections_) {
    if (s.entries.empty()) continue;
    if (!text.empty()) text += '\n';
    text += '[' + s.name + "]\n";
    for (const Entry& e : s.entries) text += e.key + '=' + e.value + '\n';
  }
  return text;
}

bool IniSettingsStore::Flush() {
  std::error_code error;
  if (!dirty_ && std::filesystem::exists(path_, error)) return true;
  if (path_.has_parent_path()) {
    std::filesystem::create_directories(path_.parent_path(), error);
  }
  std::filesystem::path temporary = path_;
  temporary += ".new";
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    const std::string text = Text();
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.flush();
    if (!out) {
      out.close();
      std::filesystem::remove(temporary, error);
      return false;
    }
  }
  std::filesystem::rename(temporary, path_, error);
  if (error) {
    std::filesystem::remove(temporary, error);
    return false;
  }
  dirty_ = false;
  return true;
}

}  // namespace brenko
