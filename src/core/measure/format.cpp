// Writing numbers of inches, square inches and cubic inches as
// feet-inch-fraction text. The text is built in a local buffer and copied
// into the result once, so a short result stays in the string's own storage.

#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

#include "core/measure/measure.h"
#include "core/measure/number_text.h"

namespace brenko {
namespace {

constexpr char kInchMark = '"';

// Fraction texts by count of sixteenths and of thirty-seconds: even counts
// are shown reduced ("1/8", not "2/16").
constexpr std::array<std::string_view, 16> kSixteenthTexts = {
    "",    "1/16", "1/8", "3/16",  "1/4", "5/16",  "3/8", "7/16",
    "1/2", "9/16", "5/8", "11/16", "3/4", "13/16", "7/8", "15/16"};

constexpr std::array<std::string_view, 32> kThirtySecondTexts = {
    "",    "1/32",  "1/16",  "3/32",  "1/8", "5/32",  "3/16",  "7/32",
    "1/4", "9/32",  "5/16",  "11/32", "3/8", "13/32", "7/16",  "15/32",
    "1/2", "17/32", "9/16",  "19/32", "5/8", "21/32", "11/16", "23/32",
    "3/4", "25/32", "13/16", "27/32", "7/8", "29/32", "15/16", "31/32"};

std::string_view FractionText(int count, int denominator) {
  if (denominator == kSixteenths) return kSixteenthTexts[count];
  if (denominator == kThirtySeconds) return kThirtySecondTexts[count];
  return {};
}

char* Append(char* out, std::string_view text) {
  for (char c : text) *out++ = c;
  return out;
}

// Whole inches in number-to-text form: a blank and the digits.
char* AppendInches(char* out, int inches) {
  *out++ = ' ';
  return std::to_chars(out, out + 8, inches).ptr;
}

// Used when the value cannot be split into feet and inches.
std::string Unsplittable(double x) {
  std::array<char, kNumberTextCapacity + 1> text{};
  char* end = WriteNumberText(x, text.data());
  *end++ = kInchMark;
  return std::string(text.data(), end);
}

// `unit` is what one foot counts (12, 144, 1728); `denominator` is 16, 32, or
// anything else for whole inches only.
std::string FormatMeasure(double x, int unit, int denominator) {
  if (!std::isfinite(x)) return Unsplittable(x);
  const double magnitude = std::fabs(x);

  double feet = std::floor(magnitude / unit);
  // The inch count is a small integer; for a magnitude so large that the
  // subtraction no longer lands within one foot it cannot be formed.
  const double whole_inches = std::floor(magnitude - feet * unit);
  if (!(whole_inches >= 0.0 && whole_inches < unit)) return Unsplittable(x);
  int inches = static_cast<int>(whole_inches);
  // Unrounded: it decides the blank before the inch mark even when the
  // fraction rounds away.
  const double remainder = magnitude - feet * unit - inches;

  int count = 0;
  if (denominator == kSixteenths || denominator == kThirtySeconds) {
    // 0 <= remainder < 1, so the rounded count lies in 0..denominator.
    count = static_cast<int>(RoundHalfEven(remainder * denominator));
    if (count == denominator) {
      count = 0;
      ++inches;
      if (inches == unit) {
        inches = 0;
        feet += 1.0;
      }
    }
  } else {
    denominator = 0;
  }
  const std::string_view fraction = FractionText(count, denominator);
  const bool has_remainder = remainder != 0.0;

  std::array<char, 2 * kNumberTextCapacity> text{};
  char* out = text.data();
  if (x < 0) *out++ = '-';
  if (feet != 0.0) {
    out = WriteNumberText(feet, out);
    out = Append(out, "'-");
    out = AppendInches(out, inches);
    if (has_remainder) {
      *out++ = ' ';
      out = Append(out, fraction);
    }
  } else if (inches != 0) {
    out = AppendInches(out, inches);
    if (has_remainder) {
      *out++ = ' ';
      out = Append(out, fraction);
    }
  } else if (fraction.empty()) {
    out = Append(out, " 0");
  } else {
    out = Append(out, fraction);
  }
  *out++ = kInchMark;
  return std::string(text.data(), out);
}

}  // namespace

std::string FormatLinear(double inches, int accuracy) {
  return FormatMeasure(inches, kInchesPerFoot, accuracy);
}

std::string FormatSquare(double square_inches) {
  return FormatMeasure(square_inches, kSquareInchesPerSquareFoot, kSixteenths);
}

std::string FormatCubic(double cubic_inches) {
  return FormatMeasure(cubic_inches, kCubicInchesPerCubicFoot, kSixteenths);
}

}  // namespace brenko
