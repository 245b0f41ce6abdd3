// The measurement texts and numbers: any bytes through the three parsers,
// and any double (NaN and the infinities too) through every formatter at
// both accuracies. Whatever a parser reads must format again.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "core/measure/measure.h"
#include "core/measure/number_text.h"
#include "fuzz_check.h"

namespace {

void FormatEverywhere(double x) {
  for (const int accuracy : {brenko::kSixteenths, brenko::kThirtySeconds}) {
    BRENKO_FUZZ_CHECK(!brenko::FormatLinear(x, accuracy).empty());
  }
  BRENKO_FUZZ_CHECK(!brenko::FormatSquare(x).empty());
  BRENKO_FUZZ_CHECK(!brenko::FormatCubic(x).empty());
  char buffer[brenko::kNumberTextCapacity];
  const char* end = brenko::WriteNumberText(x, buffer);
  BRENKO_FUZZ_CHECK(end > buffer &&
                    end <= buffer + brenko::kNumberTextCapacity);
  BRENKO_FUZZ_CHECK(!brenko::NumberToText(x).empty());
  brenko::TrimmedNumberText(x);
  brenko::RoundHalfEven(x);
  brenko::RoundHalfEven(x, 4);
  std::int16_t small = 0;
  std::int32_t large = 0;
  // A number that does not fit is refused, never cut.
  if (brenko::ToInt16(x, small)) BRENKO_FUZZ_CHECK(std::isfinite(x));
  if (brenko::ToInt32(x, large)) BRENKO_FUZZ_CHECK(std::isfinite(x));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);

  std::string linear = input;
  std::string square = input;
  std::string cubic = input;
  FormatEverywhere(brenko::ParseLinear(linear));
  FormatEverywhere(brenko::ParseSquare(square));
  FormatEverywhere(brenko::ParseCubic(cubic));
  brenko::IsSquareText(input);
  brenko::IsCubicText(input);
  brenko::LeadingNumber(input);
  brenko::LeadingNumber(input, brenko::DashReading::kBlank);

  // The first eight bytes, taken as a double, reach every bit pattern.
  if (size >= sizeof(double)) {
    double x = 0;
    std::memcpy(&x, data, sizeof x);
    FormatEverywhere(x);
  }
  return 0;
}
