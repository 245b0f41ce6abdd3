// The operator keys: choosing the operation, the negative entry, the slash,
// and the keys that hand the readout to the engine.

#include "core/calc/operator_keys.h"

#include "core/calc/calc_test_app.h"

namespace brenko::calc_test {
namespace {

class OperatorKeysTest : public CalcTestApp {
 protected:
  // An entry made pending by Equal, as after "5 Enter".
  void PendingEntry() {
    Pending(5, "5", kOpNone);
    Readout() = "5";
  }
};

TEST_F(OperatorKeysTest, PlusWithNothingPendingOnlyClearsThePrompt) {
  Readout() = "12";
  Label1() = "Circumference =";
  app.calculator.focus = "Number 1";
  Plus_Click(app);
  EXPECT_EQ(Readout(), "12");
  EXPECT_EQ(ActionLabel(), "");
  EXPECT_EQ(Label1(), "");
  EXPECT_EQ(app.calculator.focus, "Equal");
  EXPECT_EQ(Engine().PendingOp, kOpStartUp);
}

TEST_F(OperatorKeysTest, PlusChoosesAdd) {
  PendingEntry();
  Plus_Click(app);
  EXPECT_EQ(ActionLabel(), "+");
  EXPECT_EQ(Readout(), "");
  EXPECT_EQ(Engine().PendingOp, kOpAdd);
}

TEST_F(OperatorKeysTest, PlusOnAreaOrVolumeBeepsAndChangesNothing) {
  PendingEntry();
  Readout() = " 2'- 0\" sq.";
  Label1() = "keep";
  Plus_Click(app);
  Readout() = " 2'- 0\" cu.";
  Plus_Click(app);
  EXPECT_EQ(platform.beeps, 2);
  EXPECT_EQ(ActionLabel(), "");
  EXPECT_EQ(Label1(), "keep");
  EXPECT_EQ(Engine().PendingOp, kOpNone);
}

TEST_F(OperatorKeysTest, PlusTwiceThenMultiplyChangesTheOperator) {
  PendingEntry();
  Plus_Click(app);
  Plus_Click(app);
  EXPECT_EQ(Engine().PendingOp, kOpAdd);
  EXPECT_EQ(ActionLabel(), "+");
  Multiply_Click(app);
  EXPECT_EQ(Engine().PendingOp, kOpMultiply);
  EXPECT_EQ(ActionLabel(), "x");
}

TEST_F(OperatorKeysTest, OperatorIsKeptOnceAnEntryIsUnderWay) {
  PendingEntry();
  Multiply_Click(app);
  Readout() = "7";
  Plus_Click(app);
  EXPECT_EQ(Engine().PendingOp, kOpMultiply);
  EXPECT_EQ(Readout(), "7");
}

TEST_F(OperatorKeysTest, SingleBlankIndicatorCountsAsBlank) {
  PendingEntry();
  ActionLabel() = " ";
  Plus_Click(app);
  EXPECT_EQ(ActionLabel(), "+");
}

TEST_F(OperatorKeysTest, MinusChoosesSubtractAfterAResult) {
  PendingEntry();
  Minus_Click(app);
  EXPECT_EQ(ActionLabel(), "--");
  EXPECT_EQ(Readout(), "");
  EXPECT_EQ(Engine().PendingOp, kOpSubtract);
}

TEST_F(OperatorKeysTest, MinusAfterAnotherOperatorStartsANegativeEntry) {
  PendingEntry();
  Plus_Click(app);
  Minus_Click(app);
  EXPECT_EQ(Readout(), "-");
  EXPECT_EQ(Engine().PendingOp, kOpAdd);
  EXPECT_EQ(ActionLabel(), "+");
}

TEST_F(OperatorKeysTest, MinusRightAfterStartUpDoesNotChooseSubtract) {
  Pending(5, "5", kOpStartUp);
  Readout() = "5";
  Minus_Click(app);
  EXPECT_EQ(Readout(), "5");
  EXPECT_EQ(Engine().PendingOp, kOpStartUp);
}

TEST_F(OperatorKeysTest, MinusOnTheEmptyEntryStartsANegativeEntry) {
  Minus_Click(app);
  EXPECT_EQ(Readout(), "-");
  Readout() = " ";
  Minus_Click(app);
  EXPECT_EQ(Readout(), "-");
  Readout() = "";
  Minus_Click(app);
  EXPECT_EQ(Readout(), "-");
}

TEST_F(OperatorKeysTest, MinusOnAnEntryWithNothingPendingChangesNothing) {
  Readout() = "12";
  Minus_Click(app);
  EXPECT_EQ(Readout(), "12");
  EXPECT_EQ(ActionLabel(), "");
}

TEST_F(OperatorKeysTest, MinusOnAreaBeeps) {
  Readout() = " 1'- 0\" sq.";
  Minus_Click(app);
  EXPECT_EQ(platform.beeps, 1);
  EXPECT_EQ(Readout(), " 1'- 0\" sq.");
}

TEST_F(OperatorKeysTest, MultiplyAcceptsAnArea) {
  PendingEntry();
  Readout() = "";
  ActionLabel() = "";
  Readout() = " 2'- 0\" sq.";
  Multiply_Click(app);
  EXPECT_EQ(Engine().PendingOp, kOpMultiply);
  EXPECT_EQ(Readout(), "");
  EXPECT_EQ(platform.beeps, 0);
}

TEST_F(OperatorKeysTest, MultiplyWithNothingPendingChangesNothing) {
  Readout() = "3";
  Multiply_Click(app);
  EXPECT_EQ(Readout(), "3");
  EXPECT_EQ(ActionLabel(), "");
}

TEST_F(OperatorKeysTest, DivideChoosesDivision) {
  PendingEntry();
  Divide_Click(app);
  EXPECT_EQ(ActionLabel(), "\xC3\xB7");
  EXPECT_EQ(Readout(), "");
  EXPECT_EQ(Engine().PendingOp, kOpDivide);
}

TEST_F(OperatorKeysTest, DivideWithNothingPendingTypesTheSlashEveryTime) {
  Readout() = "3";
  Divide_Click(app);
  EXPECT_EQ(Readout(), "3/");
  Divide_Click(app);
  EXPECT_EQ(Readout(), "3//");
  EXPECT_EQ(app.calculator.focus, "Equal");
}

TEST_F(OperatorKeysTest, DivideAfterAnotherOperatorTypesTheSlash) {
  PendingEntry();
  Plus_Click(app);
  Readout() = "3";
  Divide_Click(app);
  EXPECT_EQ(Readout(), "3/");
  EXPECT_EQ(Engine().PendingOp, kOpAdd);
}

TEST_F(OperatorKeysTest, EqualHandsTheReadoutToTheEngine) {
  ActionLabel() = "+";
  Readout() = "7\"";
  Equal_Click(app);
  EXPECT_EQ(ActionLabel(), "");
  EXPECT_EQ(Engine().EntryText, "7\"");
  EXPECT_EQ(*Engine().PendingValue, 7);
}

TEST_F(OperatorKeysTest, SquareOfAnAreaDoesNothing) {
  Readout() = " 2'- 0\" sq.";
  app.calculator.focus = "Pi";
  Square_Click(app);
  EXPECT_EQ(Readout(), " 2'- 0\" sq.");
  EXPECT_EQ(platform.beeps, 0);
  EXPECT_TRUE(TapeLines().empty());
  EXPECT_EQ(app.calculator.focus, "Pi");
}

TEST_F(OperatorKeysTest, SquareOfAVolumeDoesNothing) {
  Readout() = " 2'- 0\" cu.";
  Square_Click(app);
  EXPECT_TRUE(TapeLines().empty());
}

TEST_F(OperatorKeysTest, SquareShowsTheMultiplyIndicatorUntilDone) {
  Readout() = "3";
  Square_Click(app);
  EXPECT_EQ(Readout(), " 9\"");
  EXPECT_EQ(ActionLabel(), "");
  EXPECT_EQ(app.calculator.focus, "Equal");
}

TEST_F(OperatorKeysTest, SquareRootOfAnAreaDoesNothing) {
  Readout() = " 2'- 0\" sq.";
  SquareRoot_Click(app);
  EXPECT_TRUE(TapeLines().empty());
}

TEST_F(OperatorKeysTest, SquareRootOfAVolumeIsTaken) {
  Readout() = "16\" cu.";
  SquareRoot_Click(app);
  EXPECT_EQ(Readout(), " 4\"");
}

TEST_F(OperatorKeysTest, SquareRootCompletesAnOperationFirst) {
  Type("9\r+7");
  SquareRoot_Click(app);
  EXPECT_EQ(TapeLines(), (Lines{"9 ", "+ 7 ", "--------------- ", " 1'- 4\" ",
                                "SQT  ", "--------------- ", " 4\" "}));
  EXPECT_EQ(Readout(), " 4\"");
}

}  // namespace
}  // namespace brenko::calc_test
