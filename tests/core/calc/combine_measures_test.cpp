// CombineMeasures and SignalError: adding and subtracting measurement texts
// of one kind, and refusing mixed kinds. The combination itself touches no
// engine, window or platform; what a refusal shows is SignalError's.

#include "core/calc/combine_measures.h"

#include "core/calc/calc_test_app.h"

namespace brenko::calc_test {
namespace {

class CombineMeasuresTest : public CalcTestApp {
 protected:
  std::string Combine(std::int16_t op, std::string a, std::string b) {
    first = std::move(a);
    second = std::move(b);
    output = "unchanged";
    combined = CombineMeasures(op, app.accuracy, first, second, output);
    return output;
  }
  std::string first, second, output;
  Combination combined;
};

TEST_F(CombineMeasuresTest, AddsTwoLengths) {
  EXPECT_EQ(Combine(kOpAdd, " 5'- 0\"", "6\""), " 5'- 6\"");
  EXPECT_EQ(first, " 5'- 6\"");
  EXPECT_EQ(second, "");
  EXPECT_FALSE(combined.refused);
  EXPECT_EQ(combined.result, 66);
}

TEST_F(CombineMeasuresTest, SubtractsTwoLengths) {
  EXPECT_EQ(Combine(kOpSubtract, "6\"", " 1'- 0\""), "- 6\"");
  EXPECT_EQ(combined.result, -6);
}

TEST_F(CombineMeasuresTest, LinearFollowsTheAccuracy) {
  app.accuracy = 32;
  EXPECT_EQ(Combine(kOpAdd, "1/32\"", "0."), "1/32\"");
}

TEST_F(CombineMeasuresTest, AddsTwoAreas) {
  EXPECT_EQ(Combine(kOpAdd, " 1'- 0\" sq.", " 44\" sq."), " 1'- 44\" sq.");
  EXPECT_EQ(combined.result, 188);
}

TEST_F(CombineMeasuresTest, AddsTwoVolumes) {
  EXPECT_EQ(Combine(kOpAdd, " 1'- 0\" cu.", " 3\" cu."), " 1'- 3\" cu.");
  EXPECT_EQ(combined.result, 1731);
}

TEST_F(CombineMeasuresTest, AreaOntoANonZeroLengthIsAnError) {
  EXPECT_EQ(Combine(kOpAdd, " 5'- 0\"", " 1'- 0\" sq."), "ERROR");
  EXPECT_TRUE(combined.refused);
  EXPECT_FALSE(combined.result.has_value());
  EXPECT_EQ(first, " 5'- 0\"");
  EXPECT_EQ(second, " 1'- 0\" sq.");
  // Signalling the refusal is the caller's.
  EXPECT_EQ(platform.beeps, 0);
}

TEST_F(CombineMeasuresTest, LengthOntoAnAreaIsAnError) {
  EXPECT_EQ(Combine(kOpAdd, " 1'- 0\" sq.", "5\""), "ERROR");
  EXPECT_TRUE(combined.refused);
}

TEST_F(CombineMeasuresTest, AreaOntoZeroTakesTheAreaKind) {
  EXPECT_EQ(Combine(kOpAdd, "0.", " 1'- 0\" sq."), " 1'- 0\" sq.");
  EXPECT_FALSE(combined.refused);
}

TEST_F(CombineMeasuresTest, VolumeSubtractedFromZero) {
  EXPECT_EQ(Combine(kOpSubtract, "0.", " 3\" cu."), "- 3\" cu.");
}

TEST_F(CombineMeasuresTest, LengthOntoAZeroAreaStaysLinear) {
  EXPECT_EQ(Combine(kOpAdd, " 0\" sq.", "5\""), " 5\"");
}

TEST_F(CombineMeasuresTest, AreaAndVolumeTogetherAreAnError) {
  EXPECT_EQ(Combine(kOpAdd, " 1'- 0\" cu.", " 1'- 0\" sq."), "ERROR");
}

TEST_F(CombineMeasuresTest, WithoutAnOperatorNothingIsComputed) {
  EXPECT_EQ(Combine(kOpNone, " 5'- 0\"", "6\""), "unchanged");
  EXPECT_EQ(first, "unchanged");
  EXPECT_EQ(second, "");
  EXPECT_FALSE(combined.refused);
  EXPECT_FALSE(combined.result.has_value());
}

TEST_F(CombineMeasuresTest, OverflowingSumCountsAsNothing) {
  EXPECT_EQ(Combine(kOpAdd, "1E+308", "1E+308"), " 0\"");
  EXPECT_EQ(combined.result, 0);
}

TEST_F(CombineMeasuresTest, SignalErrorResetsTheOperation) {
  Engine().PendingText = " 2'- 0\"";
  Engine().CurrentText = "5";
  Engine().PendingOp = kOpMultiply;
  ActionLabel() = "x";
  SignalError(platform, app.calculator, app.engine);
  EXPECT_EQ(platform.beeps, 2);
  EXPECT_EQ(ActionLabel(), "");
  EXPECT_EQ(Readout(), " 2'- 0\"");
  EXPECT_EQ(Engine().PendingOp, kOpNone);
  EXPECT_EQ(Engine().CurrentText, "");
}

}  // namespace
}  // namespace brenko::calc_test
