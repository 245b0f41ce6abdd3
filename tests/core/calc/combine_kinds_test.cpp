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
  Engine().PendingOp = row.op;
  std::string first = row.first;
  std::string second = row.second;
  std::string output;
  CombineMeasures(app, first, second, output);
  EXPECT_EQ(output, row.output);
  EXPECT_EQ(first, row.output);
  EXPECT_EQ(second, "");
  EXPECT_EQ(Engine().ResultValue, row.result);
  EXPECT_EQ(Engine().PendingOp, kOpNone);
  EXPECT_EQ(platform.beeps, 0);
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

TEST_F(CombineMeasuresOddTest, RefusalLeavesTheLastResult) {
  Engine().ResultValue = 9;
  Engine().PendingOp = kOpAdd;
  std::string first = " 2'- 0\"";
  std::string second = " 1'- 0\" cu.";
  std::string output = "kept";
  CombineMeasures(app, first, second, output);
  EXPECT_EQ(output, "ERROR");
  EXPECT_EQ(Engine().ResultValue, 9);
  EXPECT_EQ(platform.beeps, 2);
}

TEST_F(CombineMeasuresOddTest, MultiplyCodeOnlyCopiesTheOutput) {
  Engine().ResultValue = 9;
  Engine().PendingOp = kOpMultiply;
  std::string first = " 2'- 0\"";
  std::string second = " 3\"";
  std::string output = " 7\"";
  CombineMeasures(app, first, second, output);
  EXPECT_EQ(first, " 7\"");
  EXPECT_EQ(second, "");
  EXPECT_EQ(output, " 7\"");
  EXPECT_EQ(Engine().ResultValue, 9);
  EXPECT_EQ(Engine().PendingOp, kOpNone);
}

TEST_F(CombineMeasuresOddTest, MixedKindsWithoutAnOperatorAreStillRefused) {
  Engine().PendingOp = kOpNone;
  std::string first = "5\"";
  std::string second = " 1'- 0\" sq.";
  std::string output;
  CombineMeasures(app, first, second, output);
  EXPECT_EQ(output, "ERROR");
  EXPECT_EQ(first, "5\"");
  EXPECT_EQ(second, " 1'- 0\" sq.");
}

}  // namespace
}  // namespace brenko::calc_test
