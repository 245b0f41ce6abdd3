#include <map>

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/frame_handlers.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/menu_commands.h"
#include "core/converter/converter.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_file.h"

namespace brenko {

// The memory, memory-file and converter entries of the menus.
bool RunMemoryMenuCommand(App& app, const std::string& name, int) {
  using Handler = void (*)(App&);
  static const std::map<std::string, Handler> kHandlers = {
      {"NewMemory", NewMemory_Click},
      {"NamedMemory", NamedMemory_Click},
      {"mnuPopup1NewMemory", mnuPopup1NewMemory_Click},
      {"mnuPopup1NamedMemory", mnuPopup1NamedMemory_Click},
      {"ClearMemory", ClearMemory_Click},
      {"EraseMemory", EraseMemory_Click},
      {"mnuArrangeMemory", mnuArrangeMemory_Click},
      {"mnuOpen", mnuOpen_Click},
      {"mnuSave", mnuSave_Click},
      {"mnuSaveAs", mnuSaveAs_Click},
      {"mnuConverter", mnuConverter_Click},
  };
  const auto it = kHandlers.find(name);
  if (it == kHandlers.end()) return false;
  it->second(app);
  return true;
}

}  // namespace brenko
