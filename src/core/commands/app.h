#pragma once
// The whole state of the program, one aggregate per run. There is no global
// state: two Apps in one process never see each other.

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "core/base/calculator_form.h"
#include "core/base/platform.h"
#include "core/base/settings_store.h"
#include "core/calc/calc_engine.h"
#include "core/commands/keys.h"
#include "core/commands/menus.h"
#include "core/converter/converter_form.h"
#include "core/memory/memory_form.h"
#include "core/shell/colors.h"
#include "core/shell/main_frame.h"
#include "core/tape/tape_store.h"
#include "core/tape/tape_window.h"

namespace brenko {

class ArrangementBatch;

struct ShellState {
  // The folder the program runs from; the Qt layer fills it in before the
  // start-up. The manual is looked for there.
  std::filesystem::path programFolder;
  std::filesystem::path helpFile;
  // The user's documents folder, where the file dialogs start when nothing
  // better is known; the Qt layer fills it in.
  std::filesystem::path documentsFolder;
  // The width of the tape grid's first column, in twips (set at start-up).
  float tapeColumnWidth = 0;
  // The keypad's design geometry, recorded at start-up: one entry per
  // control of the calculator in control order.
  std::vector<Rect> designGeometry;
  // True once the program has been asked to end (Exit, closing the
  // calculator); the Qt layer then quits its event loop.
  bool quitRequested = false;
};

struct App {
  App(Platform& p, SettingsStore& s)
      : platform(p), settings(s), calculator(DesignControls()) {}
  App(const App&) = delete;
  App& operator=(const App&) = delete;

  Platform& platform;
  SettingsStore& settings;

  CalcEngine engine;
  std::int16_t accuracy = 16;  // Accuracy: 16 or 32
  TapeStore tapes;
  MenuModel menus;

  CalculatorForm calculator;
  TapeWindowForm tapeWindow;
  MemoryState memory;
  MainFrameForm mainFrame;
  ConverterForm converter;
  KeptColors colors;
  ShellState shell;
  // While a memory file's memories are being made: their arrangements are
  // planned as they come and the windows placed once at the end (see
  // DeferredArrangement). Null otherwise.
  ArrangementBatch* arrangementBatch = nullptr;
};

// The engine's routines work on these parts of the program.
inline CalcParts CalcPartsOf(App& app) {
  return {app.engine, app.calculator, app.tapes, app.platform, app.accuracy};
}

}  // namespace brenko
