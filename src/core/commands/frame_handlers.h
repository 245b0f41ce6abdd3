#pragma once
// The main frame MDIForm1: laying the memory windows out in columns, the
// frame's resize, and its close, which empties and hides it but never ends
// the program.

#include "core/base/window_model.h"
#include "core/shell/arrange.h"

namespace brenko {

struct App;

// Memory, Arrange: runs the calculator's arrange routine.
void mnuArrangeMemory_Click(App& app);
// The arrange routine itself, from the frame's present inner size.
void ArrangeMemories(App& app);

// While it lives, every arrangement (the frame's moves and their resize
// events included) runs as it comes, but the memory windows are placed
// once, when it ends, each where the last arrangement put it: making
// thousands of memories then costs no more than placing each once. Only
// windows may be added meanwhile, none closed or resized. One inside
// another joins the outer one.
class DeferredArrangement {
 public:
  explicit DeferredArrangement(App& app);
  ~DeferredArrangement();
  DeferredArrangement(const DeferredArrangement&) = delete;
  DeferredArrangement& operator=(const DeferredArrangement&) = delete;

 private:
  App& app_;
  ArrangementBatch batch_;
  bool active_;
};

// The frame's events. MDIForm_Resize runs after the frame has taken its new
// size and window state.
void MDIForm_Resize(App& app);
void MDIForm_Unload(App& app);

// Moves and sizes the frame as the program does it; when the size changes
// the frame's resize event (MDIForm_Resize) follows at once, as the
// windowing system sends it. The Qt layer forwards only the user's own
// resizes, never the ones it makes to follow the model.
void MoveMainFrame(App& app, const Rect& rect);

}  // namespace brenko
