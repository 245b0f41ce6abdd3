// Brenko Calculator: builds the program's state, the Qt platform and the
// windows, runs the calculator's start-up and the event loop, and makes the
// settings permanent once the shutdown has written them.
#include <QApplication>
#include <QCoreApplication>

#include "core/commands/app.h"
#include "core/commands/startup.h"
#include "core/shell/ini_settings_store.h"
#include "ui/app_icon.h"
#include "ui/app_windows.h"
#include "ui/qt_platform.h"

int main(int argc, char** argv) {
  QApplication qapp(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Brenko"));
  QApplication::setApplicationDisplayName(QStringLiteral("Brenko Calculator"));
  QApplication::setWindowIcon(brenko::ui::AppIcon());
  // The calculator ends when its own window closes, not when the last
  // window does (the tape and the frame may still be about).
  QApplication::setQuitOnLastWindowClosed(false);

  brenko::ui::QtPlatform platform;
  brenko::IniSettingsStore settings(brenko::IniSettingsStore::DefaultPath());
  brenko::App app(platform, settings);
  app.shell.programFolder =
      QCoreApplication::applicationDirPath().toStdString();
  brenko::ui::AppWindows windows(app, platform);

  windows.Run([](brenko::App& a) { brenko::Form_Load(a); });
  const int status = windows.ShuttingDown() ? 0 : QApplication::exec();
  settings.Flush();
  return status;
}
