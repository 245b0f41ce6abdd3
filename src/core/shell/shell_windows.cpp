#include "core/shell/shell_windows.h"

#include "core/shell/app.h"

namespace brenko {

void LoadConverterWindow(App& app) {
  if (app.converter.loaded) return;
  app.converter.loaded = true;
}

void OpenConverterFromMenu(App& app) { (void)app; }

void UnloadConverterWindow(App& app) {
  app.converter.visible = false;
  app.converter.loaded = false;
}

void LoadTapeWindow(App& app) { frmTape_Form_Load(app); }

void UnloadTapeWindow(App& app) {
  app.tapeWindow.visible = false;
  app.tapeWindow.loaded = false;
}

void EraseAllMemories(App& app) { (void)app; }

}  // namespace brenko
