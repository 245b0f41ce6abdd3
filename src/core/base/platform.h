#pragma once
// Everything outside the program's own state goes through this interface: the
// Qt program implements it with real dialogs and a printer, tests and the
// scenario runner with a scripted fake that records what happened.

#include <filesystem>
#include <optional>
#include <string>

#include "core/base/file_ops.h"
#include "core/base/window_model.h"

namespace brenko {

enum class MsgButtons { kOk, kOkCancel, kYesNo };
enum class MsgIcon { kNone, kCritical, kQuestion, kExclamation, kInformation };
enum class MsgAnswer { kOk, kCancel, kYes, kNo };
// Where a print command's documents go: to the printer chosen, nowhere
// (the user cancelled), or nowhere because there is no printer.
enum class PrintJob { kPrint, kCancelled, kNoPrinter };

// The windows that can be asked to stay on top. Memory windows are addressed
// by their number.
enum class WindowKind { kCalculator, kTape, kConverter, kMainFrame, kMemory };
struct WindowRef {
  WindowKind kind = WindowKind::kCalculator;
  int memoryNumber = 0;
  bool operator==(const WindowRef&) const = default;
};

struct FileDialogRequest {
  std::string title;
  std::string filter;            // "Memory (*.mem)|*.mem|all files (*.*)|*.*"
  std::string defaultExtension;  // "mem"
  std::filesystem::path initialFolder;
};

struct InputPromptRequest {
  std::string title;   // "Named Memory"
  std::string prompt;  // "Enter a name for this memory cell:"
  std::string text;    // pre-filled answer, wholly selected
};

struct AboutInfo {
  std::string title;
  std::string version;  // "Version 1.0.0"
  std::string description;
  std::string disclaimer;
};

struct ScreenInfo {
  int widthPixels = 1920;
  int heightPixels = 1080;
  double twipsPerPixelX = 15;
  double twipsPerPixelY = 15;
  float WidthTwips() const {
    return static_cast<float>(widthPixels * twipsPerPixelX);
  }
  float HeightTwips() const {
    return static_cast<float>(heightPixels * twipsPerPixelY);
  }
  bool operator==(const ScreenInfo&) const = default;
};

class Platform {
 public:
  virtual ~Platform() = default;

  virtual void Beep() = 0;
  virtual MsgAnswer MessageBox(const std::string& text,
                               const std::string& title, MsgButtons buttons,
                               MsgIcon icon) = 0;
  // Returns the picked colour, or nothing when the user cancelled.
  virtual std::optional<ColorNumber> PickColor(ColorNumber initial) = 0;
  // Return the chosen path, or nothing when the user cancelled.
  virtual std::optional<std::filesystem::path> OpenFileDialog(
      const FileDialogRequest& request) = 0;
  virtual std::optional<std::filesystem::path> SaveFileDialog(
      const FileDialogRequest& request) = 0;
  // The modal one-line prompt (frmInput). The empty text means cancelled.
  virtual std::string InputPrompt(const InputPromptRequest& request) = 0;
  // Shows the About box modally and returns when it is closed.
  virtual void ShowAbout(const AboutInfo& info) = 0;
  // Opens the calculator's context menu mnuPopup1 at the pointer.
  virtual void ShowPopupMenu(const std::string& menuName) = 0;
  virtual void SetTopmost(WindowRef window, bool onTop) = 0;
  // Opens the user manual at its contents.
  virtual void ShowHelp(const std::filesystem::path& helpFile) = 0;
  // Starts the desktop's system-information program; false when none is
  // installed.
  virtual bool StartSysInfo() = 0;
  virtual ScreenInfo Screen() = 0;
  // The file system, as saving a file needs it.
  virtual FileOps& Files() = 0;

  // One print command's documents form one job: the platform may ask where
  // they go (a print dialog) once, here. A platform that prints without
  // asking has nothing to do.
  virtual PrintJob BeginPrintJob() { return PrintJob::kPrint; }
  virtual void EndPrintJob() {}
  // Printer: one document per EndDoc. Without a printer these do nothing.
  virtual void PrinterSetFont(const std::string& name, double points) = 0;
  virtual void PrinterPrintLine(const std::string& line) = 0;
  virtual void PrinterEndDoc() = 0;
};

}  // namespace brenko
