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

struct ParseRow {
  std::string_view name;
  Kind kind;
  std::string_view text;
  double value;
  // The caller's text after the call.
  std::string_view written_back;
};

double Parse(Kind kind, std::string& text) {
  switch (kind) {
    case Kind::kLinear:
      return ParseLinear(text);
    case Kind::kSquare:
      return ParseSquare(text);
    case Kind::kCubic:
      return ParseCubic(text);
  }
  return 0.0;
}

class ParseTest : public testing::TestWithParam<ParseRow> {};

TEST_P(ParseTest, ReadsValueAndRewritesText) {
  const ParseRow& row = GetParam();
  std::string text(row.text);
  const double value = Parse(row.kind, text);
  if (std::isnan(row.value)) {
    EXPECT_TRUE(std::isnan(value)) << value;
  } else {
    EXPECT_EQ(value, row.value);
    // A negative sign only comes from the text: "- 0\"" is a plain zero.
    EXPECT_EQ(std::signbit(value), std::signbit(row.value));
  }
  EXPECT_EQ(text, row.written_back);
}

std::string RowName(const testing::TestParamInfo<ParseRow>& info) {
  return std::string(info.param.name);
}

INSTANTIATE_TEST_SUITE_P(
    Linear, ParseTest,
    testing::Values(
        // Worked examples.
        ParseRow{"FeetInchesFraction", Kind::kLinear, "12'- 7 3/16\"", 151.1875,
                 " 151.1875"},
        ParseRow{"DashesAsSeparators", Kind::kLinear, "12'-7-3/16\"", 151.1875,
                 " 151.1875"},
        ParseRow{"InchesFraction", Kind::kLinear, "7 3/16\"", 7.1875,
                 " 7.1875"},
        ParseRow{"BareFraction", Kind::kLinear, "3/16\"", 0.1875, " .1875"},
        ParseRow{"NegativeInchesHalf", Kind::kLinear, "- 7 1/2\"", -7.5,
                 " 7.5"},
        ParseRow{"DecimalFeet", Kind::kLinear, "2.5'", 30.0, " 30"},
        ParseRow{"PlainDecimal", Kind::kLinear, "151.1875", 151.1875,
                 " 151.1875"},
        ParseRow{"EmptyEntry", Kind::kLinear, "0.", 0.0, " 0"},
        ParseRow{"OneFoot", Kind::kLinear, "1'", 12.0, " 12"},
        // Edge cases.
        ParseRow{"EmptyText", Kind::kLinear, "", 0.0, " 0"},
        ParseRow{"ErrorText", Kind::kLinear, "ERROR", 0.0, " 0"},
        ParseRow{"DashAfterFeetMarkIsSeparator", Kind::kLinear, "5'-6\"", 66.0,
                 " 66"},
        ParseRow{"SecondFeetMarkStopsTheInches", Kind::kLinear, "1'2'3\"", 14.0,
                 " 14"},
        ParseRow{"InchMarkEndsTextWithKindMark", Kind::kLinear, "7\" sq.", 7.0,
                 " 7"},
        ParseRow{"BlanksBeforeFractionAreTrimmed", Kind::kLinear, "   3/16\"",
                 0.1875, " .1875"},
        ParseRow{"OuterBlanks", Kind::kLinear, "  12'- 7\"  ", 151.0, " 151"},
        ParseRow{"FeetWithoutDash", Kind::kLinear, "12' 7\"", 151.0, " 151"},
        ParseRow{"NegativeFeet", Kind::kLinear, "- 12'- 7\"", -151.0, " 151"},
        ParseRow{"NegativeBareFraction", Kind::kLinear, "-3/16\"", -0.1875,
                 " .1875"},
        ParseRow{"NegativeZeroTextIsZero", Kind::kLinear, "- 0\"", 0.0, " 0"},
        ParseRow{"DashAlone", Kind::kLinear, "-", 0.0, " 0"},
        ParseRow{"DecimalInches", Kind::kLinear, "7.5\"", 7.5, " 7.5"},
        ParseRow{"ThirtySeconds", Kind::kLinear, "1 31/32\"", 1.96875,
                 " 1.96875"},
        ParseRow{"FractionAfterZeroInches", Kind::kLinear, "0 1/2\"", 0.5,
                 " .5"},
        ParseRow{"SlashFirstIsNoFraction", Kind::kLinear, "/16\"", 0.0, " 0"},
        ParseRow{"DashInsideFractionJoinsDigits", Kind::kLinear, "7 3-1/16\"",
                 8.9375, " 8.9375"},
        ParseRow{"LoneDashAfterFeetMarkStays", Kind::kLinear, "1'-", 12.0,
                 " 12"},
        ParseRow{"NumeratorRoundedToFourDecimalsHalfEven", Kind::kLinear,
                 "0 1.00005/2\"", 0.5, " .5"},
        ParseRow{"NumeratorRoundedToFourDecimalsUp", Kind::kLinear,
                 "0 1.00015/1\"", 1.0002, " 1.0002"},
        ParseRow{"DenominatorRoundedToFourDecimals", Kind::kLinear,
                 "0 1/2.00004\"", 0.5, " .5"},
        ParseRow{"MissingDenominatorIsInfinite", Kind::kLinear, "7 3/", kInf,
                 " Inf"},
        ParseRow{"ZeroDenominatorIsInfinite", Kind::kLinear, "7 3/0", kInf,
                 " Inf"},
        ParseRow{"ZeroOverZeroIsNotANumber", Kind::kLinear, "7 /", kNaN,
                 " NaN"},
        ParseRow{"NegativeOverZero", Kind::kLinear, "-7 3/0", -kInf, " Inf"},
        ParseRow{"ExponentFeet", Kind::kLinear, "1E1'", 120.0, " 120"},
        ParseRow{"ReadsItsOwnNumberText", Kind::kLinear, " .1875", 0.1875,
                 " .1875"}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Square, ParseTest,
    testing::Values(ParseRow{"SquareFeetAndInches", Kind::kSquare,
                             "2'- 100 1/2\" sq.", 388.5, "2'- 100 1/2\" sq."},
                    ParseRow{"BareFractionReadsNumerator", Kind::kSquare,
                             "3/16\" sq.", 3.0, "3/16\" sq."},
                    ParseRow{"InchMarkThenKindMark", Kind::kSquare, "7\" sq.",
                             7.0, "7\" sq."},
                    ParseRow{"NegativeDropsSign", Kind::kSquare,
                             "- 1'- 0\" sq.", -144.0, " 1'- 0\" sq."},
                    ParseRow{"OuterBlanksTrimmed", Kind::kSquare,
                             "  5 1/4\" sq.  ", 5.25, "5 1/4\" sq."},
                    ParseRow{"EmptyText", Kind::kSquare, "", 0.0, ""},
                    ParseRow{"ZeroDenominator", Kind::kSquare, "7 3/0\" sq.",
                             kInf, "7 3/0\" sq."}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Cubic, ParseTest,
    testing::Values(ParseRow{"CubicFeetAndInches", Kind::kCubic, "1'- 3\" cu.",
                             1731.0, "1'- 3\" cu."},
                    ParseRow{"BareFractionReadsNumerator", Kind::kCubic,
                             "3/16\" cu.", 3.0, "3/16\" cu."},
                    ParseRow{"NegativeFeetOnly", Kind::kCubic, "-2'\" cu.",
                             -3456.0, "2'\" cu."},
                    ParseRow{"FeetAndFraction", Kind::kCubic, "1'- 0 1/2\" cu.",
                             1728.5, "1'- 0 1/2\" cu."},
                    ParseRow{"ZeroOverZero", Kind::kCubic, "0 0/0\" cu.", kNaN,
                             "0 0/0\" cu."}),
    RowName);

TEST(MeasureKindTest, SquareTextContainsSq) {
  EXPECT_TRUE(IsSquareText(" 2'- 100 1/2\" sq."));
  EXPECT_TRUE(IsSquareText("sq"));
  EXPECT_FALSE(IsSquareText(" 2'- 100 1/2\" SQ."));
  EXPECT_FALSE(IsSquareText(" 1'- 3\" cu."));
  EXPECT_FALSE(IsSquareText(""));
}

TEST(MeasureKindTest, CubicTextContainsCu) {
  EXPECT_TRUE(IsCubicText(" 1'- 3\" cu."));
  EXPECT_FALSE(IsCubicText(" 1'- 3\" Cu."));
  EXPECT_FALSE(IsCubicText(" 12'- 7 3/16\""));
}

TEST(ParseLinearTest, RereadingTheRewrittenTextGivesTheSameMagnitude) {
  std::string text = "- 12'- 7 3/16\"";
  EXPECT_EQ(ParseLinear(text), -151.1875);
  EXPECT_EQ(ParseLinear(text), 151.1875);
  EXPECT_EQ(text, " 151.1875");
}

TEST(ParseGarbageTest, DoesNotCrash) {
  const std::string_view texts[] = {
      "'",
      "''",
      "\"",
      "/",
      "//",
      "- -",
      "'-'-\"-",
      "1e999'- 1e999 1e999/1",
      "1e999'",
      "\t\n",
      std::string_view("\0\0", 2),
      "\xff\xfe'/\"",
      "99999999999999999999999999999999999999999999999'- 7 3/16"};
  for (std::string_view input : texts) {
    std::string linear(input), square(input), cubic(input);
    ParseLinear(linear);
    ParseSquare(square);
    ParseCubic(cubic);
  }
}

}  // namespace
}  // namespace brenko
