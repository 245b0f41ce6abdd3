#include "fake/fake_platform.h"

#include "core/base/path_text.h"

namespace brenko {

QueuedAnswer FakePlatform::Next() {
  if (answers.empty()) return {};
  QueuedAnswer a = answers.front();
  answers.pop_front();
  return a;
}

void FakePlatform::Beep() { ++beeps; }

MsgAnswer FakePlatform::MessageBox(const std::string& text,
                                   const std::string& title, MsgButtons buttons,
                                   MsgIcon icon) {
  messages.push_back({text, title, buttons, icon});
  const QueuedAnswer a = Next();
  switch (buttons) {
    case MsgButtons::kOk:
      return MsgAnswer::kOk;
    case MsgButtons::kOkCancel:
      return a.kind == QueuedAnswer::Kind::kOk ||
                     a.kind == QueuedAnswer::Kind::kYes
                 ? MsgAnswer::kOk
                 : MsgAnswer::kCancel;
    case MsgButtons::kYesNo:
      return a.kind == QueuedAnswer::Kind::kYes ||
                     a.kind == QueuedAnswer::Kind::kOk
                 ? MsgAnswer::kYes
                 : MsgAnswer::kNo;
  }
  return MsgAnswer::kCancel;
}

std::optional<ColorNumber> FakePlatform::PickColor(ColorNumber initial) {
  colorPickerStarts.push_back(initial);
  const QueuedAnswer a = Next();
  if (a.kind == QueuedAnswer::Kind::kColor) return a.color;
  if (a.kind == QueuedAnswer::Kind::kOk) return initial;
  return std::nullopt;
}

std::optional<std::filesystem::path> FakePlatform::OpenFileDialog(
    const FileDialogRequest& request) {
  fileDialogs.push_back(request);
  const QueuedAnswer a = Next();
  if (a.kind == QueuedAnswer::Kind::kFile) return PathFromText(a.text);
  return std::nullopt;
}

std::optional<std::filesystem::path> FakePlatform::SaveFileDialog(
    const FileDialogRequest& request) {
  return OpenFileDialog(request);
}

std::string FakePlatform::InputPrompt(const InputPromptRequest& request) {
  prompts.push_back(request);
  const QueuedAnswer a = Next();
  if (a.kind == QueuedAnswer::Kind::kText) return a.text;
  if (a.kind == QueuedAnswer::Kind::kOk) return request.text;
  return "";
}

void FakePlatform::ShowAbout(const AboutInfo& info) {
  aboutShown.push_back(info);
  Next();
}

void FakePlatform::ShowPopupMenu(const std::string& menuName) {
  popups.push_back(menuName);
}

void FakePlatform::SetTopmost(WindowRef window, bool onTop) {
  topmostCalls.emplace_back(window, onTop);
}

void FakePlatform::ShowHelp(const std::filesystem::path& helpFile) {
  helpShown.push_back(PathText(helpFile));
}

bool FakePlatform::StartSysInfo() {
  if (!sysInfoInstalled) return false;
  ++sysInfoStarted;
  return true;
}

void FakePlatform::PrinterSetFont(const std::string& name, double points) {
  pending.fontName = name;
  pending.fontSize = points;
}

void FakePlatform::PrinterPrintLine(const std::string& line) {
  pending.lines.push_back(line);
}

void FakePlatform::PrinterEndDoc() {
  documents.push_back(pending);
  pending = Document{};
}

}  // namespace brenko
