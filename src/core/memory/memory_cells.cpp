#include "core/memory/memory_cells.h"

#include <algorithm>
#include <cstddef>
#include <memory>

#include "core/commands/app.h"
#include "core/measure/number_text.h"
#include "core/shell/arrange.h"

namespace brenko {

namespace {

inline constexpr const char* kNamedMemoryTitle = "Named Memory";
inline constexpr const char* kNamedMemoryPrompt =
    "Enter a name for this memory cell:";

bool IsMemoryWindow(const MemoryForm& form) {
  return form.label1.tag.find("memory") != std::string::npos;
}

std::ptrdiff_t IndexOf(const MemoryState& memory, int number) {
  for (std::size_t i = 0; i < memory.forms.size(); ++i) {
    if (memory.forms[i]->number == number) {
      return static_cast<std::ptrdiff_t>(i);
    }
  }
  return -1;
}

// Closes the memory window at this place of the window list.
void UnloadAt(App& app, std::size_t index) {
  MemoryState& memory = app.memory;
  if (index >= memory.forms.size()) return;
  const int number = memory.forms[index]->number;
  memory.forms.erase(memory.forms.begin() + static_cast<std::ptrdiff_t>(index));
  std::int16_t lowered = 0;
  if (CheckedAdd16(memory.windowCounter, -1, lowered)) {
    memory.windowCounter = lowered;
  }
  if (memory.current == number) memory.current = 0;
  // The buttons that step between tapes only make sense with memories.
  if (memory.forms.empty()) app.tapeWindow.scrollButtonsVisible = false;
}

}  // namespace

void SetMemoryWidth(MemoryForm& form, float width) {
  form.geometry.width = width;
  form.label1.rect.width = std::max(0.0f, width - kMemoryLabelMargin);
}

double MemoryFitWidth(std::string_view valueText) {
  const double needed =
      static_cast<double>(valueText.size()) * kMemoryCharWidth +
      kMemoryFitAllowance;
  return std::max(static_cast<double>(kFirstMemoryWidth), needed);
}

void ApplySharedWidth(App& app) {
  for (auto& form : app.memory.forms) {
    SetMemoryWidth(*form, app.memory.sharedWidth);
    form->geometry.height = kMemoryWindowHeight;
  }
}

void RefitMemoryWidths(App& app, bool growOnly) {
  MemoryState& memory = app.memory;
  if (memory.forms.empty()) return;
  double needed = 0;
  for (const auto& form : memory.forms) {
    needed = std::max(needed, MemoryFitWidth(form->label1.caption));
  }
  if (growOnly) {
    if (needed <= memory.sharedWidth) return;
  }
  std::int16_t width = 0;
  // A text too long for a window's 16-bit width leaves the windows as they
  // are.
  if (!ToInt16(needed, width)) return;
  memory.sharedWidth = width;
  ApplySharedWidth(app);
  ArrangeMemories(app);
}

MemoryForm* CreateMemory(App& app, const std::string& caption) {
  MemoryState& memory = app.memory;
  const std::int16_t number = memory.nextNumber;
  if (number < 1) return nullptr;

  auto form = std::make_unique<MemoryForm>();
  form->number = number;
  form->backColor = app.colors.memoryBackground;
  form->label1.backColor = app.colors.memoryReadout;
  form->caption = caption;
  form->label1.tag = "memory" + NumberToText(number);
  form->label1.caption = "0.";
  form->label1.rect = {kMemoryLabelLeft, kMemoryLabelTop, 0,
                       kMemoryLabelHeight};
  form->geometry.height = kMemoryWindowHeight;

  const auto slot = static_cast<std::size_t>(number);
  if (memory.names.size() < slot + 1) memory.names.resize(slot + 1);
  memory.names[slot] = caption;
  app.tapes.AddTape(number, caption);

  std::int16_t raised = 0;
  if (CheckedAdd16(memory.windowCounter, 1, raised)) {
    memory.windowCounter = raised;
  }
  if (CheckedAdd16(memory.nextNumber, 1, raised)) memory.nextNumber = raised;

  // Beside the windows already open: the right edge of the rightmost one.
  float left = 0;
  for (const auto& other : memory.forms) {
    left = std::max(left, other->geometry.left + other->geometry.width);
  }
  memory.forms.push_back(std::move(form));
  MemoryForm* made = memory.forms.back().get();

  made->visible = true;
  app.mainFrame.visible = true;
  app.tapeWindow.scrollButtonsVisible = true;
  if (memory.nextNumber == 2) memory.sharedWidth = kFirstMemoryWidth;
  SetMemoryWidth(*made, memory.sharedWidth);

  // The first two windows simply line up; from the third on the frame is
  // laid out in columns.
  if (number < 3) {
    made->geometry.left = left;
    made->geometry.top = 0;
  } else {
    ArrangeMemories(app);
  }
  return made;
}

void NewMemory_Click(App& app) {
  CreateMemory(app, "Memory" + NumberToText(app.memory.nextNumber));
}

void mnuPopup1NewMemory_Click(App& app) { NewMemory_Click(app); }

void NamedMemory_Click(App& app) {
  InputPromptRequest request;
  request.title = kNamedMemoryTitle;
  request.prompt = kNamedMemoryPrompt;
  request.text = "Memory" + NumberToText(app.memory.nextNumber);
  const std::string answer = app.platform.InputPrompt(request);
  if (answer.empty()) return;
  CreateMemory(app, answer);
}

void mnuPopup1NamedMemory_Click(App& app) { NamedMemory_Click(app); }

void ClearMemory_Click(App& app) {
  for (auto& form : app.memory.forms) {
    if (!IsMemoryWindow(*form)) continue;
    form->label1.caption = "0.";
    ClearTape(app.tapes, form->number);
  }
  RefitMemoryWidths(app, false);
  ScrollTapeToEnd(app.tapes);
}

void EraseMemory_Click(App& app) {
  // The windows are walked by their place in the window list, counted once
  // before the walk; each close moves the later windows down one place, so
  // the walk passes some of them over. The frame's own close below takes
  // whatever is left.
  const std::size_t count = kWindowsBeforeMemories + app.memory.forms.size();
  for (std::size_t i = 0; i <= count; ++i) {
    if (i < kWindowsBeforeMemories) continue;
    const std::size_t index = i - kWindowsBeforeMemories;
    if (index >= app.memory.forms.size()) continue;
    if (IsMemoryWindow(*app.memory.forms[index])) UnloadAt(app, index);
  }
  MDIForm_Unload(app);
}

void MemoryForm_Label1_DblClick(App& app, int number) {
  if (MemoryForm* form = app.memory.Find(number)) form->label1.caption = "0.";
}

void MemoryForm_Form_Click(App& app, int number) {
  if (app.memory.Find(number) == nullptr) return;
  RefitMemoryWidths(app, false);
}

void MemoryForm_Form_DblClick(App& app, int number) {
  MemoryForm_Form_Click(app, number);
}

void MemoryForm_Form_Resize(App& app, int number) {
  MemoryState& memory = app.memory;
  MemoryForm* form = memory.Find(number);
  if (form == nullptr || memory.resizing) return;
  form->label1.rect.width =
      std::max(0.0f, form->geometry.width - kMemoryLabelMargin);
  if (memory.forms.size() < 2) return;
  memory.resizing = true;
  std::int16_t width = 0;
  if (ToInt16(form->geometry.width, width)) memory.sharedWidth = width;
  ApplySharedWidth(app);
  memory.resizing = false;
  ArrangeMemories(app);
}

void MakeCurrentMemory(App& app, int number) {
  MemoryForm* form = app.memory.Find(number);
  if (form == nullptr) return;
  app.memory.current = form->number;
  TapeStore& tapes = app.tapes;
  tapes.ShownTape = form->number;
  tapes.leftCol = form->number;
  const auto slot = static_cast<std::size_t>(form->number);
  app.tapeWindow.title.caption =
      tapes.HasTape(form->number) ? tapes.TapeNames()[slot] : form->caption;
  ScrollTapeToEnd(tapes);
}

void MemoryForm_Form_Activate(App& app, int number) {
  MakeCurrentMemory(app, number);
}

void MemoryForm_Form_MouseUp(App& app, int number) {
  MakeCurrentMemory(app, number);
}

void MemoryForm_Form_GotFocus(App&, int) {}

void MemoryForm_Form_Unload(App& app, int number) {
  const std::ptrdiff_t index = IndexOf(app.memory, number);
  if (index < 0) return;
  UnloadAt(app, static_cast<std::size_t>(index));
}

}  // namespace brenko
