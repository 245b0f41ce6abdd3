// The program's life with its settings file: closing the calculator runs the
// shutdown, which writes the settings, and the next start reads them back.

#include <QCloseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <fstream>
#include <sstream>

#include "core/commands/menus.h"
#include "core/shell/ini_settings_store.h"
#include "os/system_file_ops.h"
#include "program.h"
#include "ui/paths.h"
#include "ui/twips.h"

namespace {

// The settings file comes first, so that the program can read it.
struct SettingsFile {
  explicit SettingsFile(const std::filesystem::path& file)
      : settings(file, files) {}
  brenko::os::SystemFileOps files;
  brenko::IniSettingsStore settings;
};

struct FileProgram : SettingsFile, brenko::ui::testing::Program {
  explicit FileProgram(const std::filesystem::path& file)
      : SettingsFile(file), Program(settings) {}
};

std::string Read(const std::filesystem::path& file) {
  std::ifstream in(file);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

}  // namespace

class SettingsShutdownTest : public QObject {
  Q_OBJECT

 private slots:
  void closingTheCalculatorWritesTheSettings() {
    QTemporaryDir dir;
    const std::filesystem::path file =
        brenko::ui::ToPath(dir.filePath(QStringLiteral("Brenko.ini")));
    {
      FileProgram p(file);
      p.windows.Run(
          [](brenko::App& a) { brenko::RunMenuCommand(a, "ZoomSmall"); });
      p.windows.Calculator()->close();
      QVERIFY(p.windows.ShuttingDown());
      QVERIFY(!p.windows.Calculator()->isVisible());
      QVERIFY(p.settings.Flush());
    }
    const std::string text = Read(file);
    QVERIFY2(text.find("[Settings]") != std::string::npos, text.c_str());
    QVERIFY2(text.find("Zoom=True") != std::string::npos, text.c_str());
    QVERIFY2(text.find("CalcBackground= 8421376") != std::string::npos,
             text.c_str());
    FileProgram again(file);
    QVERIFY(again.app.menus.IsChecked(brenko::MenuId::ZoomSmall));
    QVERIFY(again.windows.Calculator()->width() <
            brenko::ui::TwipsToPixels(3615 - 120, 15));
  }

  void exitFromTheMenuEndsTheProgramOnce() {
    QTemporaryDir dir;
    FileProgram p(
        brenko::ui::ToPath(dir.filePath(QStringLiteral("Brenko.ini"))));
    p.windows.Run([](brenko::App& a) { brenko::RunMenuCommand(a, "Exit"); });
    QVERIFY(p.windows.ShuttingDown());
    QVERIFY(p.app.shell.quitRequested);
    // A second close (the window manager's) changes nothing more.
    p.windows.Shutdown();
    QVERIFY(p.settings.Get("Settings", "ShowKeys").has_value());
  }

  void startUpLeavesTheSettingsFileAlone() {
    QTemporaryDir dir;
    const std::filesystem::path file =
        brenko::ui::ToPath(dir.filePath(QStringLiteral("Brenko.ini")));
    FileProgram p(file);
    QVERIFY(!std::filesystem::exists(file));
  }
};

QTEST_MAIN(SettingsShutdownTest)
#include "settings_shutdown_test.moc"
