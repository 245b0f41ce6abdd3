#pragma once
// The platform services of the program done with Qt: beep, message boxes,
// the common dialogs, the input prompt and About box, the context menus,
// stay-on-top, the help window, the system-information program, the screen
// and the printer. Heavy Qt objects (printer, dialogs, help browser) are made
// only when first used, so they cost nothing at start-up.

#include <QPointer>
#include <QString>
#include <filesystem>
#include <memory>
#include <vector>

#include "core/base/platform.h"
#include "os/system_file_ops.h"

class QWidget;

namespace brenko::ui {

class AppWindows;
class HelpWindow;
class TapePrinter;

// "Memory (*.mem)|*.mem|all files (*.*)|*.*" -> "Memory (*.mem);;all files
// (*.*)": the descriptions of the pairs, joined as Qt wants them.
QString ToQtFilter(const std::string& filter);

class QtPlatform : public Platform {
 public:
  QtPlatform();
  ~QtPlatform() override;

  // The window owner, told once it exists (the App needs the platform first).
  void SetWindows(AppWindows* windows) { windows_ = windows; }
  AppWindows* Windows() const { return windows_; }

  void Beep() override;
  MsgAnswer MessageBox(const std::string& text, const std::string& title,
                       MsgButtons buttons, MsgIcon icon) override;
  std::optional<ColorNumber> PickColor(ColorNumber initial) override;
  std::optional<std::filesystem::path> OpenFileDialog(
      const FileDialogRequest& request) override;
  std::optional<std::filesystem::path> SaveFileDialog(
      const FileDialogRequest& request) override;
  std::string InputPrompt(const InputPromptRequest& request) override;
  void ShowAbout(const AboutInfo& info) override;
  void ShowPopupMenu(const std::string& menuName) override;
  void SetTopmost(WindowRef window, bool onTop) override;
  void ShowHelp(const std::filesystem::path& helpFile) override;
  bool StartSysInfo() override;
  ScreenInfo Screen() override;
  FileOps& Files() override { return files_; }
  void PrinterSetFont(const std::string& name, double points) override;
  void PrinterPrintLine(const std::string& line) override;
  void PrinterEndDoc() override;
  // The print dialog, once per print command; none when printing goes to
  // a file (tests).
  PrintJob BeginPrintJob() override;
  void EndPrintJob() override;

  // Applies the stay-on-top state asked for a window to its Qt window (used
  // when the window is made after the request).
  void ApplyTopmost(WindowRef ref, QWidget* window);
  bool IsTopmost(WindowRef ref) const;

  // Printing goes to this PDF file instead of the default printer (tests).
  void SetPrintToFile(const QString& path);
  TapePrinter& Printer();

  // The programs StartSysInfo looks for on PATH, in order of preference.
  static const std::vector<QString>& SysInfoPrograms();

 private:
  // The window dialogs are shown over; nullptr before the calculator exists.
  QWidget* DialogParent() const;

  AppWindows* windows_ = nullptr;
  os::SystemFileOps files_;
  std::vector<std::pair<WindowRef, bool>> topmost_;
  std::unique_ptr<TapePrinter> printer_;
  QString printFile_;
  QPointer<HelpWindow> help_;
};

}  // namespace brenko::ui
