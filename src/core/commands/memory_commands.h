#pragma once
// The memory window's own commands, for the keyboard and the context menu.
// Each is a drag or a click the window already answers, made for the user:
// the same handlers run, with the drop point on the side of the target's
// midpoint that the command names, so the values, tape lines, beeps and
// errors are the drag's.

#include <optional>
#include <span>
#include <string_view>

namespace brenko {

struct App;

enum class MemoryCommand {
  kAddReadout,       // the readout dropped on the memory's right half
  kSubtractReadout,  // ... on its left half
  kRecallToReadout,  // the memory dropped on the readout's right half
  kShowInConverter,  // the memory dropped on the converter
  kClear,            // a double click on the memory's value
};

struct MemoryCommandRow {
  MemoryCommand command;
  const char* name;     // the scenarios' word for it ("Add")
  const char* caption;  // the context menu's entry ("&Add Readout")
};

// The commands in the context menu's order.
std::span<const MemoryCommandRow> MemoryCommands();
std::optional<MemoryCommand> MemoryCommandNamed(std::string_view name);

// Runs a command on memory `number`; nothing when that memory is gone.
void RunMemoryCommand(App& app, int number, MemoryCommand command);

}  // namespace brenko
