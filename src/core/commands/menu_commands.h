#pragma once
// Menu commands by name: the Qt menus and the scenario runner send every
// menu entry here. Each subsystem answers for its own entries and returns
// false for a name it does not know.

#include <string>

namespace brenko {

struct App;

// Runs the handler of a menu entry; false when no entry has that name.
bool RunMenuCommand(App& app, const std::string& name, int index = -1);

bool RunMemoryMenuCommand(App& app, const std::string& name, int index);
bool RunShellMenuCommand(App& app, const std::string& name, int index);

}  // namespace brenko
