#include "core/memory/memory_cells.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "core/measure/number_text.h"

namespace brenko {

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

void ApplySharedWidth(MemoryState& memory) {
  for (const auto& form : memory.Forms()) {
    SetMemoryWidth(*form, memory.sharedWidth);
    form->geometry.height = kMemoryWindowHeight;
  }
}

bool RefitMemoryWidths(MemoryState& memory, bool growOnly) {
  if (memory.Forms().empty()) return false;
  double needed = 0;
  for (const auto& form : memory.Forms()) {
    needed = std::max(needed, MemoryFitWidth(form->label1.caption));
  }
  if (growOnly) {
    if (needed <= memory.sharedWidth) return false;
  }
  std::int16_t width = 0;
  // A text too long for a window's 16-bit width leaves the windows as they
  // are.
  if (!ToInt16(needed, width)) return false;
  memory.sharedWidth = width;
  ApplySharedWidth(memory);
  return true;
}

OpenedMemory OpenMemory(MemoryState& memory, const std::string& caption,
                        ColorNumber background, ColorNumber readout) {
  const std::int16_t number = memory.nextNumber;
  if (number < 1) return {};

  auto form = std::make_unique<MemoryForm>();
  form->number = number;
  form->backColor = background;
  form->label1.backColor = readout;
  form->caption = caption;
  form->label1.tag = "memory" + NumberToText(number);
  form->label1.caption = "0.";
  form->label1.rect = {kMemoryLabelLeft, kMemoryLabelTop, 0,
                       kMemoryLabelHeight};
  form->geometry.height = kMemoryWindowHeight;

  std::int16_t raised = 0;
  if (CheckedAdd16(memory.windowCounter, 1, raised)) {
    memory.windowCounter = raised;
  }
  if (CheckedAdd16(memory.nextNumber, 1, raised)) memory.nextNumber = raised;

  // The first two windows simply line up beside the windows already open
  // (the right edge of the rightmost one); from the third on the frame is
  // laid out in columns. Only the first two look at the others: opening
  // thousands stays linear.
  float left = 0;
  if (number < 3) {
    for (const auto& other : memory.Forms()) {
      left = std::max(left, other->geometry.left + other->geometry.width);
    }
  }
  MemoryForm& made = memory.Add(std::move(form));
  made.visible = true;
  if (memory.nextNumber == 2) memory.sharedWidth = kFirstMemoryWidth;
  SetMemoryWidth(made, memory.sharedWidth);

  if (number >= 3) return {&made, true};
  made.geometry.left = left;
  made.geometry.top = 0;
  return {&made, false};
}

namespace {

// What a memory window closing takes with it besides its place: one off the
// window counter, and the current memory if it was this one.
void CountClosed(MemoryState& memory, int number) {
  std::int16_t lowered = 0;
  if (CheckedAdd16(memory.windowCounter, -1, lowered)) {
    memory.windowCounter = lowered;
  }
  if (memory.current == number) memory.current = 0;
}

}  // namespace

void CloseMemoryAt(MemoryState& memory, TapeWindowForm& tapeWindow,
                   std::size_t index) {
  if (index >= memory.Forms().size()) return;
  const int number = memory.Forms()[index]->number;
  memory.RemoveAt(index);
  CountClosed(memory, number);
  if (memory.Forms().empty()) tapeWindow.scrollButtonsVisible = false;
}

void CloseMemoriesAt(MemoryState& memory, TapeWindowForm& tapeWindow,
                     const std::vector<bool>& closes) {
  const auto forms = std::as_const(memory).Forms();
  for (std::size_t i = 0; i < forms.size() && i < closes.size(); ++i) {
    if (closes[i]) CountClosed(memory, forms[i]->number);
  }
  if (memory.RemoveMarked(closes) > 0 && memory.Forms().empty()) {
    tapeWindow.scrollButtonsVisible = false;
  }
}

bool TakeMemorySize(MemoryState& memory, int number) {
  MemoryForm* form = memory.Find(number);
  if (form == nullptr || memory.resizing) return false;
  form->label1.rect.width =
      std::max(0.0f, form->geometry.width - kMemoryLabelMargin);
  if (memory.Forms().size() < 2) return false;
  memory.resizing = true;
  std::int16_t width = 0;
  if (ToInt16(form->geometry.width, width)) memory.sharedWidth = width;
  ApplySharedWidth(memory);
  memory.resizing = false;
  return true;
}

void MakeCurrentMemory(MemoryState& memory, TapeStore& tapes,
                       TapeWindowForm& tapeWindow, int number) {
  MemoryForm* form = memory.Find(number);
  if (form == nullptr) return;
  memory.current = form->number;
  tapes.ShownTape = form->number;
  tapes.leftCol = form->number;
  tapeWindow.title.caption =
      tapes.HasTape(form->number)
          ? tapes.TapeNames()[static_cast<std::size_t>(form->number)]
          : form->caption;
  ScrollTapeToEnd(tapes);
}

}  // namespace brenko
