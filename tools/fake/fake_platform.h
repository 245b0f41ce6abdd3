#pragma once
// A platform with no display: dialogs take their answers from a queue, and
// everything the program asks of the platform is recorded for checking.

#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/base/platform.h"
#include "os/system_file_ops.h"

namespace brenko {

struct QueuedAnswer {
  enum class Kind { kText, kOk, kCancel, kYes, kNo, kFile, kColor };
  Kind kind = Kind::kCancel;
  std::string text;  // kText, kFile (a file as UTF-8 text)
  ColorNumber color = 0;
};

struct RecordedMessage {
  std::string text;
  std::string title;
  MsgButtons buttons = MsgButtons::kOk;
  MsgIcon icon = MsgIcon::kNone;
};

class FakePlatform : public Platform {
 public:
  // --- script ---
  std::deque<QueuedAnswer> answers;
  ScreenInfo screen;
  bool sysInfoInstalled = false;
  // Files go through this when set (a test's failing file system), else
  // to the real one.
  FileOps* files = nullptr;
  // What the next print commands find: a printer (the default), a
  // cancelled print dialog, or no printer at all.
  PrintJob printJob = PrintJob::kPrint;

  // --- record ---
  int beeps = 0;
  std::vector<RecordedMessage> messages;
  std::vector<InputPromptRequest> prompts;
  std::vector<FileDialogRequest> fileDialogs;
  std::vector<ColorNumber> colorPickerStarts;
  std::vector<AboutInfo> aboutShown;
  std::vector<std::string> popups;
  std::vector<std::pair<WindowRef, bool>> topmostCalls;
  std::vector<std::string> helpShown;  // as UTF-8 text
  int sysInfoStarted = 0;
  int printJobsBegun = 0;
  int printJobsEnded = 0;
  struct Document {
    std::string fontName;
    double fontSize = 0;
    std::vector<std::string> lines;
  };
  std::vector<Document> documents;  // ended documents
  Document pending;                 // the document being printed

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
  ScreenInfo Screen() override { return screen; }
  FileOps& Files() override { return files != nullptr ? *files : systemFiles_; }
  void PrinterSetFont(const std::string& name, double points) override;
  void PrinterPrintLine(const std::string& line) override;
  void PrinterEndDoc() override;
  PrintJob BeginPrintJob() override {
    ++printJobsBegun;
    return printJob;
  }
  void EndPrintJob() override { ++printJobsEnded; }

 private:
  // Takes the next queued answer; a dialog with none is cancelled.
  QueuedAnswer Next();

  os::SystemFileOps systemFiles_;
};

}  // namespace brenko
