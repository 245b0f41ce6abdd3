#pragma once
// Values to and from other programs: what Copy puts on the clipboard from
// each window, and the readout's Paste. The Qt layer owns the clipboard
// itself; these say what goes on it and what a text from it does.

#include <string>
#include <string_view>
#include <vector>

namespace brenko {

struct App;

// The calculator's Copy: the readout's value without its leading blank.
std::string Calculator_CopyText(const App& app);
// A memory window's Copy: its value; empty for a memory that is gone.
std::string MemoryForm_CopyText(const App& app, int number);
// The tape window's Copy: the given lines (1-based rows) of the shown tape,
// or all its lines when none is given, one per line, trailing blanks cut.
std::string TapeForm_CopyText(const App& app, const std::vector<int>& rows);

// The calculator's Paste: a measurement text becomes the readout's entry,
// as if keyed (outside a formula the prompt line empties, as a digit key
// does); anything else beeps once and changes nothing. True when taken.
bool Readout_Paste(App& app, std::string_view clipboard);

}  // namespace brenko
