// The calculator's number rules: how a number is written as text, how the
// leading number of a text is read, half-to-even rounding and the checked
// 16- and 32-bit integer conversions. Every routine here is independent of
// the C and C++ locales: the decimal point is always ".".
#ifndef BRENKO_CORE_MEASURE_NUMBER_TEXT_H_
#define BRENKO_CORE_MEASURE_NUMBER_TEXT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace brenko {

// Room WriteNumberText needs at most (the longest text is a sign followed by
// 15 significant digits, a point and a four-character exponent).
inline constexpr std::size_t kNumberTextCapacity = 32;

// Writes the number-to-text form of `x` (see NumberToText) to `out`, which
// must have room for kNumberTextCapacity characters, and returns the end of
// what was written. No terminating NUL is written.
char* WriteNumberText(double x, char* out);

// The number-to-text rule: one leading blank for a non-negative number, "-"
// for a negative one; at most 15 significant digits, no trailing zeros, no
// zero before the point when |x| < 1, "." as the point, no thousands
// separators. Where 15 digits cannot show the number in plain form (|x| of
// 1E+15 and above, or below 1E-04) it is written with an exponent of at least
// two digits: " 1E+15", " 1.5E-05". Negative zero is written " 0".
// Not-a-number is written " NaN" and infinities " Inf" and "-Inf".
// Examples: " 3", " .5", "-.5", " 151.1875", " .1875".
std::string NumberToText(double x);

// NumberToText without the leading blank of a non-negative number ("3", ".5",
// "-.5").
std::string TrimmedNumberText(double x);

// How a dash inside a text is read by LeadingNumber.
enum class DashReading {
  kSign,   // a dash where the number may begin is its minus sign
  kBlank,  // every dash counts as a blank (the fraction of a measurement)
};

// The leading-number rule: skips leading blanks; blanks, tabs and line feeds
// inside the number are skipped too; reads an optional sign, digits with at
// most one "." and an optional exponent ("E", "e", "D" or "d", an optional
// sign and at least one digit); stops at the first character that cannot
// continue the number. A text with no digit before that point reads 0.
// "12" -> 12, "7 3" -> 73, "3/16" -> 3, "ERROR" -> 0, " 1200.5 " -> 1200.5.
// A magnitude beyond the double range reads as an infinity, one below it as
// zero. Does not allocate unless the number has more than 64 characters.
double LeadingNumber(std::string_view text,
                     DashReading dash = DashReading::kSign);

// Rounds `x` to `decimals` places after the point, a half going to the even
// neighbour: RoundHalfEven(2.5) == 2, RoundHalfEven(1200.5) == 1200,
// RoundHalfEven(0.00005, 4) == 0, RoundHalfEven(0.00015, 4) == 0.0002.
// Non-finite values are returned unchanged; a negative `decimals` rounds to
// tens, hundreds and so on.
//
// With decimals == 0 the binary value itself is rounded (exactly).
// With other decimals the number is taken as the shortest decimal text that
// reads back to it (the digits the user typed, e.g. 0.00015), and that text
// is rounded decimally; scaling by a power of ten instead would turn such a
// typed half into 1.4999999999999998 and round it the wrong way.
double RoundHalfEven(double x, int decimals = 0);

// Rounds `x` half to even and stores it in `out` when it fits; returns false
// (leaving `out` alone) for not-a-number, infinities and values out of range.
bool ToInt16(double x, std::int16_t& out);
bool ToInt32(double x, std::int32_t& out);

// 16-bit addition that reports overflow instead of wrapping: returns false
// (leaving `out` alone) when a + b does not fit.
bool CheckedAdd16(std::int16_t a, std::int16_t b, std::int16_t& out);

}  // namespace brenko

#endif  // BRENKO_CORE_MEASURE_NUMBER_TEXT_H_
