#include "core/commands/drag_routes.h"

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/drag_handlers.h"
#include "core/memory/memory_drag.h"

namespace brenko {

bool BeginDrag(App& app, const DragSource& source, int button) {
  if (source.kind == DragSource::kReadout) {
    return Readout_MouseDown(app, button);
  }
  if (button != kLeftButton) return false;
  SetSourceDragIcon(app.calculator, app.memory, source, kPlainPicture);
  return true;
}

void DragOver(App& app, const DropTarget& target, const DragSource& source,
              float x, float y) {
  switch (target.kind) {
    case DropTarget::kReadout:
      Readout_DragOver(app, source, x, y);
      return;
    case DropTarget::kMemoryLabel:
      MemoryForm_Label1_DragOver(app, target.memoryNumber, source, x, y);
      return;
    case DropTarget::kConverterLabel:
    case DropTarget::kConverter:
      Converter_Form_DragOver(app, source, x, y);
      return;
  }
}

void DropOn(App& app, const DropTarget& target, const DragSource& source,
            float x, float y) {
  switch (target.kind) {
    case DropTarget::kReadout:
      Readout_DragDrop(app, source, x, y);
      return;
    case DropTarget::kMemoryLabel:
      MemoryForm_Label1_DragDrop(app, target.memoryNumber, source, x, y);
      return;
    case DropTarget::kConverterLabel:
    case DropTarget::kConverter:
      Converter_Label1_DragDrop(app, source, x, y);
      return;
  }
}

Rect DropTargetPlace(const App& app, const DropTarget& target) {
  switch (target.kind) {
    case DropTarget::kReadout:
      return app.calculator.Readout().rect;
    case DropTarget::kMemoryLabel:
      if (const MemoryForm* form = app.memory.Find(target.memoryNumber)) {
        return form->label1.rect;
      }
      return {};
    case DropTarget::kConverterLabel:
      return app.converter.label1.rect;
    case DropTarget::kConverter:
      return {};
  }
  return {};
}

}  // namespace brenko
