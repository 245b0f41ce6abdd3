#pragma once
// Keying a number into the readout. The readout's text is both the display
// and the entry buffer: every decision is taken by looking at it. "0." is
// the empty entry; "3.14159265" is pi, which the entry keys leave alone.

#include <string>

#include "core/base/calculator_form.h"
#include "core/base/readout_marks.h"
#include "core/calc/calc_engine.h"
#include "core/tape/tape_store.h"

namespace brenko {

inline constexpr const char* kEmptyEntry = "0.";

// The digit key `index` (its caption) onto the readout. Outside a formula
// the prompt line empties too.
void EnterDigit(CalculatorForm& calculator, const CalcEngine& engine,
                int index);

// The marks and separators of an entry, each on the readout's text. `marks`
// follows that text from key to key, so that a key costs the same however
// long the entry is.
void AddPoint(std::string& readout, ReadoutMarks& marks);
void AddFeetMark(std::string& readout);
void AddInchMark(std::string& readout, ReadoutMarks& marks);
void AddSpace(std::string& readout, ReadoutMarks& marks);

// Backspace on a readout text: removes the feet piece "'- " as one, or else
// the last character; nothing left shows the empty entry. Leaves "" and
// "0." alone.
void RemoveLastPiece(std::string& readout, ReadoutMarks& marks);

// Pi on an empty readout (or a bare zero): the readout and the engine's
// entry become pi; false when the readout held anything else.
bool EnterPi(std::string& readout, CalcEngine& engine);

// Cancel: the empty entry, nothing pending, no formula under way, the
// calculator's indicator and prompt empty, and "Clear" on tape 0.
void CancelCalculation(CalcEngine& engine, CalculatorForm& calculator,
                       TapeStore& tapes);

}  // namespace brenko
