#pragma once
// Adding or subtracting two measurement texts of the same kind, as a drop on
// a memory does, and the error signal that refuses mixed kinds.

#include <cstdint>
#include <optional>
#include <string>

#include "core/base/calculator_form.h"
#include "core/base/platform.h"
#include "core/calc/calc_engine.h"

namespace brenko {

// What a combination came to. Refused: the kinds were mixed (the caller
// signals the error). Otherwise `result` is the number computed, nothing
// when the operator was neither add nor subtract.
struct Combination {
  bool refused = false;
  std::optional<double> result;
};

// Combines `first` and `second` by `op` (kOpAdd or kOpSubtract): both read
// by their kind ("sq" square, "cu" cubic, else linear), the result
// formatted in the same kind (linear at `accuracy`) into `output`. Then
// `first` = `output` and `second` = "". With any other `op` nothing is
// computed and `output` as passed in goes to `first`. Mixed kinds are
// refused (`output` = "ERROR", both texts kept) unless `first` reads as
// zero, in which case `second` decides the kind.
Combination CombineMeasures(std::int16_t op, int accuracy, std::string& first,
                            std::string& second, std::string& output);

// Two beeps; empties ActionLabel, shows the pending operand's text in the
// Readout, and drops the pending operator and the current operand's text.
void SignalError(Platform& platform, CalculatorForm& calculator,
                 CalcEngine& engine);

}  // namespace brenko
