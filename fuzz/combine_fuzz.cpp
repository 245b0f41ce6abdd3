// Adding and subtracting two measurement texts as the calculator does, at
// both accuracies. The input is the first text, a NUL, then the second.

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/calc/calc_engine.h"
#include "core/calc/combine_measures.h"
#include "core/measure/measure.h"
#include "fuzz_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  const std::size_t cut = input.find('\0');
  const std::string a = input.substr(0, cut);
  const std::string b =
      cut == std::string::npos ? std::string() : input.substr(cut + 1);
  for (const std::int16_t op : {brenko::kOpAdd, brenko::kOpSubtract}) {
    for (const int accuracy : {brenko::kSixteenths, brenko::kThirtySeconds}) {
      std::string first = a;
      std::string second = b;
      std::string output = "unchanged";
      const brenko::Combination combined =
          brenko::CombineMeasures(op, accuracy, first, second, output);
      if (combined.refused) {
        // Mixed kinds: "ERROR", and both texts kept for the error's display.
        BRENKO_FUZZ_CHECK(!combined.result.has_value());
        BRENKO_FUZZ_CHECK(output == "ERROR");
        BRENKO_FUZZ_CHECK(first == a && second == b);
      } else {
        BRENKO_FUZZ_CHECK(combined.result.has_value());
        BRENKO_FUZZ_CHECK(!output.empty() && first == output);
        BRENKO_FUZZ_CHECK(second.empty());
      }
    }
  }
  return 0;
}
