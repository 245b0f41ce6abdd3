// The geometry formulas: their prompts, stages, tape lines and results, and
// the menu entries that start them.

#include "core/calc/formulas.h"

#include "core/calc/calc_test_app.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/menus.h"
#include "core/keypad/readout_entry.h"

namespace brenko::calc_test {
namespace {

using FormulasTest = CalcTestApp;

TEST_F(FormulasTest, CircumferenceAsksForTheDiameter) {
  Pending(5, "5", kOpAdd);
  Engine().CurrentValue = 2;
  Readout() = "12";
  Circumference_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageCircumference);
  EXPECT_EQ(Label1(), " Enter diameter of circle");
  EXPECT_EQ(Readout(), "");
  EXPECT_FALSE(Engine().PendingValue.has_value());
  EXPECT_FALSE(Engine().CurrentValue.has_value());
  EXPECT_EQ(Engine().PendingOp, kOpNone);
}

TEST_F(FormulasTest, CircumferenceOfTenInches) {
  Circumference_Click(app);
  Type("10\"\r");
  EXPECT_EQ(TapeLines(), (Lines{"Circumference ", " 3.14159265 ", "x 10\" ",
                                "--------------- ", " 2'- 7 7/16\" "}));
  EXPECT_EQ(Readout(), " 2'- 7 7/16\"");
  EXPECT_EQ(Label1(), "Circumference =");
  EXPECT_EQ(Engine().FormulaStage, kStageNone);
}

TEST_F(FormulasTest, AreaOfCircleIsShownAsALength) {
  CircArea_Click(app);
  EXPECT_EQ(Label1(), " Enter radius of circle");
  EXPECT_EQ(Engine().FormulaStage, kStageCircleArea);
  Type("2\"\r");
  EXPECT_EQ(TapeLines(),
            (Lines{"Area of Circle ", " 3.14159265 ", "x 2\" ", "x 2\" ",
                   "--------------- ", " 1'- 0 9/16\" "}));
  EXPECT_EQ(Readout(), " 1'- 0 9/16\"");
  EXPECT_EQ(Label1(), "Pi(r\xC2\xB2) Area of circle =");
  EXPECT_EQ(Engine().FormulaStage, kStageNone);
}

TEST_F(FormulasTest, CylinderAsksForItsLengthAfterTheRadius) {
  CylVolume_Click(app);
  EXPECT_EQ(Label1(), " Enter radius of cylinder");
  Type("2\"\r");
  EXPECT_EQ(Label1(), "Enter length of cylinder");
  EXPECT_EQ(Engine().FormulaStage, kStageCylinderLength);
  EXPECT_EQ(Readout(), "");
  EXPECT_EQ(TapeLines(), (Lines{"Pi(r\xC2\xB2)*l Volume of Cylinder ",
                                " 3.14159265 ", "x 2\" ", "x 2\" "}));
  EXPECT_EQ(Engine().PendingText, "\"sq");
}

TEST_F(FormulasTest, CylinderVolumeIsCubic) {
  CylVolume_Click(app);
  Type("2\"\r10\"\r");
  EXPECT_EQ(Readout(), " 125 11/16\" cu.");
  EXPECT_EQ(Label1(), "Volume of cylinder =");
  EXPECT_EQ(Engine().FormulaStage, kStageNone);
  const Lines tape = TapeLines();
  ASSERT_EQ(tape.size(), 7u);
  EXPECT_EQ(tape[4], "x 10\" ");
  EXPECT_EQ(tape[5], "--------------- ");
  EXPECT_EQ(tape[6], " 125 11/16\" cu. ");
}

TEST_F(FormulasTest, DiagonalAsksForTheSecondSide) {
  mnuDiagonal_Click(app);
  EXPECT_EQ(Label1(), " Enter length of side 1");
  Type("3\"\r");
  EXPECT_EQ(Label1(), "Enter length of side 2");
  EXPECT_EQ(Engine().FormulaStage, kStageDiagonalSide2);
  EXPECT_EQ(Readout(), "");
  EXPECT_EQ(TapeLines(), (Lines{"Diagonal ", "Side1 =  3\" "}));
}

TEST_F(FormulasTest, DiagonalOfThreeAndFour) {
  mnuDiagonal_Click(app);
  Type("3\"\r4\"\r");
  EXPECT_EQ(Readout(), " 5\"");
  EXPECT_EQ(Label1(), "Diagonal =");
  EXPECT_EQ(Engine().FormulaStage, kStageNone);
  EXPECT_EQ(TapeLines(), (Lines{"Diagonal ", "Side1 =  3\" ", "Side2 =  4\" ",
                                "--------------- ", " 5\" "}));
}

TEST_F(FormulasTest, DiagonalSidesAreWrittenAsMeasures) {
  mnuDiagonal_Click(app);
  Type("2'6\"\r2'\r");
  EXPECT_EQ(TapeLines()[1], "Side1 =  2'- 6\" ");
  EXPECT_EQ(TapeLines()[2], "Side2 =  2'- 0\" ");
  // The root of 30 squared plus 24 squared: 38.4187... inches.
  EXPECT_EQ(Readout(), " 3'- 2 7/16\"");
}

TEST_F(FormulasTest, SecondFormulaKeyWhileOneIsUnderWayDoesNothing) {
  Circumference_Click(app);
  CircArea_Click(app);
  CylVolume_Click(app);
  mnuDiagonal_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageCircumference);
  EXPECT_EQ(Label1(), " Enter diameter of circle");
}

TEST_F(FormulasTest, DigitsKeepThePromptDuringAFormula) {
  CylVolume_Click(app);
  Type("2");
  EXPECT_EQ(Label1(), " Enter radius of cylinder");
  EXPECT_EQ(Readout(), "2");
}

TEST_F(FormulasTest, CancelEndsAFormula) {
  CylVolume_Click(app);
  Type("2\"\r");
  Cancel_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageNone);
  EXPECT_EQ(Label1(), "");
  CircArea_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageCircleArea);
}

TEST_F(FormulasTest, PopupEntriesStartTheSameFormulas) {
  mnuPopUp1Circumference_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageCircumference);
  Engine().FormulaStage = kStageNone;
  mnuPopUp1AreaofCircle_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageCircleArea);
  Engine().FormulaStage = kStageNone;
  mnuPopUp1VolumeofCylinder_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageCylinderRadius);
  Engine().FormulaStage = kStageNone;
  mnuPopUp1Diagonal_Click(app);
  EXPECT_EQ(Engine().FormulaStage, kStageDiagonalSide1);
}

struct MenuStart {
  const char* entry;
  std::int16_t stage;
};

class FormulaMenuTest : public CalcTestApp,
                        public ::testing::WithParamInterface<MenuStart> {};

TEST_P(FormulaMenuTest, MenuEntryStartsItsFormula) {
  EXPECT_TRUE(RunMenuCommand(app, GetParam().entry));
  EXPECT_EQ(Engine().FormulaStage, GetParam().stage);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, FormulaMenuTest,
    ::testing::Values(MenuStart{"Circumference", kStageCircumference},
                      MenuStart{"CircArea", kStageCircleArea},
                      MenuStart{"CylVolume", kStageCylinderRadius},
                      MenuStart{"mnuDiagonal", kStageDiagonalSide1},
                      MenuStart{"mnuPopUp1Circumference", kStageCircumference},
                      MenuStart{"mnuPopUp1AreaofCircle", kStageCircleArea},
                      MenuStart{"mnuPopUp1VolumeofCylinder",
                                kStageCylinderRadius},
                      MenuStart{"mnuPopUp1Diagonal", kStageDiagonalSide1}),
    [](const auto& info) { return std::string(info.param.entry); });

TEST_F(FormulasTest, UnknownMenuEntryStartsNothing) {
  EXPECT_FALSE(RunMenuCommand(app, "mnuNoSuchEntry", -1));
  EXPECT_EQ(Engine().FormulaStage, kStageNone);
  EXPECT_EQ(Label1(), "");
}

}  // namespace
}  // namespace brenko::calc_test
