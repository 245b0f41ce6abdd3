// Reading feet-inch-fraction text into numbers of inches, square inches or
// cubic inches, and writing such numbers back as that text.
//
// A value lives between operations as its display text ("12'- 7 3/16\"",
// " 2'- 100 1/2\" sq."); its kind lives in that text too, and the caller
// picks the routine by the kind.
#ifndef BRENKO_CORE_MEASURE_MEASURE_H_
#define BRENKO_CORE_MEASURE_MEASURE_H_

#include <string>
#include <string_view>

namespace brenko {

// What one feet mark counts in each kind.
inline constexpr int kInchesPerFoot = 12;
inline constexpr int kSquareInchesPerSquareFoot = 144;
inline constexpr int kCubicInchesPerCubicFoot = 1728;

// The fraction denominators the calculator rounds linear values to.
inline constexpr int kSixteenths = 16;
inline constexpr int kThirtySeconds = 32;

// The kind of a measurement text: square when it contains "sq", cubic when it
// contains "cu" (case-sensitive, anywhere); anything else is linear.
bool IsSquareText(std::string_view text);
bool IsCubicText(std::string_view text);

// Read a measurement text. None of them fails: what cannot be read counts as
// zero, and a fraction over zero gives +infinity (or not-a-number for 0/0).
//
// All three trim blanks from both ends of `text` and drop a leading "-" (which
// makes the value negative) in the caller's string. ParseLinear then replaces
// `text` by NumberToText of the magnitude it read: after reading
// "- 7 1/2\"" the text is " 7.5".
//
// ParseLinear reads "12'- 7 3/16\"" as 151.1875 inches and a bare fraction
// "3/16\"" as 0.1875. ParseSquare and ParseCubic count a feet mark as 144 or
// 1728 and read a bare fraction only up to its "/" ("3/16\" sq." is 3).
double ParseLinear(std::string& text);
double ParseSquare(std::string& text);
double ParseCubic(std::string& text);

// Write a number of inches as feet-inch-fraction text, rounded half to even
// to 1/accuracy inch: 151.1875 -> " 12'- 7 3/16\"", 0.5 -> "1/2\"",
// 11.99 -> " 1'- 0 \"", -0.25 -> "-1/4\"", 0 -> " 0\"". An accuracy other
// than 16 or 32 writes whole inches only, with no fraction.
//
// Results of up to 15 characters do not allocate.
//
// A value that cannot be split into feet and inches (not finite, or so large
// that the inch part is lost) is written as NumberToText followed by the inch
// mark (" Inf\"", " 1E+300\"").
std::string FormatLinear(double inches, int accuracy);

// The same for square and cubic inches: square or cubic feet and inches,
// always to sixteenths, with no kind mark (the caller appends " sq." or
// " cu."). FormatSquare(388.5) -> " 2'- 100 1/2\"".
std::string FormatSquare(double square_inches);
std::string FormatCubic(double cubic_inches);

}  // namespace brenko

#endif  // BRENKO_CORE_MEASURE_MEASURE_H_
