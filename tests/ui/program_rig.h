#pragma once
// One run of the program for the window tests: settings in memory, the Qt
// platform, every window, and the start-up done.

#include <QCoreApplication>
#include <QEvent>
#include <string>

#include "core/base/settings_store.h"
#include "core/commands/app.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/startup.h"
#include "core/memory/memory_cells.h"
#include "ui/app_windows.h"
#include "ui/qt_platform.h"

namespace brenko::ui {

struct ProgramRig {
  MemorySettingsStore store;
  QtPlatform platform;
  App app{platform, store};
  AppWindows windows{app, platform};

  ProgramRig() {
    windows.Run([](App& a) { Form_Load(a); });
  }
  ~ProgramRig() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  // Types the keys on the calculator, one character at a time.
  void Type(const std::string& keys) {
    for (char c : keys) {
      windows.Run(
          [c](App& a) { Form_KeyPress(a, static_cast<unsigned char>(c)); });
    }
  }
  void NewMemories(int count) {
    for (int i = 0; i < count; ++i) windows.Run(NewMemory_Click);
  }
};

}  // namespace brenko::ui
