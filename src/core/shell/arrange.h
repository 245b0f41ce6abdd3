#pragma once
// The layout of the memory windows in the main frame MDIForm1: columns of
// windows, as many as the frame's width holds, the frame fitted around
// them.

#include <optional>
#include <vector>

#include "core/base/platform.h"
#include "core/base/window_model.h"
#include "core/memory/memory_form.h"
#include "core/shell/main_frame.h"

namespace brenko {

// What the arrangement does, in this order: the frame takes a new place
// and size (its resize event follows when the size changes), then the
// memory windows take their places. A step that would overflow its 16-bit
// field stops the arrangement where it is: the plan holds only what came
// before it.
struct ArrangementPlan {
  std::optional<Rect> frame;
  // True when the frame is moved as part of a column layout: its resize
  // must not lay the windows out again meanwhile.
  bool frameWhileArranging = false;
  struct Place {
    MemoryForm* form;
    float left;
    float top;
  };
  std::vector<Place> places;
};

ArrangementPlan PlanArrangement(const MemoryState& memory,
                                const MainFrameForm& frame,
                                const ScreenInfo& screen);

}  // namespace brenko
