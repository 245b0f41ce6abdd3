#pragma once
// Printing tapes like the paper roll of an adding machine: the tape's name
// centred over a narrow column, every line right-aligned under it, in a small
// fixed-pitch font. One document per tape.

#include <cstddef>
#include <string_view>

#include "core/base/platform.h"
#include "core/tape/tape_store.h"

namespace brenko {

inline constexpr const char* kPrintFont = "Courier";
inline constexpr const char* kNoPrinterMessage = "No printer is available.";
inline constexpr double kPrintFontSize = 5;

// The length of a text in characters (UTF-8 code points: "²" is one).
std::size_t CharacterCount(std::string_view text);

// One document on `printer`. Selects the cells it reads, and changes
// nothing else in the store.
void PrintTape(TapeStore& tapes, Platform& printer, int tape);
// Tapes 0 to `count` - 1, one document each, whether or not the store still
// has them (the memory numbers given out since the counters were last reset,
// open or not).
void PrintAllTapes(TapeStore& tapes, Platform& printer, int count);

}  // namespace brenko
