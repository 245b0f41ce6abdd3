// Values travel between operations as their display text, so a formatted
// value must read back as itself and its text must not drift when the value
// is formatted again.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>

#include "core/measure/measure.h"

namespace brenko {
namespace {

constexpr int kFeetRange = 1000;

class GridRoundTripTest : public testing::TestWithParam<int> {};

TEST_P(GridRoundTripTest, FormattedGridValueReadsBackAndStaysStable) {
  const int denominator = GetParam();
  const int steps = kFeetRange * kInchesPerFoot * denominator;
  int failures = 0;
  for (int step = -steps; step <= steps && failures < 10; ++step) {
    const double value = static_cast<double>(step) / denominator;
    const std::string text = FormatLinear(value, denominator);
    std::string reread = text;
    const double parsed = ParseLinear(reread);
    if (parsed != value || FormatLinear(parsed, denominator) != text) {
      ++failures;
      ADD_FAILURE() << value << " -> \"" << text << "\" -> " << parsed;
    }
  }
  EXPECT_EQ(failures, 0);
}

INSTANTIATE_TEST_SUITE_P(Accuracies, GridRoundTripTest,
                         testing::Values(kSixteenths, kThirtySeconds),
                         [](const testing::TestParamInfo<int>& info) {
                           return info.param == kSixteenths ? "Sixteenths"
                                                            : "ThirtySeconds";
                         });

// Off the grid the text carries the rounded value: reading it gives the
// nearest grid value, which then formats and reads back unchanged.
TEST_P(GridRoundTripTest, OffGridValueReadsBackAsNearestGridValue) {
  const int denominator = GetParam();
  std::uint64_t state = 12345;
  int failures = 0;
  for (int i = 0; i < 200000 && failures < 10; ++i) {
    state = state * 6364136223846793005ULL + 1442695040888963407ULL;
    const double unit = static_cast<double>(state >> 11) / 9007199254740992.0;
    const double value = (unit * 2.0 - 1.0) * kFeetRange * kInchesPerFoot;
    std::string text = FormatLinear(value, denominator);
    const double parsed = ParseLinear(text);
    const bool on_grid =
        parsed * denominator == std::floor(parsed * denominator);
    const bool nearest = std::fabs(parsed - value) <= 0.5 / denominator + 1e-12;
    std::string again = FormatLinear(parsed, denominator);
    const std::string formatted = again;
    const double reparsed = ParseLinear(again);
    if (!on_grid || !nearest || reparsed != parsed ||
        FormatLinear(reparsed, denominator) != formatted) {
      ++failures;
      ADD_FAILURE() << value << " -> " << parsed << " -> \"" << formatted
                    << "\"";
    }
  }
  EXPECT_EQ(failures, 0);
}

TEST(SquareCubicRoundTripTest, SixteenthsReadBack) {
  for (int step = -20000; step <= 20000; ++step) {
    const double value = step * 7.0 / 16.0;
    // Below one inch an area or volume is a bare fraction such as "3/16\"",
    // which these readers take only up to its "/"; see the parse tests.
    if (std::fabs(value) < 1.0 && value != 0.0) continue;
    std::string square = FormatSquare(value);
    EXPECT_EQ(ParseSquare(square), value) << value;
    std::string cubic = FormatCubic(value);
    EXPECT_EQ(ParseCubic(cubic), value) << value;
  }
}

TEST(SquareCubicRoundTripTest, BareFractionBelowOneInchReadsNumerator) {
  std::string square = FormatSquare(0.1875);
  EXPECT_EQ(square, "3/16\"");
  EXPECT_EQ(ParseSquare(square), 3.0);
}

}  // namespace
}  // namespace brenko
