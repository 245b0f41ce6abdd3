#include "core/commands/drag_handlers.h"

#include <string>

#include "core/commands/app.h"
#include "core/commands/frame_handlers.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_drag.h"

namespace brenko {

bool Readout_MouseDown(App& app, int button) {
  if (button == kLeftButton) {
    app.calculator.readoutDragIcon = kPlainPicture;
    return true;
  }
  if (button == kRightButton) app.platform.ShowPopupMenu("mnuPopup1");
  return false;
}

void Readout_DragOver(App& app, const DragSource& source, float x, float) {
  const char* picture = ReadoutDragPicture(app.calculator, x);
  if (picture == nullptr) return;
  app.calculator.readoutDragIcon = picture;
  SetSourceDragIcon(app.calculator, app.memory, source, picture);
}

void Readout_DragDrop(App& app, const DragSource& source, float x, float) {
  std::string dropped;
  std::string tag;
  if (!ReadDragSource(app.calculator, app.memory, source, dropped, tag)) {
    return;
  }
  DropOnReadout(CalcPartsOf(app), app.tapeWindow, dropped,
                x >= ReadoutMidpoint(app.calculator.Readout()));
}

void MemoryForm_Label1_DragOver(App& app, int number, const DragSource& source,
                                float x, float) {
  MemoryForm* target = app.memory.Find(number);
  if (target == nullptr) return;
  const char* picture = MemoryDragPicture(*target, x);
  target->dragIcon = picture;
  SetSourceDragIcon(app.calculator, app.memory, source, picture);
}

void MemoryForm_Label1_DragDrop(App& app, int number, const DragSource& source,
                                float x, float) {
  MemoryForm* target = app.memory.Find(number);
  if (target == nullptr) return;
  std::string dropped;
  std::string tag;
  if (!ReadDragSource(app.calculator, app.memory, source, dropped, tag)) {
    return;
  }
  MakeCurrentMemory(app.memory, app.tapes, app.tapeWindow, number);
  const bool add = x >= MemoryMidpoint(target->label1);
  if (DropOnMemory(*target, dropped, tag, add, CalcPartsOf(app)) &&
      RefitMemoryWidths(app.memory, true)) {
    ArrangeMemories(app);
  }
}

}  // namespace brenko
