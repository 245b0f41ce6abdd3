#include "core/commands/memory_commands.h"

#include "core/commands/app.h"
#include "core/commands/drag_routes.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_drag.h"

namespace brenko {

namespace {

constexpr MemoryCommandRow kMemoryCommands[] = {
    {MemoryCommand::kAddReadout, "Add", "&Add Readout"},
    {MemoryCommand::kSubtractReadout, "Subtract", "&Subtract Readout"},
    {MemoryCommand::kRecallToReadout, "Recall", "&Recall to Readout"},
    {MemoryCommand::kShowInConverter, "Convert", "Show in &Converter"},
    {MemoryCommand::kClear, "Clear", "C&lear"},
};

// How far left of the midpoint a subtracting drop lands, in twips: well
// inside the left half, whatever the rounding of the midpoint.
constexpr float kLeftOfMidpoint = 1;

// A whole drag as the mouse makes it: the press on the source, the pointer
// over the target, the drop.
void DragAndDrop(App& app, const DragSource& source, const DropTarget& target,
                 float x) {
  if (!BeginDrag(app, source, kLeftButton)) return;
  DragOver(app, target, source, x, 0);
  DropOn(app, target, source, x, 0);
}

}  // namespace

std::span<const MemoryCommandRow> MemoryCommands() { return kMemoryCommands; }

std::optional<MemoryCommand> MemoryCommandNamed(std::string_view name) {
  for (const MemoryCommandRow& row : kMemoryCommands) {
    if (name == row.name) return row.command;
  }
  return std::nullopt;
}

void RunMemoryCommand(App& app, int number, MemoryCommand command) {
  const MemoryForm* form = app.memory.Find(number);
  if (form == nullptr) return;
  const DragSource readout{DragSource::kReadout, 0, {}};
  const DragSource memory{DragSource::kMemory, number, {}};
  const DropTarget label{DropTarget::kMemoryLabel, number};
  const float memoryMid = MemoryMidpoint(form->label1);
  switch (command) {
    case MemoryCommand::kAddReadout:
      DragAndDrop(app, readout, label, memoryMid);
      return;
    case MemoryCommand::kSubtractReadout:
      DragAndDrop(app, readout, label, memoryMid - kLeftOfMidpoint);
      return;
    case MemoryCommand::kRecallToReadout:
      DragAndDrop(app, memory, {DropTarget::kReadout, 0},
                  ReadoutMidpoint(app.calculator.Readout()));
      return;
    case MemoryCommand::kShowInConverter:
      DragAndDrop(app, memory, {DropTarget::kConverterLabel, 0},
                  app.converter.label1.rect.left);
      return;
    case MemoryCommand::kClear:
      MemoryForm_Label1_DblClick(app, number);
      return;
  }
}

}  // namespace brenko
