// Brenko Calculator: reads the command line, builds the program's state, the
// Qt platform and the windows, runs the calculator's start-up (and opens the
// memory file the command line names) and the event loop, and makes the
// settings permanent once the shutdown has written them.
#include <QApplication>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QStringList>
#include <cstdio>
#include <filesystem>

#include "core/commands/app.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/startup.h"
#include "core/shell/ini_settings_store.h"
#include "core/shell/version.h"
#include "os/stack_room.h"
#include "ui/app_icon.h"
#include "ui/app_windows.h"
#include "ui/calculator_window.h"
#include "ui/command_line.h"
#include "ui/ending_signals.h"
#include "ui/no_display.h"
#include "ui/paths.h"
#include "ui/qt_platform.h"

namespace {

void Print(std::FILE* stream, const QString& text) {
  std::fputs(text.toLocal8Bit().constData(), stream);
}

}  // namespace

int main(int argc, char** argv) {
  // Before anything else, while this is the only thread.
  brenko::os::MakeStackRoom();
  using brenko::ui::CommandLine;
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  const CommandLine command = brenko::ui::ParseCommandLine(arguments);
  switch (command.action) {
    case CommandLine::Action::kHelp:
      Print(stdout, brenko::ui::UsageText());
      return 0;
    case CommandLine::Action::kVersion:
      Print(stdout, brenko::ui::VersionText());
      return 0;
    case CommandLine::Action::kUsageError:
      Print(stderr, QStringLiteral("brenko: ") + command.error +
                        QStringLiteral("\n\n") + brenko::ui::UsageText());
      return brenko::ui::kExitUsage;
    case CommandLine::Action::kRun:
      break;
  }
  if (!brenko::ui::DisplayReachable(brenko::ui::ReadDisplayEnvironment())) {
    std::fputs(brenko::ui::kNoDisplayMessage, stderr);
    return brenko::ui::kExitNoDisplay;
  }

  QCoreApplication::setApplicationName(QStringLiteral("Brenko"));
  QCoreApplication::setOrganizationName(QStringLiteral("Brenko"));
  QCoreApplication::setOrganizationDomain(QStringLiteral("brenko.org"));
  QCoreApplication::setApplicationVersion(
      QString::fromStdString(brenko::ProgramVersion()));
  // Ties the windows to the installed desktop entry (Wayland's app id, the
  // desktop's grouping and icon).
  QGuiApplication::setDesktopFileName(brenko::ui::kApplicationId);
  // Every window's title is its own caption: with a display name Qt would
  // add " — " and the name to each, and narrow windows would show "Conv…".
  QGuiApplication::setApplicationDisplayName(QString());

  // The command line has been read already: Qt sees only the program's name,
  // so a memory file's name is never taken for one of Qt's own options.
  int qtArgc = 1;
  brenko::ui::ExitQuietlyIfNoDisplay();
  QApplication qapp(qtArgc, argv);
  brenko::ui::EndNoDisplayWatch();
  // The compiled-in icon at once; the theme's picture, if it has one, once
  // the calculator is on screen (asking the theme costs a few milliseconds).
  QApplication::setWindowIcon(brenko::ui::CompiledAppIcon());
  // The calculator ends when its own window closes, not when the last
  // window does (the tape and the frame may still be about).
  QApplication::setQuitOnLastWindowClosed(false);

  brenko::ui::QtPlatform platform;
  brenko::IniSettingsStore settings(brenko::ui::SettingsFile(),
                                    platform.Files());
  brenko::App app(platform, settings);
  app.shell.programFolder = brenko::ui::ProgramFolder();
  app.shell.documentsFolder = brenko::ui::ToPath(
      QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  brenko::ui::AppWindows windows(app, platform);
  // A kill, the terminal closing or the session ending saves as Exit does.
  // Every event loop is left, a dialog's too (a message box may be up
  // before the main loop has started).
  brenko::ui::EndingSignals endings([&windows] {
    windows.Shutdown();
    QCoreApplication::exit(0);
  });

  windows.Run([](brenko::App& a) { brenko::Form_Load(a); });
  if (!command.memoryFile.isEmpty() && !windows.ShuttingDown()) {
    const std::filesystem::path path = brenko::ui::ToPath(command.memoryFile);
    windows.Run(
        [&path](brenko::App& a) { brenko::OpenMemoryFilePath(a, path); });
  }
  brenko::ui::AdoptThemeIconAfterFirstPaint(windows.Calculator());
  const int status = windows.ShuttingDown() ? 0 : QApplication::exec();
  settings.Flush();
  return status;
}
