#pragma once
// Finding the largest font size at which a text fits, with few tries.
//
// Each size tried is a font the text engine loads (a font configuration
// match and a face set up at that size, a few tenths of a millisecond each).
// Trying every size from the largest down costs one load per step; but a
// text's width grows in step with its font's size, so one measure says about
// where the answer is, and the answer is then found from that guess.

#include <algorithm>
#include <cmath>

namespace brenko::ui {

// The largest of the sizes `smallest` … `largest` for which `fits(size)`
// holds, or `smallest` (never asked) when none above it does: the answer of
// trying each size from `largest` down, for a `fits` that holds for every
// size below one it holds for. The sizes are tried from `guess` (held to
// the range) up while they fit, or down until one fits; the smallest counts
// as fitting.
template <typename Fits>
int LargestFitting(int smallest, int largest, int guess, Fits&& fits) {
  if (largest <= smallest) return smallest;
  int size = std::clamp(guess, smallest, largest);
  if (size == smallest || fits(size)) {
    while (size < largest && fits(size + 1)) ++size;
    return size;
  }
  while (--size > smallest) {
    if (fits(size)) return size;
  }
  return smallest;
}

// A guess for LargestFitting, in steps of `step` from `size`: the number of
// whole steps (rounded down) from `size` to where a text `width` wide at
// `size` would be `room` wide, held to `smallest` … `largest` steps.
inline int StepsToRoom(double size, double width, double room, double step,
                       int smallest, int largest) {
  const double steps =
      width > 0 && step > 0 ? (size * room / width - size) / step : 0;
  if (!(steps > smallest)) return smallest;
  if (!(steps < largest)) return largest;
  return static_cast<int>(std::floor(steps));
}

}  // namespace brenko::ui
