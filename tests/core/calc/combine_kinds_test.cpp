// CombineMeasures' kind decision and its zero test: a first side that reads
// as zero by its leading number counts as nothing, whatever follows.

#include "core/calc/calc_test_app.h"
#include "core/calc/combine_measures.h"

namespace brenko::calc_test {
namespace {

struct CombineRow {
  const char* name;
  std::int16_t op;
  const char* first;
  const char* second;
  const char* output;
  double result;
};

class CombineKindTest : public CalcTestApp,
                        public ::testing::WithParamInterface<CombineRow> {};

TEST_P(CombineKindTest, CombinesByKind) {
  const CombineRow& row = GetParam();
  std::string first = row.first;
  std::string second = row.second;
  std::string output;
  const Combination combined =
      CombineMeasures(row.op, app.accuracy, first, second, output);
  EXPECT_EQ(output, row.output);
  EXPECT_EQ(first, row.output);
  EXPECT_EQ(second, "");
  EXPECT_FALSE(combined.refused);
  EXPECT_EQ(combined.result, row.result);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CombineKindTest,
    ::testing::Values(
        // The leading number of "0'- 5" is 0, so the first area is nothing.
        CombineRow{"AreaWhoseLeadingNumberIsZeroCountsAsNothing", kOpAdd,
                   "0'- 5\" sq.", " 3\" sq.", " 3\" sq.", 3},
        CombineRow{"VolumeWhoseLeadingNumberIsZeroCountsAsNothing", kOpSubtract,
                   "0'- 5\" cu.", " 3\" cu.", "- 3\" cu.", -3},
        CombineRow{"NegativeAreaPlusArea", kOpAdd, "- 2'- 0\" sq.",
                   " 1'- 0\" sq.", "- 1'- 0\" sq.", -144},
        CombineRow{"AreaLessItselfIsZero", kOpSubtract, " 1'- 0\" sq.",
                   " 1'- 0\" sq.", " 0\" sq.", 0},
        CombineRow{"AreaOntoError", kOpAdd, "ERROR", " 1'- 0\" sq.",
                   " 1'- 0\" sq.", 144},
        CombineRow{"VolumeOntoEmptyText", kOpAdd, "", " 1'- 3\" cu.",
                   " 1'- 3\" cu.", 1731},
        CombineRow{"LengthsInThirtySecondsAtSixteenths", kOpAdd, "1/32\"",
                   "1/32\"", "1/16\"", 0.0625},
        // A volume in feet and inches: 1728 per cubic foot.
        CombineRow{"VolumesCarryIntoCubicFeet", kOpAdd, " 1727\" cu.",
                   " 2\" cu.", " 1'- 1\" cu.", 1729}),
    [](const auto& info) { return std::string(info.param.name); });

using CombineMeasuresOddTest = CalcTestApp;

TEST_F(CombineMeasuresOddTest, RefusalComputesNothing) {
  std::string first = " 2'- 0\"";
  std::string second = " 1'- 0\" cu.";
  std::string output = "kept";
  const Combination combined =
      CombineMeasures(kOpAdd, app.accuracy, first, second, output);
  EXPECT_EQ(output, "ERROR");
  EXPECT_TRUE(combined.refused);
  EXPECT_FALSE(combined.result.has_value());
}

TEST_F(CombineMeasuresOddTest, MultiplyCodeOnlyCopiesTheOutput) {
  std::string first = " 2'- 0\"";
  std::string second = " 3\"";
  std::string output = " 7\"";
  const Combination combined =
      CombineMeasures(kOpMultiply, app.accuracy, first, second, output);
  EXPECT_EQ(first, " 7\"");
  EXPECT_EQ(second, "");
  EXPECT_EQ(output, " 7\"");
  EXPECT_FALSE(combined.refused);
  EXPECT_FALSE(combined.result.has_value());
}

TEST_F(CombineMeasuresOddTest, MixedKindsWithoutAnOperatorAreStillRefused) {
  std::string first = "5\"";
  std::string second = " 1'- 0\" sq.";
  std::string output;
  const Combination combined =
      CombineMeasures(kOpNone, app.accuracy, first, second, output);
  EXPECT_TRUE(combined.refused);
  EXPECT_EQ(output, "ERROR");
  EXPECT_EQ(first, "5\"");
  EXPECT_EQ(second, " 1'- 0\" sq.");
}

}  // namespace
}  // namespace brenko::calc_test
