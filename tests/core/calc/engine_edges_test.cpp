// The engine's corners: operator codes that compute nothing, arithmetic that
// overflows and is passed over, formulas that are not interrupted, and the
// operator keys pressed before anything is pending.

#include <string>

#include "core/calc/calc_engine.h"
#include "core/calc/calc_test_app.h"
#include "core/calc/formulas.h"
#include "core/calc/operator_keys.h"
#include "core/commands/keypad_handlers.h"
#include "core/keypad/readout_entry.h"

namespace brenko::calc_test {
namespace {

using EngineEdgesTest = CalcTestApp;

// --- codes 5 to 8 -----------------------------------------------------------

class IdleCodeTest : public CalcTestApp,
                     public ::testing::WithParamInterface<std::int16_t> {};

TEST_P(IdleCodeTest, LeavesTheLastResultAndWritesItsLines) {
  Engine().ResultValue = 4;
  Engine().ResultText = " 4\"";
  Pending(1, "1", GetParam());
  EqualOn("3");
  EXPECT_EQ(Engine().ResultValue, 4);
  EXPECT_EQ(Engine().ResultText, " 4\"");
  // No operator mark belongs to these codes.
  EXPECT_EQ(TapeLines(), (Lines{" 3 ", "--------------- ", " 4\" "}));
  // Nothing was computed, so nothing new is shown: the entry stays.
  EXPECT_EQ(Readout(), "3");
  EXPECT_EQ(*Engine().PendingValue, 4);
  EXPECT_EQ(Engine().PendingText, " 4\"");
  EXPECT_EQ(Engine().PendingOp, kOpNone);
  EXPECT_FALSE(Engine().CurrentValue.has_value());
}

INSTANTIATE_TEST_SUITE_P(Codes, IdleCodeTest, ::testing::Values(5, 6, 7, 8),
                         [](const auto& info) {
                           return "Code" + std::to_string(info.param);
                         });

// --- overflow ---------------------------------------------------------------

struct OverflowRow {
  const char* name;
  double pending;
  const char* pendingText;
  std::int16_t op;
  const char* entry;
  const char* result;  // the last result, formatted by the operation's rule
};

class OverflowTest : public CalcTestApp,
                     public ::testing::WithParamInterface<OverflowRow> {};

TEST_P(OverflowTest, LastResultStands) {
  const OverflowRow& row = GetParam();
  Engine().ResultValue = 2;
  Pending(row.pending, row.pendingText, row.op);
  EqualOn(row.entry);
  EXPECT_EQ(Engine().ResultValue, 2);
  EXPECT_EQ(Engine().ResultText, row.result);
  EXPECT_EQ(TapeLines().size(), 3u);
  EXPECT_EQ(TapeLines().back(), std::string(row.result) + " ");
  EXPECT_EQ(*Engine().PendingValue, 2);
  EXPECT_TRUE(platform.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OverflowTest,
    ::testing::Values(
        OverflowRow{"Sum", 1e308, "1E+308", kOpAdd, "1E+308", " 2\""},
        OverflowRow{"Difference", -1e308, "1E+308", kOpSubtract, "1E+308",
                    " 2\""},
        OverflowRow{"Quotient", 1e308, "1E+308", kOpDivide, ".5", " 2"},
        OverflowRow{"Product", 1e308, "1E+308", kOpMultiply, "10", " 2\""}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(EngineEdgesTest, DivideByZeroShowsANegativePendingValueBare) {
  Pending(-7.5, "- 7 1/2\"", kOpDivide);
  EqualOn("0\"");
  EXPECT_EQ(Readout(), "-7.5");
  EXPECT_EQ(platform.messages.size(), 1u);
}

// --- pi as an operand -------------------------------------------------------

TEST_F(EngineEdgesTest, PiCompletesAPendingMultiply) {
  Type("2'\r*");
  Pi_Click(app);
  EXPECT_EQ(Engine().ResultValue, 24 * 3.14159265);
  // A marked length times an unmarked number stays a length (row 9).
  EXPECT_EQ(Readout(), " 6'- 3 3/8\"");
  EXPECT_EQ(TapeLines(), (Lines{"2' ", "x 3.14159265 ", "--------------- ",
                                " 6'- 3 3/8\" "}));
}

// --- formulas are not interrupted -------------------------------------------

TEST_F(EngineEdgesTest, FormulaKeysWaitWhileTheCylinderWantsItsLength) {
  CylVolume_Click(app);
  Type("2\"\r");
  Circumference_Click(app);
  CircArea_Click(app);
  mnuDiagonal_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageCylinderLength);
  EXPECT_EQ(Label1(), "Enter length of cylinder");
  ASSERT_TRUE(Engine().PendingValue.has_value());
  Type("10\"\r");
  EXPECT_EQ(Readout(), " 125 11/16\" cu.");
}

TEST_F(EngineEdgesTest, FormulaKeysWaitWhileTheDiagonalWantsSideTwo) {
  mnuDiagonal_Click(app);
  Type("3\"\r");
  CylVolume_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageDiagonalSide2);
  EXPECT_EQ(Label1(), "Enter length of side 2");
  Type("4\"\r");
  EXPECT_EQ(Readout(), " 5\"");
}

TEST_F(EngineEdgesTest, NewFormulaStartsOnceTheLastHasEnded) {
  Circumference_Click(app);
  Type("10\"\r");
  CircArea_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageCircleArea);
  EXPECT_EQ(Label1(), " Enter radius of circle");
  EXPECT_EQ(Readout(), "");
  EXPECT_FALSE(Engine().PendingValue.has_value());
}

TEST_F(EngineEdgesTest, CircumferenceOfAFootIsALength) {
  Circumference_Click(app);
  Type("1'\r");
  // 12 x 3.14159265 = 37.6991118: three feet, 1 11/16 inches.
  EXPECT_EQ(Readout(), " 3'- 1 11/16\"");
  EXPECT_EQ(TapeLines().at(2), "x 1' ");
}

// --- operator keys with nothing pending
// ---------------------------------------

struct IdleKeyRow {
  const char* name;
  void (*key)(App&);
  const char* readoutAfter;
};

class IdleOperatorKeyTest : public CalcTestApp,
                            public ::testing::WithParamInterface<IdleKeyRow> {};

TEST_P(IdleOperatorKeyTest, ChangesOnlyThePromptAndTheFocus) {
  Readout() = "12";
  Label1() = "Diagonal =";
  app.calculator.focus = "Pi";
  GetParam().key(app);
  EXPECT_EQ(Readout(), GetParam().readoutAfter);
  EXPECT_EQ(Label1(), "");
  EXPECT_EQ(app.calculator.focus, "Equal");
  EXPECT_EQ(ActionLabel(), "");
  EXPECT_EQ(Engine().PendingOp, kOpStartUp);
  EXPECT_FALSE(Engine().PendingValue.has_value());
  EXPECT_TRUE(TapeLines().empty());
  EXPECT_EQ(platform.beeps, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, IdleOperatorKeyTest,
    ::testing::Values(IdleKeyRow{"Plus", Plus_Click, "12"},
                      IdleKeyRow{"Minus", Minus_Click, "12"},
                      IdleKeyRow{"Multiply", Multiply_Click, "12"},
                      IdleKeyRow{"Divide", Divide_Click, "12/"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(EngineEdgesTest, DivideKeyTypesTheSlashOnceAnOperatorIsShown) {
  Pending(5, "5", kOpNone);
  ActionLabel() = "x";
  Readout() = "";
  Divide_Click(app);
  EXPECT_EQ(Readout(), "/");
  EXPECT_EQ(ActionLabel(), "x");
  EXPECT_EQ(Engine().PendingOp, kOpNone);
}

}  // namespace
}  // namespace brenko::calc_test
