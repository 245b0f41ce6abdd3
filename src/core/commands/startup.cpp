#include "core/commands/startup.h"

#include <cmath>
#include <optional>

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/display_handlers.h"
#include "core/commands/shell_handlers.h"
#include "core/commands/tape_handlers.h"
#include "core/keypad/key_display.h"
#include "core/keypad/zoom.h"
#include "core/measure/number_text.h"
#include "core/shell/about.h"
#include "core/shell/settings_text.h"

namespace brenko {

namespace {

constexpr const char* kSettings = "Settings";
constexpr const char* kColors = "Colors";
constexpr float kFrameDefaultTop = 1635;
constexpr float kFrameDefaultLeft = 1575;
constexpr float kTapeFirstColumnWidth = 1125;

// A Boolean setting; a text that is no Boolean leaves it false.
bool ReadBoolean(const SettingsStore& store, const char* key,
                 const char* fallback) {
  return SettingToBoolean(store.GetSetting(kSettings, key, fallback))
      .value_or(false);
}

// A position setting, or its computed default when absent. A value that is
// not a number, or does not fit the 16-bit position, leaves the position 0.
float ReadPosition(const SettingsStore& store, const char* key,
                   float fallback) {
  std::int16_t position = 0;
  if (const std::optional<std::string> stored = store.Get(kSettings, key)) {
    position = SettingToInt16(*stored).value_or(0);
  } else if (!ToInt16(fallback, position)) {
    position = 0;
  }
  return position;
}

// Reads one colour; `apply` runs only when the stored text is a colour
// number, so a bad value leaves the target's colour as it is.
template <typename Apply>
void ReadColor(const SettingsStore& store, const char* key,
               ColorNumber fallback, Apply apply) {
  if (const std::optional<std::int32_t> color = SettingToInt32(
          store.GetSetting(kColors, key, TrimmedNumberText(fallback)))) {
    apply(*color);
  }
}

}  // namespace

void Form_Load(App& app) {
  const SettingsStore& store = app.settings;
  CalculatorForm& calc = app.calculator;
  ConverterForm& conv = app.converter;
  calc.loaded = true;

  const bool zoom = ReadBoolean(store, "Zoom", "0");
  const bool accuracy = ReadBoolean(store, "Accuracy", "0");
  const bool converter = ReadBoolean(store, "Converter", "0");
  const bool showKeys = ReadBoolean(store, "ShowKeys", "1");
  const bool showTape = ReadBoolean(store, "ShowTape", "1");

  // The defaults centre the calculator and put the converter's right edge
  // 100 twips left of it, worked out in single precision from the windows
  // as designed.
  const ScreenInfo screen = app.platform.Screen();
  const float screenWidth = screen.WidthTwips();
  const float screenHeight = screen.HeightTwips();
  const float calcTop =
      ReadPosition(store, "CalcTop", (screenHeight - kCalcDesignHeight) / 2.0f);
  const float calcLeft =
      ReadPosition(store, "CalcLeft", (screenWidth - kCalcDesignWidth) / 2.0f);
  LoadConverterWindow(app);
  const float convTop = ReadPosition(
      store, "ConvTop", (screenHeight - conv.geometry.height) / 2.0f);
  const float convLeft = ReadPosition(
      store, "ConvLeft",
      (screenWidth - conv.geometry.width) / 2.0f - conv.geometry.width / 2.0f -
          kCalcDesignWidth / 2.0f - 100.0f);
  const float frameTop = ReadPosition(store, "MDITop", kFrameDefaultTop);
  const float frameLeft = ReadPosition(store, "MDILeft", kFrameDefaultLeft);

  app.mainFrame.geometry.left = frameLeft;
  app.mainFrame.geometry.top = frameTop;

  ReadColor(store, "CalcBackGround", kTeal,
            [&](ColorNumber c) { calc.backColor = c; });
  ReadColor(store, "ReadoutBackGround", kPaleYellow,
            [&](ColorNumber c) { calc.Readout().backColor = c; });
  ReadColor(store, "MemoryBackground", kTeal,
            [&](ColorNumber c) { app.colors.memoryBackground = c; });
  ReadColor(store, "MemoryReadout", kPaleYellow,
            [&](ColorNumber c) { app.colors.memoryReadout = c; });
  ReadColor(store, "Converter", kTeal, [&](ColorNumber c) {
    app.colors.converter = c;
    conv.backColor = c;
  });
  ReadColor(store, "ConvReadout", kPaleYellow, [&](ColorNumber c) {
    app.colors.convReadout = c;
    conv.label1.backColor = c;
  });
  ReadColor(store, "ConvResult", kPaleYellow, [&](ColorNumber c) {
    app.colors.convResult = c;
    for (std::size_t i = 2; i <= 6; ++i) conv.lblLabel[i].backColor = c;
  });

  calc.geometry.left = calcLeft;
  calc.geometry.top = calcTop;

  app.shell.helpFile = HelpFilePath(app.shell.programFolder);

  app.engine.PendingValue.reset();
  app.engine.CurrentValue.reset();
  app.engine.PendingOp = kOpStartUp;
  app.accuracy = 16;
  app.memory.nextNumber = 1;
  app.memory.windowCounter = 1;

  app.shell.designGeometry.clear();
  for (const CalcControl& c : calc.controls) {
    app.shell.designGeometry.push_back(c.label.rect);
  }

  // The saved choices are restored by running the menu actions themselves.
  if (zoom) ZoomSmall_Click(app);
  if (accuracy) thirtysecond_Click(app);
  if (converter) mnuConverter_Click(app);
  if (!showKeys) ShowKeys_Click(app);

  app.platform.SetTopmost({WindowKind::kCalculator, 0}, true);

  frmTape_Form_Load(app);
  if (showTape) {
    app.menus.SetChecked(MenuId::mnuPopup1ShowTape, true);
    app.tapeWindow.visible = true;
    app.menus.SetChecked(MenuId::mnuTape, true);
  }
  app.shell.tapeColumnWidth = kTapeFirstColumnWidth;
  app.tapes.ShownTape = 0;

  LoadConverterWindow(app);
  conv.geometry.left = convLeft;
  conv.geometry.top = convTop;

  calc.focus = "Equal";
  calc.SetReadout("0.");
  calc.visible = true;

  // Settings that could not be read are said so once, at the start that
  // found them.
  const std::string problem = app.settings.ReadProblem();
  if (!problem.empty()) {
    app.platform.MessageBox(problem, "Error", MsgButtons::kOk,
                            MsgIcon::kExclamation);
  }
}

// Whenever the calculator becomes active the tape window shows its tape
// again, from the top.
// Coming back to the calculator brings the tape window back to the
// calculator's own tape, with its newest line in view: the user returns to
// the tape he is adding to, not to its first line.
void Form_Activate(App& app) {
  app.tapes.ShownTape = 0;
  Form_GotFocus(app);
  app.tapes.leftCol = 0;
  ScrollTapeToEnd(app.tapes);
}

// Selects the grid's top-left cell, so that the next tape operation starts
// from the calculator's column.
void Form_GotFocus(App& app) {
  app.tapes.row = 0;
  app.tapes.col = 0;
  app.tapeWindow.title.caption = "Calculator";
}

}  // namespace brenko
