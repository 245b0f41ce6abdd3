#pragma once
// Drag and drop between the calculator's readout and the memory cells. A
// drop on the right half of its target adds, on the left half subtracts;
// X is in the target control's container (its window's client area), twips.

#include <string>

#include "core/base/calculator_form.h"
#include "core/base/window_model.h"
#include "core/calc/calc_engine.h"
#include "core/memory/drag_source.h"
#include "core/memory/memory_form.h"
#include "core/tape/tape_window.h"

namespace brenko {

// The drag pictures kept on the calculator window.
inline constexpr const char* kAddPicture = "Image1";
inline constexpr const char* kSubtractPicture = "Image2";
inline constexpr const char* kPlainPicture = "Image3";
inline constexpr const char* kMultiplyPicture = "Image4";
inline constexpr const char* kDividePicture = "Image5";
// The picture a drag shows over the converter.
inline constexpr const char* kDropHerePicture = "DropHere";

// The dragged control's caption and tag; false when it no longer exists
// (a memory window closed during the drag).
bool ReadDragSource(const CalculatorForm& calculator, const MemoryState& memory,
                    const DragSource& source, std::string& caption,
                    std::string& tag);

// The picture the dragged control carries now ("Image1" ... "DropHere"),
// the plain picture when it has none.
std::string SourceDragIcon(const CalculatorForm& calculator,
                           const MemoryState& memory, const DragSource& source);

// Gives the dragged control a drag picture ("Image1" ... "DropHere").
void SetSourceDragIcon(CalculatorForm& calculator, MemoryState& memory,
                       const DragSource& source, const std::string& picture);

// The midpoints of the halves rule, in single precision: the readout's
// Left + Width / 2, a memory value label's Top + Width / 2 (the label's top,
// not its left, as the memory has always measured it).
float ReadoutMidpoint(const Label& readout);
float MemoryMidpoint(const Label& valueLabel);

// The picture of a drag over the readout at X: the pending multiply or
// divide, else add or subtract by the halves rule while X is within the
// readout; nullptr outside it.
const char* ReadoutDragPicture(const CalculatorForm& calculator, float x);
// The picture of a drag over a memory's value label at X.
const char* MemoryDragPicture(const MemoryForm& target, float x);

// A value dropped on the readout (by its right half when `add`) enters the
// calculation: a first operand, a term of the pending sum, or the second
// operand of a pending multiply or divide. Mixed kinds are refused with the
// error signal before anything changes.
void DropOnReadout(const CalcParts& parts, TapeWindowForm& tapeWindow,
                   const std::string& dropped, bool add);

// A value dropped on a memory, which has already been made the current one:
// dropped onto itself it is cleared; otherwise the value is added or
// subtracted with its tape lines, or a mixed kind is refused. True when the
// memory took a new value.
bool DropOnMemory(MemoryForm& target, const std::string& dropped,
                  const std::string& tag, bool add, const CalcParts& parts);

}  // namespace brenko
