#include "core/measure/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

namespace brenko {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

template <typename Row>
std::string RowName(const testing::TestParamInfo<Row>& info) {
  return std::string(info.param.name);
}

// --- NumberToText and TrimmedNumberText -----------------------------------

struct NumberTextRow {
  std::string_view name;
  double value;
  std::string_view text;
};

class NumberToTextTest : public testing::TestWithParam<NumberTextRow> {};

TEST_P(NumberToTextTest, WritesTheCalculatorsForm) {
  const NumberTextRow& row = GetParam();
  EXPECT_EQ(NumberToText(row.value), row.text);
  // The trimmed form differs only by the leading blank.
  const std::string_view expected_trimmed =
      row.text.front() == ' ' ? row.text.substr(1) : row.text;
  EXPECT_EQ(TrimmedNumberText(row.value), expected_trimmed);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NumberToTextTest,
    testing::Values(
        NumberTextRow{"Zero", 0.0, " 0"},
        NumberTextRow{"NegativeZeroHasNoSign", -0.0, " 0"},
        NumberTextRow{"Three", 3.0, " 3"}, NumberTextRow{"Twelve", 12.0, " 12"},
        NumberTextRow{"NegativeTwelve", -12.0, "-12"},
        NumberTextRow{"HalfHasNoLeadingZero", 0.5, " .5"},
        NumberTextRow{"NegativeHalf", -0.5, "-.5"},
        NumberTextRow{"ThreeSixteenths", 0.1875, " .1875"},
        NumberTextRow{"FeetInchFractionValue", 151.1875, " 151.1875"},
        NumberTextRow{"NegativeSevenAndAHalf", -7.5, "-7.5"},
        NumberTextRow{"OneTenth", 0.1, " .1"},
        NumberTextRow{"OneThirdFifteenDigits", 1.0 / 3.0, " .333333333333333"},
        NumberTextRow{"TwoThirdsRoundedLastDigit", 2.0 / 3.0,
                      " .666666666666667"},
        NumberTextRow{"FifteenNines", 999999999999999.0, " 999999999999999"},
        NumberTextRow{"SixteenDigitsRoundToFifteen", 123456789012345.6,
                      " 123456789012346"},
        NumberTextRow{"TenToTheFifteenUsesExponent", 1e15, " 1E+15"},
        NumberTextRow{"LargeWithDigits", 1.5e20, " 1.5E+20"},
        NumberTextRow{"TenThousandthStaysPlain", 0.0001, " .0001"},
        NumberTextRow{"SmallUsesExponent", 1.5e-5, " 1.5E-05"},
        NumberTextRow{"NegativeSmall", -1.5e-5, "-1.5E-05"},
        NumberTextRow{"ThreeDigitExponent", 1e-300, " 1E-300"},
        NumberTextRow{"LargestDouble", std::numeric_limits<double>::max(),
                      " 1.79769313486232E+308"},
        NumberTextRow{"NotANumber", kNaN, " NaN"},
        NumberTextRow{"PositiveInfinity", kInf, " Inf"},
        NumberTextRow{"NegativeInfinity", -kInf, "-Inf"}),
    RowName<NumberTextRow>);

TEST(WriteNumberTextTest, StaysWithinItsCapacity) {
  const double values[] = {-std::numeric_limits<double>::max(),
                           -std::numeric_limits<double>::denorm_min(),
                           -1.2345678901234567e-300, -0.00012345678901234567,
                           -kInf};
  for (double value : values) {
    char text[kNumberTextCapacity];
    const char* end = WriteNumberText(value, text);
    EXPECT_LE(static_cast<std::size_t>(end - text), kNumberTextCapacity);
  }
}

TEST(NumberToTextReadBackTest, ReadsBackToTheSameNumberForFifteenDigitValues) {
  const double values[] = {151.1875, 0.1875, 7.5,          1e15,
                           1.5e-5,   1e-300, 12345.678901, -0.03125};
  for (double value : values) {
    EXPECT_EQ(LeadingNumber(NumberToText(value)), value) << value;
  }
}

// The C library's "%.15g" in the classic locale, brought into the
// calculator's form; a reference for the property tests below.
std::string ReferenceNumberText(double x) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.15g", std::fabs(x));
  std::string digits = buffer;
  if (digits.rfind("0.", 0) == 0) digits.erase(0, 1);
  for (char& c : digits) {
    if (c == 'e') c = 'E';
  }
  return (x < 0 ? "-" : " ") + digits;
}

// Deterministic pseudo-random numbers for the property tests.
class Random {
 public:
  std::uint64_t Next() {
    state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
    return state_ >> 11;
  }
  int Below(int bound) { return static_cast<int>(Next() % bound); }

 private:
  std::uint64_t state_ = 20240521;
};

TEST(NumberToTextPropertyTest, MatchesFifteenDigitRoundingEverywhere) {
  Random random;
  int failures = 0;
  for (int i = 0; i < 300000 && failures < 10; ++i) {
    double value = 0.0;
    switch (i % 3) {
      case 0: {  // short decimals, as typed or formatted
        value = static_cast<double>(random.Below(100000000)) /
                std::pow(10.0, random.Below(12));
        break;
      }
      case 1: {  // results of arithmetic with full binary digits
        value = static_cast<double>(random.Next()) /
                static_cast<double>(random.Next() | 1) *
                std::pow(10.0, random.Below(40) - 20);
        break;
      }
      default: {  // sixteenths and thirty-seconds
        value = static_cast<double>(random.Below(4000000) - 2000000) / 32.0;
        break;
      }
    }
    if (i % 2 == 1) value = -value;
    if (value == 0.0) continue;
    if (NumberToText(value) != ReferenceNumberText(value)) {
      ++failures;
      ADD_FAILURE() << value << ": " << NumberToText(value) << " vs "
                    << ReferenceNumberText(value);
    }
  }
  EXPECT_EQ(failures, 0);
}

TEST(LeadingNumberPropertyTest, MatchesTheCLibraryOnDecimals) {
  Random random;
  int failures = 0;
  for (int i = 0; i < 300000 && failures < 10; ++i) {
    std::string text;
    const int integer_digits = random.Below(12);
    const int fraction_digits = random.Below(i % 4 == 0 ? 25 : 10);
    for (int d = 0; d < integer_digits; ++d) {
      text += static_cast<char>('0' + random.Below(10));
    }
    text += '.';
    for (int d = 0; d < fraction_digits; ++d) {
      text += static_cast<char>('0' + random.Below(10));
    }
    if (i % 5 == 0) {
      text += 'e';
      text += std::to_string(random.Below(80) - 40);
    }
    if (integer_digits + fraction_digits == 0) continue;
    const double expected = std::strtod(text.c_str(), nullptr);
    if (LeadingNumber(text) != expected) {
      ++failures;
      ADD_FAILURE() << text << ": " << LeadingNumber(text) << " vs "
                    << expected;
    }
  }
  EXPECT_EQ(failures, 0);
}

// --- LeadingNumber ---------------------------------------------------------

struct LeadingNumberRow {
  std::string_view name;
  std::string_view text;
  double value;
  DashReading dash = DashReading::kSign;
};

class LeadingNumberTest : public testing::TestWithParam<LeadingNumberRow> {};

TEST_P(LeadingNumberTest, ReadsTheLeadingNumber) {
  const LeadingNumberRow& row = GetParam();
  const double read = LeadingNumber(row.text, row.dash);
  if (std::isnan(row.value)) {
    EXPECT_TRUE(std::isnan(read)) << read;
  } else {
    EXPECT_EQ(read, row.value);
  }
}

const std::string kLongInteger = std::string(100, '0') + "17";
const std::string kLongFraction = "0." + std::string(100, '0') + "1e101";
const std::string kLongDigits = "1" + std::string(300, '0');

INSTANTIATE_TEST_SUITE_P(
    Rows, LeadingNumberTest,
    testing::Values(
        LeadingNumberRow{"Twelve", "12", 12.0},
        LeadingNumberRow{"BlankInsideNumberIsSkipped", "7 3", 73.0},
        LeadingNumberRow{"FractionReadsNumerator", "3/16", 3.0},
        LeadingNumberRow{"ErrorTextReadsZero", "ERROR", 0.0},
        LeadingNumberRow{"OuterBlanks", " 1200.5 ", 1200.5},
        LeadingNumberRow{"Empty", "", 0.0},
        LeadingNumberRow{"OnlyBlanks", "   ", 0.0},
        LeadingNumberRow{"EmptyEntry", "0.", 0.0},
        LeadingNumberRow{"Negative", "-5", -5.0},
        LeadingNumberRow{"ExplicitPlus", "+5", 5.0},
        LeadingNumberRow{"BlankAfterSign", "- 5", -5.0},
        LeadingNumberRow{"DoubleSignReadsZero", "--5", 0.0},
        LeadingNumberRow{"PointFirst", ".5", 0.5},
        LeadingNumberRow{"NegativePointFirst", "-.5", -0.5},
        LeadingNumberRow{"TrailingPoint", "5.", 5.0},
        LeadingNumberRow{"PointAlone", ".", 0.0},
        LeadingNumberRow{"SecondPointStops", "1.2.3", 1.2},
        LeadingNumberRow{"CommaIsNotAPoint", "3,5", 3.0},
        LeadingNumberRow{"TabAndLineFeedSkipped", "\t7\n3", 73.0},
        LeadingNumberRow{"CarriageReturnStops", "7\r3", 7.0},
        LeadingNumberRow{"FeetMarkStops", "12'", 12.0},
        LeadingNumberRow{"InchMarkStops", "7\" sq.", 7.0},
        LeadingNumberRow{"Exponent", "1E3", 1000.0},
        LeadingNumberRow{"LowerCaseNegativeExponent", "1e-3", 0.001},
        LeadingNumberRow{"DoubleExponentLetter", "1D2", 100.0},
        LeadingNumberRow{"BlanksInsideExponent", "1 E + 2", 100.0},
        LeadingNumberRow{"ExponentLetterWithoutDigits", "2E", 2.0},
        LeadingNumberRow{"ExponentSignWithoutDigits", "2E+", 2.0},
        LeadingNumberRow{"ExponentWithoutMantissa", "E5", 0.0},
        LeadingNumberRow{"PointThenExponentOnly", ".E5", 0.0},
        LeadingNumberRow{"NumberToTextForm", " 1.5E-05", 1.5e-5},
        LeadingNumberRow{"OverflowIsInfinite", "1e400", kInf},
        LeadingNumberRow{"NegativeOverflow", "-1e400", -kInf},
        LeadingNumberRow{"HugeExponent", "1e99999999999999999999", kInf},
        LeadingNumberRow{"UnderflowIsZero", "1e-400", 0.0},
        LeadingNumberRow{"ZeroWithHugeExponent", "0e999999", 0.0},
        LeadingNumberRow{"LongIntegerBeyondBuffer", kLongInteger, 17.0},
        LeadingNumberRow{"LongFractionBeyondBuffer", kLongFraction, 1.0},
        LeadingNumberRow{"LongDigitsBeyondBuffer", kLongDigits, 1e300},
        LeadingNumberRow{"InfinityTextIsNotANumber", "Inf", 0.0},
        LeadingNumberRow{"DashAsBlankJoinsDigits", "3-1", 31.0,
                         DashReading::kBlank},
        LeadingNumberRow{"DashAsBlankIsNoSign", "-5", 5.0, DashReading::kBlank},
        LeadingNumberRow{"DashAsSignStopsAfterNumber", "3-1", 3.0}),
    RowName<LeadingNumberRow>);

// --- RoundHalfEven ---------------------------------------------------------

struct RoundRow {
  std::string_view name;
  double value;
  int decimals;
  double rounded;
};

class RoundHalfEvenTest : public testing::TestWithParam<RoundRow> {};

TEST_P(RoundHalfEvenTest, RoundsHalvesToEven) {
  const RoundRow& row = GetParam();
  const double rounded = RoundHalfEven(row.value, row.decimals);
  if (std::isnan(row.rounded)) {
    EXPECT_TRUE(std::isnan(rounded)) << rounded;
  } else {
    EXPECT_EQ(rounded, row.rounded);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RoundHalfEvenTest,
    testing::Values(
        RoundRow{"TwelveHundredAndAHalf", 1200.5, 0, 1200.0},
        RoundRow{"TwoAndAHalf", 2.5, 0, 2.0},
        RoundRow{"ThreeAndAHalf", 3.5, 0, 4.0},
        RoundRow{"OneAndAHalf", 1.5, 0, 2.0}, RoundRow{"Half", 0.5, 0, 0.0},
        RoundRow{"NegativeTwoAndAHalf", -2.5, 0, -2.0},
        RoundRow{"NegativeThreeAndAHalf", -3.5, 0, -4.0},
        RoundRow{"JustBelowHalf", 0.49999999999999994, 0, 0.0},
        RoundRow{"NegativeJustBelowHalf", -0.49999999999999994, 0, 0.0},
        RoundRow{"BelowHalf", 2.4, 0, 2.0}, RoundRow{"AboveHalf", 2.6, 0, 3.0},
        RoundRow{"SmallNegativeToZero", -0.3, 0, 0.0},
        RoundRow{"HalfOfTwoToTheFiftyTwo", 4503599627370495.5, 0,
                 4503599627370496.0},
        RoundRow{"LargeWholeUnchanged", 4503599627370497.0, 0,
                 4503599627370497.0},
        RoundRow{"TypedHalfAtFourDecimalsToEvenZero", 0.00005, 4, 0.0},
        RoundRow{"TypedHalfAtFourDecimalsToEvenTwo", 0.00015, 4, 0.0002},
        RoundRow{"TypedHalfAtFourDecimalsStaysTwo", 0.00025, 4, 0.0002},
        RoundRow{"TypedHalfAtFourDecimalsUpToFour", 0.00035, 4, 0.0004},
        RoundRow{"NegativeTypedHalf", -0.00015, 4, -0.0002},
        RoundRow{"AboveHalfAtFourDecimals", 1.23456, 4, 1.2346},
        RoundRow{"BelowHalfAtFourDecimals", 1.23454, 4, 1.2345},
        RoundRow{"HalfWithMoreDigitsGoesUp", 0.000050001, 4, 0.0001},
        RoundRow{"CarryThroughNines", 9.99995, 4, 10.0},
        RoundRow{"FewerDigitsUnchanged", 0.1875, 4, 0.1875},
        RoundRow{"WholeUnchangedAtFourDecimals", 16.0, 4, 16.0},
        RoundRow{"TwoDecimals", 2.675, 2, 2.68},
        RoundRow{"FarBelowThePlace", 1e-10, 4, 0.0},
        RoundRow{"HundredsHalfDown", 1250.0, -2, 1200.0},
        RoundRow{"HundredsHalfUp", 1350.0, -2, 1400.0},
        RoundRow{"HugeUnchanged", 1e300, 4, 1e300},
        RoundRow{"ManyDecimalsUnchanged", 0.1, 500, 0.1},
        RoundRow{"NotANumber", kNaN, 4, kNaN},
        RoundRow{"Infinity", kInf, 0, kInf},
        RoundRow{"NegativeInfinity", -kInf, 4, -kInf}),
    RowName<RoundRow>);

// --- Checked integer conversions --------------------------------------------

TEST(ToInt16Test, RoundsHalfToEven) {
  std::int16_t out = 0;
  ASSERT_TRUE(ToInt16(2.5, out));
  EXPECT_EQ(out, 2);
  ASSERT_TRUE(ToInt16(1.5, out));
  EXPECT_EQ(out, 2);
  ASSERT_TRUE(ToInt16(-7.6, out));
  EXPECT_EQ(out, -8);
}

TEST(ToInt16Test, AcceptsTheLimits) {
  std::int16_t out = 0;
  ASSERT_TRUE(ToInt16(32767.0, out));
  EXPECT_EQ(out, 32767);
  ASSERT_TRUE(ToInt16(-32768.5, out));  // the half goes to the even -32768
  EXPECT_EQ(out, -32768);
}

TEST(ToInt16Test, RefusesOutOfRangeAndNonFinite) {
  std::int16_t out = 123;
  EXPECT_FALSE(ToInt16(32767.5, out));  // the half goes to 32768
  EXPECT_FALSE(ToInt16(-32769.0, out));
  EXPECT_FALSE(ToInt16(1e300, out));
  EXPECT_FALSE(ToInt16(kNaN, out));
  EXPECT_FALSE(ToInt16(kInf, out));
  EXPECT_FALSE(ToInt16(-kInf, out));
  EXPECT_EQ(out, 123);
}

TEST(ToInt32Test, AcceptsTheLimits) {
  std::int32_t out = 0;
  ASSERT_TRUE(ToInt32(2147483647.4, out));
  EXPECT_EQ(out, 2147483647);
  ASSERT_TRUE(ToInt32(-2147483648.5, out));
  EXPECT_EQ(out, -2147483647 - 1);
  ASSERT_TRUE(ToInt32(1200.5, out));
  EXPECT_EQ(out, 1200);
}

TEST(ToInt32Test, RefusesOutOfRangeAndNonFinite) {
  std::int32_t out = 5;
  EXPECT_FALSE(ToInt32(2147483647.5, out));
  EXPECT_FALSE(ToInt32(-2147483649.0, out));
  EXPECT_FALSE(ToInt32(kNaN, out));
  EXPECT_FALSE(ToInt32(-kInf, out));
  EXPECT_EQ(out, 5);
}

TEST(CheckedAdd16Test, AddsWithinRange) {
  std::int16_t out = 0;
  ASSERT_TRUE(CheckedAdd16(100, 200, out));
  EXPECT_EQ(out, 300);
  ASSERT_TRUE(CheckedAdd16(32767, -32768, out));
  EXPECT_EQ(out, -1);
}

TEST(CheckedAdd16Test, RefusesOverflow) {
  std::int16_t out = 9;
  EXPECT_FALSE(CheckedAdd16(32767, 1, out));
  EXPECT_FALSE(CheckedAdd16(-32768, -1, out));
  EXPECT_EQ(out, 9);
}

}  // namespace
}  // namespace brenko
