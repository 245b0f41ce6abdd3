#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "core/measure/measure.h"

namespace brenko {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

enum class Kind { kLinear, kSquare, kCubic };

struct FormatRow {
  std::string_view name;
  Kind kind;
  int accuracy;  // linear only
  double value;
  std::string_view text;
};

std::string Format(Kind kind, double value, int accuracy) {
  switch (kind) {
    case Kind::kLinear:
      return FormatLinear(value, accuracy);
    case Kind::kSquare:
      return FormatSquare(value);
    case Kind::kCubic:
      return FormatCubic(value);
  }
  return {};
}

class FormatTest : public testing::TestWithParam<FormatRow> {};

TEST_P(FormatTest, WritesFeetInchFraction) {
  const FormatRow& row = GetParam();
  EXPECT_EQ(Format(row.kind, row.value, row.accuracy), row.text);
}

std::string RowName(const testing::TestParamInfo<FormatRow>& info) {
  return std::string(info.param.name);
}

INSTANTIATE_TEST_SUITE_P(
    Sixteenths, FormatTest,
    testing::Values(
        // Worked examples.
        FormatRow{"FeetInchesFraction", Kind::kLinear, 16, 151.1875,
                  " 12'- 7 3/16\""},
        FormatRow{"Half", Kind::kLinear, 16, 0.5, "1/2\""},
        FormatRow{"ExactlyOneFoot", Kind::kLinear, 16, 12.0, " 1'- 0\""},
        FormatRow{"CarryIntoFootKeepsBlank", Kind::kLinear, 16, 11.99,
                  " 1'- 0 \""},
        FormatRow{"NegativeQuarter", Kind::kLinear, 16, -0.25, "-1/4\""},
        FormatRow{"Zero", Kind::kLinear, 16, 0.0, " 0\""},
        // Edge cases.
        FormatRow{"ElevenNinetySevenCarriesIntoFoot", Kind::kLinear, 16, 11.97,
                  " 1'- 0 \""},
        FormatRow{"RemainderRoundingAwayKeepsBlank", Kind::kLinear, 16, 7.01,
                  " 7 \""},
        FormatRow{"CarryIntoInchKeepsBlank", Kind::kLinear, 16, 7.99, " 8 \""},
        FormatRow{"FiveThirtySecondsRoundsDownToEven", Kind::kLinear, 16,
                  5.0 / 32.0, "1/8\""},
        FormatRow{"SevenThirtySecondsRoundsUpToEven", Kind::kLinear, 16,
                  7.0 / 32.0, "1/4\""},
        FormatRow{"OneThirtySecondRoundsToZero", Kind::kLinear, 16, 1.0 / 32.0,
                  " 0\""},
        FormatRow{"InchesFraction", Kind::kLinear, 16, 7.1875, " 7 3/16\""},
        FormatRow{"WholeInches", Kind::kLinear, 16, 7.0, " 7\""},
        FormatRow{"FeetAndInches", Kind::kLinear, 16, 151.0, " 12'- 7\""},
        FormatRow{"FeetZeroInchesFraction", Kind::kLinear, 16, 12000.5,
                  " 1000'- 0 1/2\""},
        FormatRow{"CarryFromFractionIntoFirstInch", Kind::kLinear, 16, 0.99,
                  " 1 \""},
        FormatRow{"TinyRemainderIsZeroText", Kind::kLinear, 16, 0.01, " 0\""},
        FormatRow{"NegativeZeroIsZero", Kind::kLinear, 16, -0.0, " 0\""},
        FormatRow{"NegativeInchesFraction", Kind::kLinear, 16, -7.1875,
                  "- 7 3/16\""},
        FormatRow{"NegativeBareFraction", Kind::kLinear, 16, -0.1875,
                  "-3/16\""},
        FormatRow{"NegativeFeetInches", Kind::kLinear, 16, -151.0,
                  "- 12'- 7\""},
        FormatRow{"SmallNegativeRoundsToNothing", Kind::kLinear, 16, -0.01,
                  "- 0\""},
        FormatRow{"EighthReduced", Kind::kLinear, 16, 0.125, "1/8\""},
        FormatRow{"ThreeEighthsReduced", Kind::kLinear, 16, 0.375, "3/8\""},
        FormatRow{"FiveEighthsReduced", Kind::kLinear, 16, 0.625, "5/8\""},
        FormatRow{"ThreeQuartersReduced", Kind::kLinear, 16, 0.75, "3/4\""},
        FormatRow{"SevenEighthsReduced", Kind::kLinear, 16, 0.875, "7/8\""},
        FormatRow{"FifteenSixteenths", Kind::kLinear, 16, 0.9375, "15/16\""},
        FormatRow{"LargeFeet", Kind::kLinear, 16, 1e15,
                  " 83333333333333'- 4\""}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    ThirtySeconds, FormatTest,
    testing::Values(
        FormatRow{"OneThirtySecond", Kind::kLinear, 32, 0.03125, "1/32\""},
        FormatRow{"OneSixteenthReduced", Kind::kLinear, 32, 0.0625, "1/16\""},
        FormatRow{"FeetInchesSixteenths", Kind::kLinear, 32, 151.1875,
                  " 12'- 7 3/16\""},
        FormatRow{"FeetInchesThirtySeconds", Kind::kLinear, 32, 151.15625,
                  " 12'- 7 5/32\""},
        FormatRow{"ThirtyOneThirtySeconds", Kind::kLinear, 32, 0.96875,
                  "31/32\""},
        FormatRow{"ElevenSixteenthsReduced", Kind::kLinear, 32, 0.6875,
                  "11/16\""},
        FormatRow{"HalfOfOneThirtySecondRoundsToEvenZero", Kind::kLinear, 32,
                  1.0 / 64.0, " 0\""},
        FormatRow{"ThreeSixtyFourthsRoundsToEvenTwo", Kind::kLinear, 32,
                  3.0 / 64.0, "1/16\""},
        FormatRow{"CarryIntoFootKeepsBlank", Kind::kLinear, 32, 11.99,
                  " 1'- 0 \""},
        FormatRow{"NegativeThirtySeconds", Kind::kLinear, 32, -7.09375,
                  "- 7 3/32\""}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    OtherAccuracy, FormatTest,
    testing::Values(
        FormatRow{"FractionDropped", Kind::kLinear, 8, 151.1875, " 12'- 7 \""},
        FormatRow{"NoRoundingUp", Kind::kLinear, 8, 7.99, " 7 \""},
        FormatRow{"HalfInchIsZero", Kind::kLinear, 0, 0.5, " 0\""},
        FormatRow{"ExactFootUnchanged", Kind::kLinear, 0, 12.0, " 1'- 0\""},
        FormatRow{"NegativeHalfInch", Kind::kLinear, 64, -0.5, "- 0\""}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Square, FormatTest,
    testing::Values(
        FormatRow{"SquareFeetAndInches", Kind::kSquare, 0, 388.5,
                  " 2'- 100 1/2\""},
        FormatRow{"ThirtySecondRoundsToZero", Kind::kSquare, 0, 0.03125,
                  " 0\""},
        FormatRow{"OneSquareFoot", Kind::kSquare, 0, 144.0, " 1'- 0\""},
        FormatRow{"CarryIntoSquareFoot", Kind::kSquare, 0, 143.99, " 1'- 0 \""},
        FormatRow{"NegativeSquare", Kind::kSquare, 0, -388.5,
                  "- 2'- 100 1/2\""},
        FormatRow{"InchesOnly", Kind::kSquare, 0, 100.0, " 100\""}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Cubic, FormatTest,
    testing::Values(
        FormatRow{"CubicFeetAndInches", Kind::kCubic, 0, 1731.0, " 1'- 3\""},
        FormatRow{"OneCubicFoot", Kind::kCubic, 0, 1728.0, " 1'- 0\""},
        FormatRow{"CarryIntoCubicFoot", Kind::kCubic, 0, 1727.97, " 1'- 0 \""},
        FormatRow{"LargeVolume", Kind::kCubic, 0, 123456789.4,
                  " 71444'- 1557 3/8\""},
        FormatRow{"SixteenthsNotThirtySeconds", Kind::kCubic, 0, 1.0 / 32.0,
                  " 0\""}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    NotFinite, FormatTest,
    testing::Values(
        FormatRow{"LinearNotANumber", Kind::kLinear, 16, kNaN, " NaN\""},
        FormatRow{"LinearInfinity", Kind::kLinear, 32, kInf, " Inf\""},
        FormatRow{"LinearNegativeInfinity", Kind::kLinear, 16, -kInf, "-Inf\""},
        FormatRow{"SquareInfinity", Kind::kSquare, 0, kInf, " Inf\""},
        FormatRow{"CubicNotANumber", Kind::kCubic, 0, kNaN, " NaN\""}),
    RowName);

TEST(FormatHugeTest, AlwaysEndsWithTheInchMark) {
  const double values[] = {1e300,
                           -1e300,
                           std::numeric_limits<double>::max(),
                           -std::numeric_limits<double>::max(),
                           1e17 + 3,
                           9.007199254740993e15,
                           std::numeric_limits<double>::denorm_min(),
                           -std::numeric_limits<double>::min()};
  for (double value : values) {
    for (int accuracy : {16, 32, 0}) {
      const std::string text = FormatLinear(value, accuracy);
      ASSERT_FALSE(text.empty());
      EXPECT_EQ(text.back(), '"') << value;
    }
    EXPECT_EQ(FormatSquare(value).back(), '"') << value;
    EXPECT_EQ(FormatCubic(value).back(), '"') << value;
  }
}

}  // namespace
}  // namespace brenko
