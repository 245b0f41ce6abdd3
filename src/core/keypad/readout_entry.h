#pragma once
// The entry keys of the keypad. The readout's text is both the display and
// the entry buffer: every decision is taken by looking at it. "0." is the
// empty entry; "3.14159265" is pi, which the other entry keys leave alone.

#include <string>

namespace brenko {

struct App;

inline constexpr const char* kEmptyEntry = "0.";

void Number_Click(App& app, int index);
void Decimal_Click(App& app);
void Foot_Click(App& app);
void Inch_Click(App& app);
void Spacebar_Click(App& app);
void Backspace_Click(App& app);
void CancelEntry_Click(App& app);
void Cancel_Click(App& app);
void Pi_Click(App& app);

// Backspace on a readout text: removes the feet piece "'- " as one, or else
// the last character; nothing left shows the empty entry. Leaves "" and
// "0." alone.
void RemoveLastPiece(std::string& readout);

}  // namespace brenko
