#pragma once
// Memory cells: opening, closing, widening and choosing the memory windows.
// A memory window is addressed by its number (the number in its tag
// "memory N").

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/base/window_model.h"
#include "core/memory/memory_form.h"
#include "core/tape/tape_store.h"
#include "core/tape/tape_window.h"

namespace brenko {

// Opens a memory window captioned `caption` under the next number, in the
// given colours, and counts it; the first two windows line up side by side.
// Returns it, or nullptr when no number is left. `arrange` tells whether the
// windows must be laid out in columns now (from the third window on).
struct OpenedMemory {
  MemoryForm* form = nullptr;
  bool arrange = false;
};
OpenedMemory OpenMemory(MemoryState& memory, const std::string& caption,
                        ColorNumber background, ColorNumber readout);

// Closes the memory window at this place of the window list. The buttons
// that step between tapes only make sense with memories: they go with the
// last one.
void CloseMemoryAt(MemoryState& memory, TapeWindowForm& tapeWindow,
                   std::size_t index);

// Closes the memory windows at the places marked (places of the window
// list as it is now), first to last, as CloseMemoryAt would close each in
// turn, in one pass however many there are.
void CloseMemoriesAt(MemoryState& memory, TapeWindowForm& tapeWindow,
                     const std::vector<bool>& closes);

// Makes this memory the current one: the tape window shows its tape under
// its name.
void MakeCurrentMemory(MemoryState& memory, TapeStore& tapes,
                       TapeWindowForm& tapeWindow, int number);

// Width refitting. A value label's font is taken as kMemoryCharWidth twips a
// character (a digit of the memory font); a window needs that for every
// character of its value plus kMemoryFitAllowance for the label's padding and
// the window's borders, and never less than the first memory's width.
inline constexpr double kMemoryCharWidth = 105;
inline constexpr double kMemoryFitAllowance = 300;
double MemoryFitWidth(std::string_view valueText);

// Refits every memory window to the widest value text. With `growOnly` a
// window is only ever widened (after a sum); a refit that would not fit a
// window's 16-bit width changes nothing. True when the windows took a new
// width (they are then arranged again).
bool RefitMemoryWidths(MemoryState& memory, bool growOnly);

// A size the user gave a memory window: its value label follows, and with
// two or more windows every window takes its width. True when the windows
// are to be arranged again.
bool TakeMemorySize(MemoryState& memory, int number);

// Gives one memory window a width, its value label widened to match.
void SetMemoryWidth(MemoryForm& form, float width);

// Gives every memory window the shared width (its value label widened to
// match) and the common height.
void ApplySharedWidth(MemoryState& memory);

}  // namespace brenko
