#include "core/shell/shell_windows.h"

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/tape_handlers.h"
#include "core/converter/converter.h"
#include "core/memory/memory_cells.h"

namespace brenko {

void LoadConverterWindow(App& app) {
  if (!app.converter.loaded) Converter_Form_Load(app);
}

void OpenConverterFromMenu(App& app) { mnuConverter_Click(app); }

void UnloadConverterWindow(App& app) {
  if (app.converter.loaded) Converter_Form_Unload(app);
  app.converter.visible = false;
}

void LoadTapeWindow(App& app) { frmTape_Form_Load(app); }

void UnloadTapeWindow(App& app) {
  app.tapeWindow.visible = false;
  app.tapeWindow.loaded = false;
}

void EraseAllMemories(App& app) { EraseMemory_Click(app); }

}  // namespace brenko
