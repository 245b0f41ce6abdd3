#pragma once
// What the operator keys do to the engine and the calculator window. Plus,
// minus, multiply and divide only choose the operation and clear the
// readout for the next entry; Equal, Square and Square root hand the
// readout to the engine. Every key leaves the focus on Equal, so that Enter
// completes an operation.

#include <cstdint>
#include <string>

#include "core/base/calculator_form.h"
#include "core/calc/calc_engine.h"

namespace brenko {

// Whether a readout text holds an area ("sq") or a volume ("cu").
bool IsSquareOrCubic(const std::string& text);

// Plus and Multiply: the operator can be chosen, or changed while the
// readout is still empty, once an entry is pending.
void ChooseOperator(CalcEngine& engine, CalculatorForm& calculator,
                    const char* mark, std::int16_t op);
// Minus: subtract when a value is pending with no operator, otherwise the
// start of a negative entry on an empty readout.
void ChooseMinus(CalcEngine& engine, CalculatorForm& calculator);
// Divide: the operator when a value is pending and none is chosen, otherwise
// the fraction slash.
void ChooseDivide(CalcEngine& engine, CalculatorForm& calculator);

// Square and square root: with nothing pending the entry is worked on by
// itself; otherwise the pending operation is completed first and its result
// worked on.
void WorkOnEntry(const CalcParts& parts, const char* mark, std::int16_t op);

// How every operator key ends: an empty prompt line and the focus on Equal.
void FinishOperatorKey(CalculatorForm& calculator);

}  // namespace brenko
