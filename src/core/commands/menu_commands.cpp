#include "core/commands/menu_commands.h"

namespace brenko {

bool RunMenuCommand(App& app, const std::string& name, int index) {
  return RunMemoryMenuCommand(app, name, index) ||
         RunShellMenuCommand(app, name, index);
}

}  // namespace brenko
