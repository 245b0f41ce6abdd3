#pragma once
// What is being dragged. A drag carries no data of its own: the drop reads
// the dragged control's caption and tag from the models when it lands.

namespace brenko {

struct DragSource {
  enum Kind { kReadout, kMemory };
  Kind kind = kReadout;
  int memoryNumber = 0;  // for kMemory: the memory whose value label it is
};

}  // namespace brenko
