#pragma once
// Drag and drop by target kind: the one route from a press on a drag source,
// a drag over a target and a drop on it to the handlers of that target's
// window. The Qt windows and the scenario runner both go this way.

#include <optional>
#include <string_view>

#include "core/base/window_model.h"
#include "core/memory/drag_source.h"

namespace brenko {

struct App;

// Where a value can be dropped: the calculator's readout, a memory's value
// label, the converter's drop label or anywhere else on the converter. A
// new kind of target is a kind here and its row in the routes' table.
struct DropTarget {
  enum Kind { kReadout, kMemoryLabel, kConverterLabel, kConverter };
  Kind kind = kReadout;
  int memoryNumber = 0;  // for kMemoryLabel
};

// A mouse button pressed on a drag source: the readout's own mouse-down,
// or a memory's value label, which the left button starts dragging with
// the plain picture. True when a drag starts.
bool BeginDrag(App& app, const DragSource& source, int button);

// Text dragged in from another program onto `target`: the drag source it
// makes when the target takes text (the readout and the memories) and the
// text is one measurement, as a paste takes it; nothing when the drop is
// refused.
std::optional<DragSource> TextDragSource(const DropTarget& target,
                                         std::string_view text);

// The over and drop events of a target at (x, y), twips in the target
// control's container. The converter's drop label has no over event of its
// own: the window's shows that a drop is welcome anywhere on it, and a value
// dropped anywhere on it is converted. Text dropped on the readout is
// pasted there (it has no halves to show while over it).
void DragOver(App& app, const DropTarget& target, const DragSource& source,
              float x, float y);
void DropOn(App& app, const DropTarget& target, const DragSource& source,
            float x, float y);

// The target control's place in its container, to which a point inside it
// is added; all zero for the converter's window itself, or for a memory
// that is gone.
Rect DropTargetPlace(const App& app, const DropTarget& target);

}  // namespace brenko
