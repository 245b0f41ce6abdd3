// Every count of sixteenths and of thirty-seconds, written after whole inches
// and on its own: even counts are shown reduced, odd counts as they stand.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "core/measure/measure.h"

namespace brenko {
namespace {

struct FractionRow {
  int denominator;
  int count;
  std::string_view text;  // the fraction as the readout shows it
};

constexpr FractionRow kSixteenthRows[] = {
    {16, 1, "1/16"},   {16, 2, "1/8"},  {16, 3, "3/16"},   {16, 4, "1/4"},
    {16, 5, "5/16"},   {16, 6, "3/8"},  {16, 7, "7/16"},   {16, 8, "1/2"},
    {16, 9, "9/16"},   {16, 10, "5/8"}, {16, 11, "11/16"}, {16, 12, "3/4"},
    {16, 13, "13/16"}, {16, 14, "7/8"}, {16, 15, "15/16"},
};

constexpr FractionRow kThirtySecondRows[] = {
    {32, 1, "1/32"},   {32, 2, "1/16"},   {32, 3, "3/32"},   {32, 4, "1/8"},
    {32, 5, "5/32"},   {32, 6, "3/16"},   {32, 7, "7/32"},   {32, 8, "1/4"},
    {32, 9, "9/32"},   {32, 10, "5/16"},  {32, 11, "11/32"}, {32, 12, "3/8"},
    {32, 13, "13/32"}, {32, 14, "7/16"},  {32, 15, "15/32"}, {32, 16, "1/2"},
    {32, 17, "17/32"}, {32, 18, "9/16"},  {32, 19, "19/32"}, {32, 20, "5/8"},
    {32, 21, "21/32"}, {32, 22, "11/16"}, {32, 23, "23/32"}, {32, 24, "3/4"},
    {32, 25, "25/32"}, {32, 26, "13/16"}, {32, 27, "27/32"}, {32, 28, "7/8"},
    {32, 29, "29/32"}, {32, 30, "15/16"}, {32, 31, "31/32"},
};

class FractionTableTest : public testing::TestWithParam<FractionRow> {
 protected:
  double Remainder() const {
    return static_cast<double>(GetParam().count) / GetParam().denominator;
  }
};

TEST_P(FractionTableTest, AloneHasNoLeadingBlank) {
  EXPECT_EQ(FormatLinear(Remainder(), GetParam().denominator),
            std::string(GetParam().text) + "\"");
}

TEST_P(FractionTableTest, AfterWholeInches) {
  EXPECT_EQ(FormatLinear(5 + Remainder(), GetParam().denominator),
            " 5 " + std::string(GetParam().text) + "\"");
}

TEST_P(FractionTableTest, AfterFeetAndInches) {
  EXPECT_EQ(FormatLinear(-(27 + Remainder()), GetParam().denominator),
            "- 2'- 3 " + std::string(GetParam().text) + "\"");
}

// Areas and volumes always count sixteenths, whatever the accuracy.
class AreaFractionTest : public FractionTableTest {};

TEST_P(AreaFractionTest, AreasAndVolumesCountSixteenths) {
  const std::string text(GetParam().text);
  EXPECT_EQ(FormatSquare(150 + Remainder()), " 1'- 6 " + text + "\"");
  EXPECT_EQ(FormatCubic(1735 + Remainder()), " 1'- 7 " + text + "\"");
}

std::string RowName(const testing::TestParamInfo<FractionRow>& info) {
  return "In" + std::to_string(info.param.denominator) + "ths" +
         std::to_string(info.param.count);
}

INSTANTIATE_TEST_SUITE_P(Sixteenths, FractionTableTest,
                         testing::ValuesIn(kSixteenthRows), RowName);
INSTANTIATE_TEST_SUITE_P(ThirtySeconds, FractionTableTest,
                         testing::ValuesIn(kThirtySecondRows), RowName);
INSTANTIATE_TEST_SUITE_P(Sixteenths, AreaFractionTest,
                         testing::ValuesIn(kSixteenthRows), RowName);

TEST(NoFractionTest, NoCountWritesNoFraction) {
  EXPECT_EQ(FormatLinear(5, 16), " 5\"");
  EXPECT_EQ(FormatLinear(5, 32), " 5\"");
  EXPECT_EQ(FormatLinear(0, 32), " 0\"");
}

}  // namespace
}  // namespace brenko
