#include "core/commands/frame_handlers.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "core/commands/app.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "core/shell/arrange.h"

namespace brenko {
namespace {

// Whether no two memory windows have the same number.
bool NumbersUnique(const MemoryState& memory) {
  std::vector<int> numbers;
  numbers.reserve(memory.Forms().size());
  for (const auto& form : memory.Forms()) numbers.push_back(form->number);
  std::sort(numbers.begin(), numbers.end());
  return std::adjacent_find(numbers.begin(), numbers.end()) == numbers.end();
}

}  // namespace

void ArrangeMemories(App& app) {
  const ArrangementPlan plan =
      app.arrangementBatch != nullptr
          ? app.arrangementBatch->Plan(app.memory, app.mainFrame,
                                       app.platform.Screen())
          : PlanArrangement(app.memory, app.mainFrame, app.platform.Screen());
  if (plan.frame) {
    // While the layout moves the frame, the frame's resize must not lay the
    // windows out again.
    if (plan.frameWhileArranging) app.mainFrame.arranging = true;
    MoveMainFrame(app, *plan.frame);
    if (plan.frameWhileArranging) app.mainFrame.arranging = false;
  }
  // The plan's forms were found through the memories read-only.
  if (!plan.places.empty()) app.memory.FormsChanged();
  for (const ArrangementPlan::Place& place : plan.places) {
    place.form->geometry.left = place.left;
    place.form->geometry.top = place.top;
  }
  if (plan.columns && app.arrangementBatch != nullptr) {
    app.arrangementBatch->Note(*plan.columns);
  }
}

void mnuArrangeMemory_Click(App& app) { ArrangeMemories(app); }

DeferredArrangement::DeferredArrangement(App& app)
    : app_(app), active_(app.arrangementBatch == nullptr) {
  if (active_) app_.arrangementBatch = &batch_;
}

DeferredArrangement::~DeferredArrangement() {
  if (!active_) return;
  app_.arrangementBatch = nullptr;
  if (batch_.Place()) app_.memory.FormsChanged();
}

void MoveMainFrame(App& app, const Rect& rect) {
  Rect& geometry = app.mainFrame.geometry;
  const bool resized =
      geometry.width != rect.width || geometry.height != rect.height;
  geometry = rect;
  if (resized) MDIForm_Resize(app);
}

void MDIForm_Resize(App& app) {
  MainFrameForm& frame = app.mainFrame;
  // Keep the calculator and its companions above the frame. In a normal
  // frame all of them; minimised or maximised, the calculator alone.
  if (frame.state == WindowState::kNormal) {
    if (app.tapeWindow.visible) {
      app.platform.SetTopmost({WindowKind::kTape, 0}, true);
    }
    if (app.converter.visible) {
      app.platform.SetTopmost({WindowKind::kConverter, 0}, true);
    }
  }
  app.platform.SetTopmost({WindowKind::kCalculator, 0}, true);
  app.calculator.focus = "Equal";

  // The resize that the layout below causes comes back here once; the
  // toggle lets it pass without laying out again.
  if (frame.resizeToggle && app.memory.Forms().size() >= 2) {
    frame.resizeToggle = false;
    return;
  }
  if (frame.arranging) return;
  frame.resizeToggle = true;
  ArrangeMemories(app);
}

void MDIForm_Unload(App& app) {
  MainFrameForm& frame = app.mainFrame;
  MemoryState& memory = app.memory;
  frame.closing = true;
  frame.state = WindowState::kNormal;
  frame.geometry.width = kClosedFrameWidth;
  frame.caption = kClosedFrameCaption;
  frame.visible = false;

  // From the last window to the first, every memory window closes. Each is
  // looked for by its number, and the first window of that number goes:
  // when no number is there twice (it can be only at the last number a
  // file holds), that is the window itself, and all go in one pass.
  if (NumbersUnique(memory)) {
    const auto forms = std::as_const(memory).Forms();
    std::vector<bool> closes(forms.size());
    for (std::size_t i = 0; i < forms.size(); ++i) {
      closes[i] = forms[i]->IsMemoryWindow();
    }
    CloseMemoriesAt(memory, app.tapeWindow, closes);
  } else {
    for (std::size_t i = memory.Forms().size(); i > 0; --i) {
      const MemoryForm& form = *memory.Forms()[i - 1];
      if (form.IsMemoryWindow()) MemoryForm_Form_Unload(app, form.number);
    }
  }

  // The tapes of the memories go with them; the calculator's stays counted.
  TapeStore& tapes = app.tapes;
  memory.ForgetNames();
  tapes.DropMemoryTapes();
  if (tapes.ShownTape != 0) {
    tapes.ShownTape = 0;
    app.tapeWindow.title.caption = tapes.TapeNames()[0];
  }
  memory.current = 0;
  memory.nextNumber = 1;
  memory.windowCounter = 1;

  // The close itself is refused: the frame lives on, empty and hidden.
  frame.visible = false;
  frame.closing = false;
}

}  // namespace brenko
