#include "core/commands/memory_handlers.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "core/commands/app.h"
#include "core/commands/frame_handlers.h"
#include "core/measure/number_text.h"
#include "core/memory/memory_cells.h"

namespace brenko {

namespace {

inline constexpr const char* kNamedMemoryTitle = "Named Memory";
inline constexpr const char* kNamedMemoryPrompt =
    "Enter a name for this memory cell:";

std::string DefaultMemoryName(const MemoryState& memory) {
  return "Memory" + NumberToText(memory.nextNumber);
}

}  // namespace

MemoryForm* CreateMemory(App& app, const std::string& caption) {
  const OpenedMemory opened =
      OpenMemory(app.memory, caption, app.colors.memoryBackground,
                 app.colors.memoryReadout);
  if (opened.form == nullptr) return nullptr;
  app.tapes.AddTape(opened.form->number, caption);
  app.mainFrame.visible = true;
  app.tapeWindow.scrollButtonsVisible = true;
  if (opened.arrange) ArrangeMemories(app);
  return opened.form;
}

void NewMemory_Click(App& app) {
  CreateMemory(app, DefaultMemoryName(app.memory));
}

void mnuPopup1NewMemory_Click(App& app) { NewMemory_Click(app); }

void NamedMemory_Click(App& app) {
  InputPromptRequest request;
  request.title = kNamedMemoryTitle;
  request.prompt = kNamedMemoryPrompt;
  request.text = DefaultMemoryName(app.memory);
  const std::string answer = app.platform.InputPrompt(request);
  if (answer.empty()) return;
  CreateMemory(app, answer);
}

void mnuPopup1NamedMemory_Click(App& app) { NamedMemory_Click(app); }

void ClearMemory_Click(App& app) {
  for (const auto& form : app.memory.Forms()) {
    if (!form->IsMemoryWindow()) continue;
    form->label1.caption = "0.";
    ClearTape(app.tapes, form->number);
  }
  if (RefitMemoryWidths(app.memory, false)) ArrangeMemories(app);
  ScrollTapeToEnd(app.tapes);
}

void EraseMemory_Click(App& app) {
  // The windows are walked by their place in the window list, counted once
  // before the walk; each close moves the later windows down one place, so
  // the walk passes some of them over. The frame's own close below takes
  // whatever is left.
  //
  // The walk is worked out before any window closes, so that thousands of
  // windows go in one pass: when `closed` windows have gone, the place the
  // walk looks at holds the window that was `closed` places further on.
  MemoryState& memory = app.memory;
  const auto forms = std::as_const(memory).Forms();
  const std::size_t count = kWindowsBeforeMemories + forms.size();
  std::vector<bool> closes(forms.size());
  std::size_t closed = 0;
  for (std::size_t i = kWindowsBeforeMemories; i <= count; ++i) {
    const std::size_t index = i - kWindowsBeforeMemories;
    if (index >= forms.size() - closed) continue;
    if (forms[index + closed]->IsMemoryWindow()) {
      closes[index + closed] = true;
      ++closed;
    }
  }
  CloseMemoriesAt(memory, app.tapeWindow, closes);
  MDIForm_Unload(app);
}

void MemoryForm_Label1_DblClick(App& app, int number) {
  if (MemoryForm* form = app.memory.Find(number)) form->label1.caption = "0.";
}

void MemoryForm_Form_Click(App& app, int number) {
  if (app.memory.Find(number) == nullptr) return;
  if (RefitMemoryWidths(app.memory, false)) ArrangeMemories(app);
}

void MemoryForm_Form_DblClick(App& app, int number) {
  MemoryForm_Form_Click(app, number);
}

void MemoryForm_Form_Resize(App& app, int number) {
  if (TakeMemorySize(app.memory, number)) ArrangeMemories(app);
}

void MemoryForm_Form_Activate(App& app, int number) {
  MakeCurrentMemory(app.memory, app.tapes, app.tapeWindow, number);
}

void MemoryForm_Form_MouseUp(App& app, int number) {
  MakeCurrentMemory(app.memory, app.tapes, app.tapeWindow, number);
}

void MemoryForm_Form_GotFocus(App&, int) {}

void MemoryForm_Form_Unload(App& app, int number) {
  const std::ptrdiff_t index = app.memory.IndexOf(number);
  if (index < 0) return;
  CloseMemoryAt(app.memory, app.tapeWindow, static_cast<std::size_t>(index));
}

}  // namespace brenko
