// The shutdown's half of startup.h: the colours and the settings are
// written, the windows go.
#include <cmath>

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/startup.h"
#include "core/measure/number_text.h"
#include "core/shell/settings_text.h"

namespace brenko {

namespace {

constexpr const char* kSettings = "Settings";
constexpr const char* kColors = "Colors";

// Colours are written with the leading blank of the number-to-text rule.
void SaveColor(SettingsStore& store, const char* key, ColorNumber color) {
  store.Save(kColors, key, NumberToText(color));
}

void SavePosition(SettingsStore& store, const char* key, float position) {
  store.Save(kSettings, key, PositionText(position));
}

void SaveBoolean(SettingsStore& store, const char* key, bool value) {
  store.Save(kSettings, key, BooleanText(value));
}

// The calculator's own two colours are read back from its controls.
void SaveColors(SettingsStore& store, const CalculatorForm& calculator,
                const KeptColors& colors) {
  SaveColor(store, "CalcBackground", calculator.backColor);
  SaveColor(store, "ReadoutBackground", calculator.Readout().backColor);
  SaveColor(store, "MemoryBackground", colors.memoryBackground);
  SaveColor(store, "MemoryReadout", colors.memoryReadout);
  SaveColor(store, "Converter", colors.converter);
  SaveColor(store, "ConvReadout", colors.convReadout);
  SaveColor(store, "ConvResult", colors.convResult);
}

// The window places and the options, in the order the file keeps them. The
// converter's place needs its window, so this loads it when it never was.
void SaveSettings(App& app) {
  SettingsStore& store = app.settings;
  const MenuModel& menus = app.menus;
  SavePosition(store, "CalcTop", app.calculator.geometry.top);
  SavePosition(store, "CalcLeft", app.calculator.geometry.left);
  // The converter's place is read from its window, made for the purpose
  // when it was never loaded.
  LoadConverterWindow(app);
  SavePosition(store, "ConvTop", app.converter.geometry.top);
  SavePosition(store, "ConvLeft", app.converter.geometry.left);
  SavePosition(store, "MDITop", app.mainFrame.geometry.top);
  SavePosition(store, "MDILeft", app.mainFrame.geometry.left);
  SaveBoolean(store, "Zoom", menus.IsChecked(MenuId::ZoomSmall));
  // True means thirty-seconds: the negation of the sixteenths mark.
  SaveBoolean(store, "Accuracy", !menus.IsChecked(MenuId::Sixteen));
  SaveBoolean(store, "Converter", menus.IsChecked(MenuId::mnuConverter));
  SaveBoolean(store, "ShowKeys", menus.IsChecked(MenuId::ShowKeys));
  SaveBoolean(store, "ShowTape", menus.IsChecked(MenuId::mnuTape));
}

}  // namespace

// The window goes out of sight at once; the saving work follows in
// Form_Unload. The close is never cancelled.
void Form_QueryUnload(App& app) { app.calculator.visible = false; }

void Form_Unload(App& app) {
  // The Qt layer may still deliver a close after Exit has run.
  if (app.shell.quitRequested) return;
  SaveColors(app.settings, app.calculator, app.colors);
  SaveSettings(app);
  app.settings.Flush();
  EraseMemory_Click(app);
  UnloadConverterWindow(app);
  app.tapeWindow.visible = false;
  app.tapeWindow.loaded = false;
  app.calculator.loaded = false;
  app.shell.quitRequested = true;
}

// No question is asked: Exit saves and ends.
void Exit_Click(App& app) {
  Form_QueryUnload(app);
  Form_Unload(app);
}

}  // namespace brenko
