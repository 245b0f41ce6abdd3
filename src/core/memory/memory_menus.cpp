#include "core/shell/app.h"
#include "core/shell/menu_commands.h"

namespace brenko {

bool RunMemoryMenuCommand(App&, const std::string&, int) { return false; }

}  // namespace brenko
