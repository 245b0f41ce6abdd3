#pragma once
// What is being dragged. A drag carries no data of its own: the drop reads
// the dragged control's caption and tag from the models when it lands.

#include <string>

namespace brenko {

struct App;

struct DragSource {
  enum Kind { kReadout, kMemory };
  Kind kind = kReadout;
  int memoryNumber = 0;  // for kMemory: the memory whose value label it is
};

// The dragged control's caption and tag; false when it no longer exists
// (a memory window closed during the drag).
bool ReadDragSource(const App& app, const DragSource& source,
                    std::string& caption, std::string& tag);

// Gives the dragged control a drag picture ("Image1" ... "DropHere").
void SetSourceDragIcon(App& app, const DragSource& source,
                       const std::string& picture);

}  // namespace brenko
