// Reading measurement texts. The steps are deliberately literal: the
// calculator re-reads its own display texts and those a user keyed in, and
// the odd corners (a dash after the feet mark is a separator, a bare fraction
// of an area reads only its numerator) are part of how it has always behaved.

#include <array>
#include <limits>
#include <string>
#include <string_view>

#include "core/measure/blanks.h"
#include "core/measure/measure.h"
#include "core/measure/number_text.h"

namespace brenko {
namespace {

constexpr char kFeetMark = '\'';
constexpr char kInchMark = '"';

enum class BareFraction {
  kFraction,   // "3/16" alone is three sixteenths
  kNumerator,  // "3/16" alone reads as 3
};

// Cuts the blanks around `text` in place, as the readers leave the caller's
// text.
void CutBlanks(std::string& text) {
  const std::string_view kept = TrimBlanks(text);
  const std::size_t first =
      kept.empty() ? text.size()
                   : static_cast<std::size_t>(kept.data() - text.data());
  text.erase(first + kept.size());
  text.erase(0, first);
}

// The fraction amount; a zero denominator is not an error for the reader.
double Divide(double numerator, double denominator) {
  if (denominator == 0.0) {
    if (numerator == 0.0 || numerator != numerator) {
      return std::numeric_limits<double>::quiet_NaN();
    }
    return numerator > 0 ? std::numeric_limits<double>::infinity()
                         : -std::numeric_limits<double>::infinity();
  }
  return numerator / denominator;
}

// Reads `text` (already without its sign) and returns the unsigned amount.
double ReadMagnitude(std::string_view text, double unit, BareFraction bare) {
  double feet = 0.0;
  std::string_view rest = text;
  const auto feet_mark = text.find(kFeetMark);
  if (feet_mark != std::string_view::npos) {
    feet = LeadingNumber(text.substr(0, feet_mark)) * unit;
    rest = text.substr(feet_mark + 1);
  }

  // One dash right after the feet mark ("12'- 7") is the separator.
  rest = TrimLeadingBlanks(rest);
  if (rest.size() >= 2 && rest.front() == '-') {
    rest = TrimLeadingBlanks(rest.substr(1));
  }
  // The inch mark ends the measurement, with any " sq." or " cu." after it.
  rest = rest.substr(0, rest.find(kInchMark));

  // Any further dash separates like a blank ("7-3/16"); the readers below
  // are told so instead of the text being copied with the dashes replaced.
  std::string_view whole = rest;
  std::string_view fraction;
  const auto split = rest.find_first_of(" -");
  if (split != std::string_view::npos) {
    whole = rest.substr(0, split);
    fraction = rest.substr(split + 1);
  } else if (bare == BareFraction::kFraction) {
    const auto slash = rest.find('/');
    if (slash != std::string_view::npos && slash >= 1) {
      whole = "0";
      fraction = rest;
    }
  }

  const double inches = LeadingNumber(whole);

  double fraction_amount = 0.0;
  const auto slash = fraction.find('/');
  if (slash != std::string_view::npos) {
    const double numerator = RoundHalfEven(
        LeadingNumber(fraction.substr(0, slash), DashReading::kBlank), 4);
    const double denominator = RoundHalfEven(
        LeadingNumber(fraction.substr(slash + 1), DashReading::kBlank), 4);
    fraction_amount = Divide(numerator, denominator);
  }

  return feet + inches + fraction_amount;
}

// Trims `text`, takes off its sign and reads the rest; `negative` tells
// whether a sign was there.
double ReadMeasure(std::string& text, double unit, BareFraction bare,
                   bool& negative) {
  CutBlanks(text);
  negative = !text.empty() && text.front() == '-';
  if (negative) text.erase(0, 1);
  return ReadMagnitude(text, unit, bare);
}

double Signed(double magnitude, bool negative) {
  return negative ? 0.0 - magnitude : magnitude;
}

}  // namespace

bool IsSquareText(std::string_view text) {
  return text.find("sq") != std::string_view::npos;
}

bool IsCubicText(std::string_view text) {
  return text.find("cu") != std::string_view::npos;
}

double ParseLinear(std::string& text) {
  bool negative = false;
  const double magnitude =
      ReadMeasure(text, kInchesPerFoot, BareFraction::kFraction, negative);
  std::array<char, kNumberTextCapacity> written{};
  char* end = WriteNumberText(magnitude, written.data());
  text.assign(written.data(), end);
  return Signed(magnitude, negative);
}

double ParseSquare(std::string& text) {
  bool negative = false;
  const double magnitude = ReadMeasure(text, kSquareInchesPerSquareFoot,
                                       BareFraction::kNumerator, negative);
  return Signed(magnitude, negative);
}

double ParseCubic(std::string& text) {
  bool negative = false;
  const double magnitude = ReadMeasure(text, kCubicInchesPerCubicFoot,
                                       BareFraction::kNumerator, negative);
  return Signed(magnitude, negative);
}

}  // namespace brenko
