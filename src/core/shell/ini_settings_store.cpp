#include "core/shell/ini_settings_store.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>

#include "core/base/path_text.h"
#include "core/base/safe_write.h"
#include "core/measure/blanks.h"

namespace brenko {

namespace fs = std::filesystem;

namespace {

// The settings file's blanks: hand-edited files carry tabs too.
constexpr std::string_view kSettingsBlanks = " \t";

std::string Trim(const std::string& text) {
  return std::string(TrimBlanks(text, kSettingsBlanks));
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

// Text, as far as a settings file goes: no NUL and no control character but
// tab and the line ends.
bool IsText(const std::string& text) {
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte < 0x20 && c != '\t' && c != '\r' && c != '\n') || byte == 0x7F) {
      return false;
    }
  }
  return true;
}

}  // namespace

IniSettingsStore::IniSettingsStore(fs::path path, FileOps& files)
    : path_(std::move(path)), files_(files) {
  Load();
}

fs::path IniSettingsStore::BadPath() const {
  fs::path bad = path_;
  bad += ".bad";
  return bad;
}

void IniSettingsStore::Load() {
  std::error_code error;
  const fs::file_status status = fs::status(path_, error);
  // Nothing there (or a folder in its place) is no file of the user's.
  if (status.type() != fs::file_type::regular) return;
  const std::uintmax_t size = fs::file_size(path_, error);
  if (error) {
    SetAside("it cannot be read");
    return;
  }
  if (size > kMostSettingsBytes) {
    SetAside("the file is too large");
    return;
  }
  std::string text;
  try {
    std::ifstream in(path_, std::ios::binary);
    if (!in) {
      SetAside("it cannot be read");
      return;
    }
    // Never more than the limit, whatever the file grew to meanwhile; read
    // in pieces, so that a small file costs a small buffer (a start used to
    // clear a whole megabyte for a file of a few hundred bytes).
    constexpr std::size_t kPiece = 64 * 1024;
    const std::size_t most = static_cast<std::size_t>(kMostSettingsBytes) + 1;
    while (in && text.size() < most) {
      const std::size_t had = text.size();
      text.resize(had + std::min(kPiece, most - had));
      in.read(text.data() + had,
              static_cast<std::streamsize>(text.size() - had));
      text.resize(had + static_cast<std::size_t>(in.gcount()));
    }
    if (in.bad()) {
      SetAside("it cannot be read");
      return;
    }
  } catch (...) {
    SetAside("it cannot be read");
    return;
  }
  if (text.size() > kMostSettingsBytes) {
    SetAside("the file is too large");
    return;
  }
  if (!IsText(text)) {
    SetAside("it is not a text file");
    return;
  }
  if (text.rfind("\xEF\xBB\xBF", 0) == 0) text.erase(0, 3);
  ParseText(text);
  dirty_ = false;
}

void IniSettingsStore::SetAside(const std::string& reason) {
  if (files_.Rename(path_, BadPath())) {
    leaveFileAlone_ = true;
    problem_ = "The settings could not be read (" + reason +
               "). The program starts with its defaults and leaves " +
               PathText(path_) + " as it is.";
  } else {
    problem_ = "The settings could not be read (" + reason +
               "). The program starts with its defaults; the old file was "
               "kept as " +
               PathText(BadPath()) + ".";
  }
}

// Every line end counts, CR LF, LF or a CR alone: a line is the same line
// to every reader, so what is written reads back the same.
void IniSettingsStore::ParseText(const std::string& text) {
  Section* current = nullptr;
  const std::string_view all(text);
  std::size_t start = 0;
  while (start < all.size()) {
    std::size_t end = all.find_first_of("\r\n", start);
    if (end == std::string_view::npos) end = all.size();
    const std::string_view line = all.substr(start, end - start);
    start = end + 1;
    if (end + 1 < all.size() && all[end] == '\r' && all[end + 1] == '\n') {
      ++start;
    }

    const std::string_view trimmed = TrimBlanks(line, kSettingsBlanks);
    if (trimmed.empty()) continue;
    const auto keep = [&] {
      if (current == nullptr) {
        preamble_.emplace_back(line);
      } else {
        current->lines.push_back({std::string(line), "", true});
      }
    };
    if (trimmed[0] == ';' || trimmed[0] == '#') {
      keep();
      continue;
    }
    if (trimmed.front() == '[' && trimmed.back() == ']') {
      current = &SectionNamed(std::string(
          TrimBlanks(trimmed.substr(1, trimmed.size() - 2), kSettingsBlanks)));
      continue;
    }
    const std::size_t equals = line.find('=');
    const std::string_view key =
        equals == std::string_view::npos
            ? std::string_view()
            : TrimBlanks(line.substr(0, equals), kSettingsBlanks);
    if (current == nullptr || key.empty() || current->name.empty()) {
      keep();
      continue;
    }
    // The value is kept as written: colour numbers start with a blank.
    Put(*current, std::string(key), std::string(line.substr(equals + 1)));
  }
}

IniSettingsStore::Section& IniSettingsStore::SectionNamed(
    const std::string& name) {
  const std::string folded = FoldCase(name);
  const auto found = sectionIndex_.find(folded);
  if (found != sectionIndex_.end()) return sections_[found->second];
  sectionIndex_.emplace(folded, sections_.size());
  sections_.push_back({name, {}, {}});
  return sections_.back();
}

const IniSettingsStore::Section* IniSettingsStore::FindSection(
    const std::string& name) const {
  const auto found = sectionIndex_.find(FoldCase(name));
  return found == sectionIndex_.end() ? nullptr : &sections_[found->second];
}

void IniSettingsStore::Put(Section& section, const std::string& key,
                           const std::string& value) {
  std::string folded = FoldCase(key);
  const auto found = section.keys.find(folded);
  if (found != section.keys.end()) {
    Line& line = section.lines[found->second];
    if (line.value != value) dirty_ = true;
    line.value = value;
    return;
  }
  section.keys.emplace(std::move(folded), section.lines.size());
  section.lines.push_back({key, value, false});
  dirty_ = true;
}

std::optional<std::string> IniSettingsStore::Get(const std::string& section,
                                                 const std::string& key) const {
  const Section* found = FindSection(section);
  if (found == nullptr) return std::nullopt;
  const auto line = found->keys.find(FoldCase(key));
  if (line == found->keys.end()) return std::nullopt;
  return found->lines[line->second].value;
}

void IniSettingsStore::Save(const std::string& section, const std::string& key,
                            const std::string& value) {
  const std::string name = Trim(OneLine(section));
  const std::string k = Trim(OneLine(key));
  // A name with "]" or a key with "=" would not read back as itself.
  if (name.empty() || k.empty() || name.find(']') != std::string::npos ||
      k.find('=') != std::string::npos || k[0] == '[' || k[0] == ';' ||
      k[0] == '#') {
    return;
  }
  Put(SectionNamed(name), k, OneLine(value));
}

std::string IniSettingsStore::Text() const {
  std::string text;
  for (const std::string& line : preamble_) text += line + '\n';
  for (const Section& s : sections_) {
    if (s.lines.empty()) continue;
    if (!text.empty()) text += '\n';
    text += '[' + s.name + "]\n";
    for (const Line& line : s.lines) {
      text += line.kept ? line.key : line.key + '=' + line.value;
      text += '\n';
    }
  }
  // The reader takes one byte order mark off the file's start. A first kept
  // line that itself begins with one (a file that had two) would lose it at
  // the next start and might read as a section header then: it is written
  // behind a mark of its own, so that it reads back as the line it was.
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.insert(0, kByteOrderMark);
  return text;
}

bool IniSettingsStore::Flush() {
  if (leaveFileAlone_) return false;
  std::error_code error;
  if (!dirty_ && fs::exists(path_, error)) return true;
  if (path_.has_parent_path())
    fs::create_directories(path_.parent_path(), error);
  if (!SafeWrite(files_, path_, Text()).ok()) return false;
  dirty_ = false;
  return true;
}

}  // namespace brenko
