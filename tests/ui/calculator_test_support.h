#pragma once
// A whole program for a window test: the Qt platform (with its context
// menus, message boxes and prompts recorded instead of shown, so that no
// test waits on a modal loop), an in-memory settings store, the App and the
// real windows, started as the program starts.

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "core/base/settings_store.h"
#include "core/commands/app.h"
#include "core/commands/startup.h"
#include "ui/app_windows.h"
#include "ui/calculator_window.h"
#include "ui/qt_platform.h"
#include "ui/tape_window.h"

namespace brenko::ui::testing {

class RecordingPlatform : public QtPlatform {
 public:
  std::vector<std::string> popups;
  std::vector<std::string> messages;
  std::vector<std::pair<WindowRef, bool>> topmost;
  int beeps = 0;

  void ShowPopupMenu(const std::string& menuName) override {
    popups.push_back(menuName);
  }
  MsgAnswer MessageBox(const std::string& text, const std::string&, MsgButtons,
                       MsgIcon) override {
    messages.push_back(text);
    return MsgAnswer::kOk;
  }
  void Beep() override { ++beeps; }
  void SetTopmost(WindowRef window, bool onTop) override {
    topmost.emplace_back(window, onTop);
    QtPlatform::SetTopmost(window, onTop);
  }
};

struct Program {
  RecordingPlatform platform;
  MemorySettingsStore settings;
  App app{platform, settings};
  AppWindows windows{app, platform};

  Program() {
    windows.Run([](App& a) { Form_Load(a); });
  }
  CalculatorWindow* calc() { return windows.Calculator(); }
  TapeWindow* tape() { return windows.Tape(); }

  // Types text on the calculator window as a user does, one key at a time.
  void Type(const QString& text) {
    for (QChar c : text) {
      if (c == QLatin1Char('\r')) {
        QTest::keyClick(calc()->Client(), Qt::Key_Return);
      } else {
        QTest::keyClicks(calc()->Client(), QString(c));
      }
    }
  }
  std::string Readout() const { return app.calculator.Readout().caption; }
  QString ShownReadout() { return calc()->Readout()->text(); }
  // Lines 1 to count of tape `tape`, joined with "\n".
  std::string Tape(int tape) const {
    std::string text;
    const int count = app.tapes.TapeLineCount()[static_cast<size_t>(tape)];
    for (int row = 1; row <= count; ++row) {
      if (row > 1) text += "\n";
      text += app.tapes.Cell(row, tape);
    }
    return text;
  }
};

}  // namespace brenko::ui::testing
