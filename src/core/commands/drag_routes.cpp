#include "core/commands/drag_routes.h"

#include <stdexcept>
#include <string>
#include <utility>

#include "core/commands/app.h"
#include "core/commands/clipboard_handlers.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/drag_handlers.h"
#include "core/keypad/pasted_entry.h"
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

namespace {

// A drag handler as the table holds it: a window's own (Readout_DragOver),
// or a memory window's, which also takes the memory's number.
class DragHandler {
 public:
  using Plain = void (*)(App&, const DragSource&, float, float);
  using Numbered = void (*)(App&, int, const DragSource&, float, float);
  constexpr DragHandler(Plain run) : plain_(run) {}        // NOLINT
  constexpr DragHandler(Numbered run) : numbered_(run) {}  // NOLINT
  void operator()(App& app, const DropTarget& target, const DragSource& source,
                  float x, float y) const {
    if (plain_ != nullptr) plain_(app, source, x, y);
    if (numbered_ != nullptr) numbered_(app, target.memoryNumber, source, x, y);
  }

 private:
  Plain plain_ = nullptr;
  Numbered numbered_ = nullptr;
};

struct TargetRoute {
  DropTarget::Kind kind;
  DragHandler over;
  DragHandler drop;
};

// One row per kind of target: the over and drop handlers of its window.
// The converter's drop label has no over event of its own: the window's
// shows that a drop is welcome anywhere on it, and a value dropped anywhere
// on it is converted.
constexpr TargetRoute kRoutes[] = {
    {DropTarget::kReadout, Readout_DragOver, Readout_DragDrop},
    {DropTarget::kMemoryLabel, MemoryForm_Label1_DragOver,
     MemoryForm_Label1_DragDrop},
    {DropTarget::kConverterLabel, Converter_Form_DragOver,
     Converter_Label1_DragDrop},
    {DropTarget::kConverter, Converter_Form_DragOver,
     Converter_Label1_DragDrop},
};

const TargetRoute& RouteOf(const DropTarget& target) {
  for (const TargetRoute& route : kRoutes) {
    if (route.kind == target.kind) return route;
  }
  throw std::out_of_range("no route to that drop target");
}

}  // namespace

std::optional<DragSource> TextDragSource(const DropTarget& target,
                                         std::string_view text) {
  if (target.kind != DropTarget::kReadout &&
      target.kind != DropTarget::kMemoryLabel) {
    return std::nullopt;
  }
  std::optional<std::string> measurement = PastedMeasurement(text);
  if (!measurement) return std::nullopt;
  DragSource source;
  source.kind = DragSource::kText;
  source.text = std::move(*measurement);
  return source;
}

namespace {

bool IsPasteOnReadout(const DropTarget& target, const DragSource& source) {
  return source.kind == DragSource::kText &&
         target.kind == DropTarget::kReadout;
}

}  // namespace

void DragOver(App& app, const DropTarget& target, const DragSource& source,
              float x, float y) {
  if (IsPasteOnReadout(target, source)) return;
  RouteOf(target).over(app, target, source, x, y);
}

void DropOn(App& app, const DropTarget& target, const DragSource& source,
            float x, float y) {
  if (IsPasteOnReadout(target, source)) {
    Readout_Paste(app, source.text);
    return;
  }
  RouteOf(target).drop(app, target, source, x, y);
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
