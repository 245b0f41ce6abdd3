#pragma once
// Adding or subtracting two measurement texts of the same kind, as a drop on
// the readout or on a memory does, and the error signal that refuses mixed
// kinds.

#include <string>

namespace brenko {

struct App;

// Combines `first` and `second` by the engine's PendingOp (1 add, 2 subtract):
// both read by their kind ("sq" square, "cu" cubic, else linear), the result
// formatted in the same kind into `output` and stored as ResultValue. Then
// `first` = `output`, `second` = "" and PendingOp = 0. With any other
// PendingOp nothing is computed and `output` as passed in goes to `first`.
// Mixed kinds are refused (SignalError, `output` = "ERROR", both texts kept)
// unless `first` reads as zero, in which case `second` decides the kind.
void CombineMeasures(App& app, std::string& first, std::string& second,
                     std::string& output);

// Two beeps; empties ActionLabel, shows the pending operand's text in the
// Readout, and drops the pending operator and the current operand's text.
void SignalError(App& app);

}  // namespace brenko
