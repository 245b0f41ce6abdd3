#pragma once
// The program's command line. It is read before any window system is
// touched, so that --help and --version work where there is no display and
// a mistyped option never opens a window.

#include <QString>
#include <QStringList>

namespace brenko::ui {

struct CommandLine {
  enum class Action { kRun, kHelp, kVersion, kUsageError };
  Action action = Action::kRun;
  // kRun: the memory file to open once the calculator is up, as an absolute
  // path; empty for none.
  QString memoryFile;
  // kUsageError: what was wrong, one sentence.
  QString error;
};

// `arguments` as the program received them, its own name first.
CommandLine ParseCommandLine(const QStringList& arguments);

// What --help prints; also printed, to standard error, after a usage error.
QString UsageText();
// What --version prints: "brenko 1.0.0" and a line end.
QString VersionText();

// Exit statuses beside 0.
inline constexpr int kExitNoDisplay = 1;
inline constexpr int kExitUsage = 2;

}  // namespace brenko::ui
