// The random user's memory files: saving anywhere the dialog allows, and
// opening files the program wrote as well as files damaged in every way a
// file can be (short, cut mid-line, odd line ends, numbers that do not fit,
// stray bytes).

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "core/commands/menus.h"
#include "core/shell/random_user.h"

namespace brenko::testing_support {

namespace {

constexpr const char* kNumberLines[] = {
    " 1575 ",     " 1635 ",  "-30 ",  " 6000 ",      " 4000 ",
    "",           "abc",     "1e309", "99999999999", "-2147483649",
    "2147483647", " 32767 ", "32768", "-32768",      " 1200.5 ",
    "&H10",       "1,5",     "nan",   "inf",         "  3 4 ",
    "-0",         " 2.5 ",   " 3.5 ", "1e4",         " 1935 "};

constexpr const char* kLineEnds[] = {"\r\n", "\r\n", "\r\n", "\n", "\r", ""};

}  // namespace

void RandomUser::WriteBrokenMemoryFile(const std::filesystem::path& path) {
  std::vector<std::string> lines;
  auto number = [&]() -> std::string {
    if (Chance(30)) return std::to_string(Below(70000) - 20000);
    return kNumberLines[Below(static_cast<int>(std::size(kNumberLines)))];
  };
  for (int i = 0; i < 4; ++i) lines.push_back(number());
  const int records = Below(8);
  lines.push_back(Chance(70) ? " " + std::to_string(records) + " " : number());
  lines.push_back(number());
  for (int i = 0; i < records; ++i) {
    lines.push_back(AnyText());
    lines.push_back(AnyText());
  }

  std::string content;
  for (const std::string& line : lines) {
    content += line;
    content += kLineEnds[Below(static_cast<int>(std::size(kLineEnds)))];
  }
  if (Chance(25) && !content.empty()) {
    content.resize(
        static_cast<size_t>(Below(static_cast<int>(content.size()))));
  }
  if (Chance(10)) {
    // Stray bytes anywhere, the zero byte included.
    for (int i = 0; i < 5 && !content.empty(); ++i) {
      content[static_cast<size_t>(Below(static_cast<int>(content.size())))] =
          static_cast<char>(Below(256));
    }
  }
  if (Chance(5)) content.clear();
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << content;
}

void RandomUser::MemoryFile() {
  const int pick = Below(10);
  if (pick < 5) {
    const std::filesystem::path path =
        folder_ / (Chance(50) ? "broken.mem" : "broken.two.mem");
    WriteBrokenMemoryFile(path);
    if (Chance(80)) {
      Queue(QueuedAnswer::Kind::kYes);
      Queue(QueuedAnswer::Kind::kFile, path.string());
    } else {
      QueueAnswers();
    }
    last_ = "mnuOpen broken " + path.filename().string();
    RunMenuCommand(app_, "mnuOpen");
  } else if (pick < 8) {
    const std::string path = AnyPath();
    Queue(QueuedAnswer::Kind::kFile, path);
    const char* command = Chance(50) ? "mnuSave" : "mnuSaveAs";
    last_ = std::string(command) + " " + path;
    RunMenuCommand(app_, command);
  } else {
    // Back what the program saved before (or nothing, when it saved none).
    const std::string path = AnyPath();
    Queue(Chance(80) ? QueuedAnswer::Kind::kYes : QueuedAnswer::Kind::kNo);
    Queue(QueuedAnswer::Kind::kFile, path);
    last_ = "mnuOpen " + path;
    RunMenuCommand(app_, "mnuOpen");
  }
}

}  // namespace brenko::testing_support
