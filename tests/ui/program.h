#pragma once
// The one program the window tests run: the Qt platform with its context
// menus, message boxes and beeps recorded instead of shown (so that no test
// waits on a modal loop), settings in memory unless a test brings its own
// store, the App and every real window, started as the program starts.

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEvent>
#include <QLabel>
#include <QMimeData>
#include <QTest>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/base/settings_store.h"
#include "core/commands/app.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/startup.h"
#include "core/memory/drag_source.h"
#include "core/tape/tape_store.h"
#include "ui/app_windows.h"
#include "ui/calculator_window.h"
#include "ui/drag_mime.h"
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

class Program {
 public:
  Program() : Program(nullptr) {}
  // A program whose settings are `settings` (a settings file).
  explicit Program(SettingsStore& settings) : Program(&settings) {}
  ~Program() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  RecordingPlatform platform;
  MemorySettingsStore store;  // the settings, unless others were given
  App app;
  AppWindows windows;

  CalculatorWindow* calc() { return windows.Calculator(); }
  TapeWindow* tape() { return windows.Tape(); }

  // Types text on the calculator window as a user does, one key at a time.
  void Type(const QString& text) {
    for (QChar c : text) {
      if (c == QLatin1Char('\r')) {
        QTest::keyClick(calc()->Client(), Qt::Key_Return);
      } else if (c == QChar(0x1b)) {
        QTest::keyClick(calc()->Client(), Qt::Key_Escape);
      } else {
        QTest::keyClicks(calc()->Client(), QString(c));
      }
    }
  }
  void NewMemories(int count) {
    for (int i = 0; i < count; ++i) windows.Run(NewMemory_Click);
  }

  std::string Readout() const { return app.calculator.Readout().caption; }
  QString ShownReadout() { return calc()->Readout()->text(); }
  // Lines 1 to count of tape `tape`, joined with "\n".
  std::string Tape(int tape) const { return JoinedTapeLines(app.tapes, tape); }

  // What the platform sends for a drop: the drag entering `target` at
  // `local`, then the drop there. Qt delivers a drop only to the widget
  // that accepted the enter. True when both were accepted.
  static bool Drop(QWidget* target, const DragSource& source, QPoint local) {
    const std::unique_ptr<QMimeData> mime = MakeDragMime(source);
    return Drop(target, mime.get(), local);
  }
  static bool Drop(QWidget* target, const QMimeData* mime, QPoint local) {
    QDragEnterEvent enter(local, Qt::CopyAction, mime, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent drop(QPointF(local), Qt::CopyAction, mime, Qt::LeftButton,
                    Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
    return enter.isAccepted() && drop.isAccepted();
  }

 private:
  explicit Program(SettingsStore* settings)
      : app(platform, settings != nullptr ? *settings : store),
        windows(app, platform) {
    windows.Run([](App& a) { Form_Load(a); });
  }
};

}  // namespace brenko::ui::testing
