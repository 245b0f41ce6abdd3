#include "core/shell/settings_text.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

namespace brenko {
namespace {

template <typename Row>
std::string RowName(const testing::TestParamInfo<Row>& info) {
  return std::string(info.param.name);
}

struct BooleanRow {
  std::string_view name;
  std::string_view text;
  std::optional<bool> value;
};

class SettingToBooleanTest : public testing::TestWithParam<BooleanRow> {};

TEST_P(SettingToBooleanTest, FollowsTheTextToBooleanRule) {
  EXPECT_EQ(SettingToBoolean(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SettingToBooleanTest,
    testing::Values(BooleanRow{"TrueWord", "True", true},
                    BooleanRow{"FalseWord", "False", false},
                    BooleanRow{"UpperCaseTrue", "TRUE", true},
                    BooleanRow{"LowerCaseFalse", "false", false},
                    BooleanRow{"MixedCaseTrue", "tRuE", true},
                    BooleanRow{"Zero", "0", false},
                    BooleanRow{"One", "1", true},
                    BooleanRow{"MinusOne", "-1", true},
                    BooleanRow{"Fraction", ".5", true},
                    BooleanRow{"ZeroPointZero", "0.0", false},
                    BooleanRow{"LeadingBlank", " 1", true},
                    BooleanRow{"EmptyIsNoBoolean", "", std::nullopt},
                    BooleanRow{"Word", "yes", std::nullopt},
                    BooleanRow{"TrueWithTail", "Truex", std::nullopt},
                    BooleanRow{"NumberWithTail", "1x", std::nullopt}),
    RowName<BooleanRow>);

struct Int16Row {
  std::string_view name;
  std::string_view text;
  std::optional<std::int16_t> value;
};

class SettingToInt16Test : public testing::TestWithParam<Int16Row> {};

TEST_P(SettingToInt16Test, RoundsHalfToEvenAndChecksTheRange) {
  EXPECT_EQ(SettingToInt16(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SettingToInt16Test,
    testing::Values(Int16Row{"Plain", "6305", 6305},
                    Int16Row{"LeadingBlank", " 1575", 1575},
                    Int16Row{"TrailingBlank", "1575 ", 1575},
                    Int16Row{"Negative", "-120", -120},
                    Int16Row{"PlusSign", "+7", 7},
                    Int16Row{"HalfGoesToEvenDown", "12592.5", 12592},
                    Int16Row{"HalfGoesToEvenUp", "9597.5", 9598},
                    Int16Row{"OverHalfUp", "2.51", 3},
                    Int16Row{"Exponent", "1.5E3", 1500},
                    Int16Row{"Largest", "32767", 32767},
                    Int16Row{"Smallest", "-32768", -32768},
                    Int16Row{"TooLarge", "32768", std::nullopt},
                    Int16Row{"RoundsPastTheRange", "32767.5", std::nullopt},
                    Int16Row{"NotANumber", "abc", std::nullopt},
                    Int16Row{"Empty", "", std::nullopt},
                    Int16Row{"BlanksOnly", "   ", std::nullopt},
                    Int16Row{"TrailingText", "100px", std::nullopt},
                    Int16Row{"TwoPoints", "1.2.3", std::nullopt},
                    Int16Row{"CommaIsNoPoint", "1,5", std::nullopt},
                    Int16Row{"HugeExponent", "1E999", std::nullopt},
                    Int16Row{"InfinityWord", "inf", std::nullopt},
                    Int16Row{"NaNWord", "nan", std::nullopt}),
    RowName<Int16Row>);

TEST(SettingToInt32Test, ReadsColourNumbersWithTheLeadingBlank) {
  EXPECT_EQ(SettingToInt32(" 8421376"), 8421376);
  EXPECT_EQ(SettingToInt32("8454143"), 8454143);
  EXPECT_EQ(SettingToInt32("2147483647"), 2147483647);
  EXPECT_EQ(SettingToInt32("2147483648"), std::nullopt);
  EXPECT_EQ(SettingToInt32("teal"), std::nullopt);
}

TEST(BooleanTextTest, WritesTrueAndFalse) {
  EXPECT_STREQ(BooleanText(true), "True");
  EXPECT_STREQ(BooleanText(false), "False");
}

struct PositionRow {
  std::string_view name;
  float value;
  std::string_view text;
};

class PositionTextTest : public testing::TestWithParam<PositionRow> {};

TEST_P(PositionTextTest, WritesAPlainNumberWithoutTheLeadingBlank) {
  EXPECT_EQ(PositionText(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PositionTextTest,
    testing::Values(PositionRow{"Whole", 6305.0f, "6305"},
                    PositionRow{"Zero", 0.0f, "0"},
                    PositionRow{"Negative", -120.0f, "-120"},
                    PositionRow{"Half", 12592.5f, "12592.5"},
                    PositionRow{"SinglePrecisionTenth", 0.1f, ".1"},
                    PositionRow{"ScaledValue", 3590.0f * 0.75f, "2692.5"}),
    RowName<PositionRow>);

}  // namespace
}  // namespace brenko
