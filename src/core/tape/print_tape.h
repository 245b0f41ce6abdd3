#pragma once
// Printing tapes like the paper roll of an adding machine: the tape's name
// centred over a narrow column, every line right-aligned under it, in a small
// fixed-pitch font. One document per tape.

#include <cstddef>
#include <string_view>

namespace brenko {

struct App;

inline constexpr const char* kPrintFont = "Courier";
inline constexpr double kPrintFontSize = 5;

// The length of a text in characters (UTF-8 code points: "²" is one).
std::size_t CharacterCount(std::string_view text);

void PrintTape(App& app, int tape);
// Tape 0 and one tape for every memory number given out since the counters
// were last reset, open or not.
void PrintAllTapes(App& app);

void mnuPrint_Click(App& app);
void mnuPrintAll_Click(App& app);
void mnuPopup2PrintTape_Click(App& app);
void mnuPopup2PrintAllTapes_Click(App& app);

}  // namespace brenko
