// Calculate: reading the entry, the first operand, completing an operation,
// its tape lines and the result shown.

#include "core/calc/calc_engine.h"

#include <cmath>

#include "core/calc/calc_test_app.h"
#include "core/calc/operator_keys.h"
#include "core/commands/keypad_handlers.h"
#include "core/keypad/readout_entry.h"
#include "core/measure/measure.h"
#include "core/measure/number_text.h"

namespace brenko::calc_test {
namespace {

using CalculateTest = CalcTestApp;

TEST_F(CalculateTest, WorkedExampleLeavesFourLines) {
  Type("5'0\"\r");
  Type("+");
  Type("3'6\"\r");
  EXPECT_EQ(TapeLines(),
            (Lines{"5'- 0\" ", "+ 3'- 6\" ", "--------------- ", " 8'- 6\" "}));
  EXPECT_EQ(Readout(), " 8'- 6\"");
}

TEST_F(CalculateTest, FirstEqualOnlyMakesTheEntryPending) {
  Type("5'0\"\r");
  EXPECT_EQ(TapeLines(), (Lines{"5'- 0\" "}));
  ASSERT_TRUE(Engine().PendingValue.has_value());
  EXPECT_EQ(*Engine().PendingValue, 60);
  EXPECT_EQ(Engine().PendingText, "5'- 0\"");
  EXPECT_EQ(Engine().PendingOp, kOpStartUp);
  EXPECT_EQ(Readout(), "5'- 0\"");
  EXPECT_FALSE(Engine().CurrentValue.has_value());
}

TEST_F(CalculateTest, EntryTextKeepsTheTextAsKeyed) {
  EqualOn("12'- 7 3/16\"");
  EXPECT_EQ(Engine().EntryText, "12'- 7 3/16\"");
  EXPECT_EQ(Engine().EntryValue, 151.1875);
}

TEST_F(CalculateTest, BlanksAroundTheEntryAreTrimmed) {
  EqualOn("  7\"  ");
  EXPECT_EQ(Engine().EntryText, "7\"");
  EXPECT_EQ(TapeLines(), (Lines{"7\" "}));
}

TEST_F(CalculateTest, TrailingMinusIsDropped) {
  EqualOn("5-");
  EXPECT_EQ(Engine().EntryText, "5");
  EXPECT_EQ(Engine().EntryValue, 5);
}

TEST_F(CalculateTest, LeadingMinusMakesTheEntryNegative) {
  EqualOn("-7\"");
  EXPECT_EQ(Engine().EntryValue, -7);
  EXPECT_EQ(Engine().EntryText, "7\"");
  EXPECT_EQ(*Engine().PendingValue, -7);
}

TEST_F(CalculateTest, LoneMinusReadsAsNothing) {
  EqualOn("-");
  EXPECT_EQ(Engine().EntryText, "");
  EXPECT_EQ(Engine().EntryValue, 0);
  EXPECT_EQ(TapeLines(), (Lines{" "}));
}

TEST_F(CalculateTest, NegativeResultShowsItsSignOnce) {
  Pending(12, "1'- 0\"", kOpSubtract);
  EqualOn("2'- 0\"");
  EXPECT_EQ(Engine().ResultValue, -12);
  EXPECT_EQ(Engine().ResultText, "- 1'- 0\"");
  EXPECT_EQ(Readout(), "- 1'- 0\"");
}

TEST_F(CalculateTest, IdleCodeLeavesTheReadoutAsKeyed) {
  // Codes 5 to 8 leave the old result and do not show it.
  Engine().ResultValue = -3;
  Engine().ResultText = "3";
  Pending(1, "1", kOpStartUp);
  EqualOn("2");
  EXPECT_EQ(Readout(), "2");
  EXPECT_EQ(*Engine().PendingValue, -3);
}

TEST_F(CalculateTest, EqualOnAShownNegativeResultReadsItsSign) {
  Pending(12, "1'- 0\"", kOpSubtract);
  EqualOn("2'- 0\"");
  Type("\r");
  EXPECT_EQ(Engine().EntryValue, -12);
  EXPECT_EQ(Engine().ResultValue, -24);
  EXPECT_EQ(Readout(), "- 2'- 0\"");
  EXPECT_EQ(TapeLines().at(3), "+  1'- 0\" ");
}

TEST_F(CalculateTest, ResultBecomesThePendingOperand) {
  Type("5\r+3\r");
  EXPECT_EQ(*Engine().PendingValue, 8);
  EXPECT_EQ(Engine().PendingText, " 8\"");
  EXPECT_EQ(Engine().PendingOp, kOpNone);
  EXPECT_FALSE(Engine().CurrentValue.has_value());
  EXPECT_EQ(Engine().CurrentText, "");
  EXPECT_EQ(ActionLabel(), "");
  EXPECT_EQ(app.calculator.focus, "Equal");
}

TEST_F(CalculateTest, RepeatedEqualAddsTheNewEntry) {
  Type(
      "5\r+3\r\x1b"
      "2\r");
  EXPECT_EQ(Engine().ResultValue, 10);
  EXPECT_EQ(TapeLines(), (Lines{"5 ", "+ 3 ", "--------------- ", " 8\" ",
                                "+ 2 ", "--------------- ", " 10\" "}));
}

TEST_F(CalculateTest, StartUpCodeComputesNothing) {
  Type(
      "5\r\x1b"
      "3\r");
  EXPECT_EQ(TapeLines(), (Lines{"5 ", " 3 ", "--------------- ", " "}));
  EXPECT_EQ(Readout(), "3");
  EXPECT_EQ(*Engine().PendingValue, 0);
  EXPECT_EQ(Engine().PendingOp, kOpNone);
}

TEST_F(CalculateTest, SubtractWritesItsMark) {
  Engine().PendingOp = kOpNone;
  Type("10\r-4\r");
  EXPECT_EQ(TapeLines(), (Lines{"10 ", "- 4 ", "--------------- ", " 6\" "}));
}

TEST_F(CalculateTest, SquareRootLineReadsSqtAndTwoBlanks) {
  Readout() = "16";
  SquareRoot_Click(app);
  EXPECT_EQ(TapeLines(), (Lines{"SQT  ", "--------------- ", " 4\" "}));
  EXPECT_EQ(Readout(), " 4\"");
  EXPECT_EQ(Engine().EntryText, "");
}

TEST_F(CalculateTest, SquareRootOfANegativeValueIsPassedOver) {
  Engine().ResultValue = 9;
  Readout() = "-4";
  SquareRoot_Click(app);
  EXPECT_EQ(Engine().ResultValue, 9);
  EXPECT_EQ(Readout(), " 9\"");
}

TEST_F(CalculateTest, SquareOfAFreshLengthIsShownAsALength) {
  Readout() = "3'- 0\"";
  Square_Click(app);
  EXPECT_EQ(Engine().ResultValue, 1296);
  EXPECT_EQ(Readout(), " 108'- 0\"");
  EXPECT_EQ(TapeLines(),
            (Lines{"x 3'- 0\" ", "--------------- ", " 108'- 0\" "}));
}

TEST_F(CalculateTest, SquareDuringAnOperationGivesAnArea) {
  Type("2'0\"\r+1'0\"");
  Square_Click(app);
  EXPECT_EQ(Readout(), " 9'- 0\" sq.");
  EXPECT_EQ(TapeLines(),
            (Lines{"2'- 0\" ", "+ 1'- 0\" ", "--------------- ", " 3'- 0\" ",
                   "x 3'- 0\" ", "--------------- ", " 9'- 0\" sq. "}));
}

TEST_F(CalculateTest, DivideByZeroShowsTheMessageAndKeepsThePendingValue) {
  Pending(60, "5'- 0\"", kOpDivide);
  EqualOn("0");
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text, "Can't divide by zero!");
  EXPECT_EQ(platform.messages[0].title, "Error");
  EXPECT_EQ(platform.messages[0].buttons, MsgButtons::kOk);
  EXPECT_EQ(platform.messages[0].icon, MsgIcon::kExclamation);
  EXPECT_EQ(Readout(), "60");
  EXPECT_EQ(*Engine().PendingValue, 60);
  EXPECT_EQ(Engine().PendingOp, kOpNone);
  EXPECT_FALSE(Engine().CurrentValue.has_value());
  EXPECT_TRUE(TapeLines().empty());
}

TEST_F(CalculateTest, DivideByZeroShowsAFractionalPendingValueBare) {
  Pending(0.5, "1/2\"", kOpDivide);
  EqualOn("0.");
  EXPECT_EQ(Readout(), ".5");
}

TEST_F(CalculateTest, AfterDivideByZeroTheNextEqualAdds) {
  Pending(60, "5'- 0\"", kOpDivide);
  EqualOn("0");
  EqualOn("2");
  EXPECT_EQ(Engine().ResultValue, 62);
}

TEST_F(CalculateTest, CubicTimesLengthIsRefusedWithTwoBeeps) {
  Pending(1728, " 1'- 0\" cu.", kOpMultiply);
  ActionLabel() = "x";
  EqualOn("2\"");
  EXPECT_EQ(platform.beeps, 2);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Readout(), " 1'- 0\" cu.");
  EXPECT_EQ(ActionLabel(), "");
  EXPECT_EQ(Engine().PendingOp, kOpNone);
  EXPECT_EQ(Engine().CurrentText, "");
  EXPECT_TRUE(TapeLines().empty());
}

TEST_F(CalculateTest, OverflowingProductIsPassedOver) {
  Pending(1e200, "1E+200", kOpMultiply);
  EqualOn("1E+200");
  EXPECT_EQ(Engine().ResultValue, 0);
  EXPECT_EQ(Readout(), " 0\"");
  EXPECT_EQ(TapeLines().size(), 3u);
}

TEST_F(CalculateTest, NotANumberEntryLeavesTheLastResult) {
  Engine().ResultValue = 5;
  Pending(1, "1", kOpAdd);
  EqualOn("7 /");  // a fraction of nothing over nothing
  EXPECT_TRUE(std::isnan(Engine().EntryValue));
  EXPECT_EQ(Engine().ResultValue, 5);
}

TEST_F(CalculateTest, PiEntersAndCalculates) {
  Pi_Click(app);
  EXPECT_EQ(Readout(), "3.14159265");
  EXPECT_EQ(*Engine().PendingValue, 3.14159265);
  EXPECT_EQ(TapeLines(), (Lines{"3.14159265 "}));
}

TEST_F(CalculateTest, ClearCurrentOperandForgetsTheRightOperand) {
  Engine().CurrentValue = 3;
  ClearCurrentOperand(app.engine);
  EXPECT_FALSE(Engine().CurrentValue.has_value());
}

TEST_F(CalculateTest, ResultFollowsTheAccuracy) {
  app.accuracy = 32;
  Type("1/32\"\r+0\r");
  EXPECT_EQ(Readout(), "1/32\"");
}

}  // namespace
}  // namespace brenko::calc_test
