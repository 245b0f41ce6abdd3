#pragma once
// What is being dragged. A drag of one of the program's controls carries no
// data of its own: the drop reads the dragged control's caption and tag from
// the models when it lands. Text dragged in from another program is the one
// source that brings its value along.

#include <string>

namespace brenko {

struct DragSource {
  enum Kind { kReadout, kMemory, kText };
  Kind kind = kReadout;
  int memoryNumber = 0;  // for kMemory: the memory whose value label it is
  std::string text{};    // for kText: the measurement it brings
};

}  // namespace brenko
