// The kind of a product or quotient, decided by the marks of the operand
// texts: every reachable row through Calculate, and the rows that earlier
// rows always catch.

#include "core/calc/calc_test_app.h"
#include "core/calc/result_kinds.h"

namespace brenko::calc_test {
namespace {

struct TableRow {
  const char* name;
  double pending;
  const char* pendingText;
  const char* entry;  // the readout when Equal is pressed
  const char* result;
};

class MultiplyTableTest : public CalcTestApp,
                          public ::testing::WithParamInterface<TableRow> {};

TEST_P(MultiplyTableTest, GivesTheResultText) {
  const TableRow& row = GetParam();
  Pending(row.pending, row.pendingText, kOpMultiply);
  EqualOn(row.entry);
  EXPECT_EQ(Engine().ResultText, row.result);
  EXPECT_EQ(Readout(), row.result);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MultiplyTableTest,
    ::testing::Values(
        // 2: square times a marked length gives a volume.
        TableRow{"Row2SquareTimesMarked", 144, " 1'- 0\" sq.", "2\"",
                 " 288\" cu."},
        // 2: an engine square carries both marks, so square times square
        // gives a volume too.
        TableRow{"Row2SquareTimesSquare", 144, " 1'- 0\" sq.", " 1'- 0\" sq.",
                 " 1'- 0\" cu."},
        // 4: a marked length times a square (read as a length) is a volume.
        TableRow{"Row4MarkedTimesSquare", 2, "2\"", " 1'- 0\" sq.",
                 " 24\" cu."},
        // 6: length times length is an area.
        TableRow{"Row6MarkedTimesMarked", 24, "2'- 0\"", "3\"", " 72\" sq."},
        // 6 also catches a length times a shown volume.
        TableRow{"Row6LengthTimesShownVolume", 24, "2'- 0\"", " 1'- 0\" cu.",
                 " 2'- 0\" sq."},
        // 8: a fully marked length times an unmarked volume is a volume.
        TableRow{"Row8FullyMarkedTimesUnmarkedCubic", 12, "1'- 0\"", "27 cu.",
                 " 324\" cu."},
        TableRow{"Row9PlainTimesPlain", 3, "3", "4", " 1'- 0\""},
        TableRow{"Row9OneSideMarked", 3, "3\"", "4", " 1'- 0\""},
        TableRow{"Row9SquareTimesPlain", 144, " 1'- 0\" sq.", "2",
                 " 24'- 0\""}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(CalcTestApp, MultiplyRow1CubicTimesFootMarkIsRefused) {
  Pending(1728, " 1'- 0\" cu.", kOpMultiply);
  EqualOn("2'- ");
  EXPECT_EQ(platform.beeps, 2);
  EXPECT_EQ(Readout(), " 1'- 0\" cu.");
  EXPECT_TRUE(TapeLines().empty());
}

TEST_F(CalcTestApp, MultiplyRow1CubicTimesInchMarkIsRefused) {
  Pending(1728, " 1'- 0\" cu.", kOpMultiply);
  EqualOn("3\"");
  EXPECT_EQ(platform.beeps, 2);
  EXPECT_TRUE(TapeLines().empty());
}

TEST_F(CalcTestApp, MultiplyCubicTimesPlainNumberIsAcceptedAsLinear) {
  Pending(1728, " 1'- 0\" cu.", kOpMultiply);
  EqualOn("2");
  EXPECT_EQ(Readout(), " 288'- 0\"");
}

TEST(MultiplyRulesTest, Row3CaseIsCaughtByRow2) {
  EXPECT_EQ(ChooseMultiplyRule(" 1'- 0\" sq.", "1'- 2\""),
            MultiplyRule::kSquareTimesMarked);
}

TEST(MultiplyRulesTest, Row5CaseIsCaughtByRow4) {
  EXPECT_EQ(ChooseMultiplyRule("1'- 2\"", " 1'- 0\" sq."),
            MultiplyRule::kMarkedTimesSquare);
}

TEST(MultiplyRulesTest, Row7CaseIsCaughtByRow1) {
  EXPECT_EQ(ChooseMultiplyRule(" 1'- 0\" cu.", "1'- 2\""),
            MultiplyRule::kCubicTimesLengthRefused);
}

TEST(MultiplyRulesTest, AreaOfCircleTextsFallToRow9) {
  EXPECT_EQ(ChooseMultiplyRule("\"sq", ""), MultiplyRule::kPlain);
}

TEST(MultiplyRulesTest, CylinderTextsMatchRow2) {
  EXPECT_EQ(ChooseMultiplyRule("\"sq", "\""), MultiplyRule::kSquareTimesMarked);
}

TEST(MultiplyRulesTest, NeverReachedRowsStillHaveTheirTexts) {
  EXPECT_EQ(MultiplyResultText(MultiplyRule::kSquareTimesFullyMarked, 288, 16),
            " 2'- 0\" sq.");
  EXPECT_EQ(MultiplyResultText(MultiplyRule::kFullyMarkedTimesSquare, 288, 16),
            " 2'- 0\" sq.");
  EXPECT_EQ(MultiplyResultText(MultiplyRule::kCubicTimesFullyMarked, 1728, 16),
            " 1'- 0\" cu.");
}

class DivideTableTest : public CalcTestApp,
                        public ::testing::WithParamInterface<TableRow> {};

TEST_P(DivideTableTest, GivesTheResultText) {
  const TableRow& row = GetParam();
  Pending(row.pending, row.pendingText, kOpDivide);
  EqualOn(row.entry);
  EXPECT_EQ(Engine().ResultText, row.result);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DivideTableTest,
    ::testing::Values(
        // 1: an area by a length stays an area.
        TableRow{"Row1SquareByFullyMarked", 288, " 2'- 0\" sq.", "1'- 0\"",
                 " 24\" sq."},
        // 1 also catches an engine square by an engine square.
        TableRow{"Row1SquareByShownSquare", 288, " 2'- 0\" sq.", " 1'- 0\" sq.",
                 " 24\" sq."},
        // 2: two squares give a bare ratio with no leading blank.
        TableRow{"Row2SquareBySquare", 288, " 2'- 0\" sq.", " 100\" sq.",
                 "2.88"},
        TableRow{"Row3SquareByPlain", 288, " 2'- 0\" sq.", "12", " 2'- 0\""},
        TableRow{"Row3SquareByInches", 288, " 2'- 0\" sq.", "12\"", " 2'- 0\""},
        TableRow{"Row4CubicByCubic", 1728, " 1'- 0\" cu.", "8\" cu.", "216"},
        TableRow{"Row5CubicBySquare", 1728, " 1'- 0\" cu.", "12\" sq.",
                 " 1'- 0\""},
        TableRow{"Row6CubicByFullyMarked", 1728, " 1'- 0\" cu.", "1'- 0\"",
                 " 144\" cu."},
        TableRow{"Row7CubicByInches", 1728, " 1'- 0\" cu.", "2\"",
                 " 6'- 0\" sq."},
        TableRow{"Row7CubicByPlain", 1728, " 1'- 0\" cu.", "2", " 6'- 0\" sq."},
        // 8: two lengths give a plain number with its leading blank.
        TableRow{"Row8MarkedByMarked", 72, "6'- 0\"", "2'- 0\"", " 3"},
        TableRow{"Row9MarkedByPlain", 72, "6'- 0\"", "4", " 1'- 6\""},
        TableRow{"Row10PlainByMarked", 10, "10", "4\"", " 2.5"},
        TableRow{"Row10PlainByPlain", 1, "1", "3", " .333333333333333"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(DivideRulesTest, Row2IsFollowedByTheCubicDecision) {
  const DivideRules rules = ChooseDivideRules("3 sq cu", "2 sq");
  EXPECT_EQ(rules.first, DivideRule::kSquareBySquare);
  ASSERT_TRUE(rules.hasSecond);
  EXPECT_EQ(rules.second, DivideRule::kCubicBySquare);
  EXPECT_EQ(DivideResultText(rules, 144, 16), " 1'- 0\"");
}

TEST(DivideRulesTest, Row2WithoutCubicMarksEndsTheDivide) {
  const DivideRules rules = ChooseDivideRules(" 2'- 0\" sq.", " 100\" sq.");
  EXPECT_EQ(rules.first, DivideRule::kSquareBySquare);
  EXPECT_FALSE(rules.hasSecond);
}

TEST(DivideRulesTest, Row3EndsTheDivideBeforeTheCubicRows) {
  const DivideRules rules = ChooseDivideRules("2 sq cu", "4");
  EXPECT_EQ(rules.first, DivideRule::kSquareByOther);
  EXPECT_FALSE(rules.hasSecond);
}

TEST(DivideRulesTest, NegativeRatioOfLengthsKeepsItsSign) {
  EXPECT_EQ(DivideResultText(ChooseDivideRules("6'", "-2'"), -3, 16), "-3");
}

TEST(KindMarksTest, MarkedAndFullyMarked) {
  EXPECT_TRUE(IsMarked("3'"));
  EXPECT_TRUE(IsMarked("3\""));
  EXPECT_FALSE(IsMarked("3"));
  EXPECT_TRUE(IsFullyMarked("3'- 2\""));
  EXPECT_FALSE(IsFullyMarked("\"sq"));
}

}  // namespace
}  // namespace brenko::calc_test
