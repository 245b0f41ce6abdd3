// The entry keys: digits, point, feet and inch marks, blank, backspace,
// clearing and pi, each decided by the readout's text alone.

#include "core/keypad/readout_entry.h"

#include "core/calc/calc_test_app.h"
#include "core/commands/keypad_handlers.h"

namespace brenko::calc_test {
namespace {

class ReadoutEntryTest : public CalcTestApp {
 protected:
  std::string After(std::string start, void (*key)(App&)) {
    Readout() = std::move(start);
    key(app);
    return Readout();
  }
  std::string AfterDigit(std::string start, int digit) {
    Readout() = std::move(start);
    Number_Click(app, digit);
    return Readout();
  }
};

TEST_F(ReadoutEntryTest, DigitReplacesTheEmptyEntry) {
  EXPECT_EQ(AfterDigit("0.", 5), "5");
}

TEST_F(ReadoutEntryTest, DigitIsAppended) {
  EXPECT_EQ(AfterDigit("12", 7), "127");
}

TEST_F(ReadoutEntryTest, DigitAfterTheInchMarkIsStillAppended) {
  EXPECT_EQ(AfterDigit("7\"", 3), "7\"3");
  EXPECT_EQ(AfterDigit("7 3/16\"", 5), "7 3/16\"5");
}

TEST_F(ReadoutEntryTest, DigitOnPiDoesNothing) {
  EXPECT_EQ(AfterDigit("3.14159265", 5), "3.14159265");
}

TEST_F(ReadoutEntryTest, DigitClearsThePromptWithoutAFormula) {
  Label1() = "Circumference =";
  AfterDigit("0.", 1);
  EXPECT_EQ(Label1(), "");
}

TEST_F(ReadoutEntryTest, DigitKeepsThePromptDuringAFormula) {
  Engine().FormulaStage = kStageDiagonalSide1;
  Label1() = " Enter length of side 1";
  AfterDigit("", 1);
  EXPECT_EQ(Label1(), " Enter length of side 1");
}

TEST_F(ReadoutEntryTest, DigitUsesTheKeysCaption) {
  app.calculator.Find("Number", 4)->label.caption = "4";
  EXPECT_EQ(AfterDigit("1", 4), "14");
}

TEST_F(ReadoutEntryTest, DigitOfAMissingKeyDoesNothing) {
  EXPECT_EQ(AfterDigit("1", 10), "1");
  EXPECT_EQ(AfterDigit("1", -1), "1");
}

TEST_F(ReadoutEntryTest, PointOnTheEmptyEntryGivesAPoint) {
  EXPECT_EQ(After("0.", Decimal_Click), ".");
}

TEST_F(ReadoutEntryTest, PointIsAppendedOnce) {
  EXPECT_EQ(After("12", Decimal_Click), "12.");
  EXPECT_EQ(After("12.5", Decimal_Click), "12.5");
}

TEST_F(ReadoutEntryTest, SecondPointWhenTheFirstBelongsToTheFeet) {
  EXPECT_EQ(After("2.5'- 3", Decimal_Click), "2.5'- 3.");
}

TEST_F(ReadoutEntryTest, NoPointAfterAPointInTheInches) {
  EXPECT_EQ(After("2'- 3.5", Decimal_Click), "2'- 3.5");
}

TEST_F(ReadoutEntryTest, NoPointAfterTheInchMark) {
  EXPECT_EQ(After("7\"", Decimal_Click), "7\"");
}

TEST_F(ReadoutEntryTest, PointOnPiDoesNothing) {
  EXPECT_EQ(After("3.14159265", Decimal_Click), "3.14159265");
}

TEST_F(ReadoutEntryTest, FeetPieceIsAppended) {
  EXPECT_EQ(After("12", Foot_Click), "12'- ");
}

TEST_F(ReadoutEntryTest, FeetPieceIsAppendedEveryTime) {
  EXPECT_EQ(After("12'- ", Foot_Click), "12'- '- ");
  EXPECT_EQ(After("0.", Foot_Click), "0.'- ");
  EXPECT_EQ(After("7\"", Foot_Click), "7\"'- ");
}

TEST_F(ReadoutEntryTest, FeetOnPiDoesNothing) {
  EXPECT_EQ(After("3.14159265", Foot_Click), "3.14159265");
}

TEST_F(ReadoutEntryTest, InchMarkIsAppendedOnce) {
  EXPECT_EQ(After("7", Inch_Click), "7\"");
  EXPECT_EQ(After("7\"", Inch_Click), "7\"");
  EXPECT_EQ(After("0.", Inch_Click), "0.\"");
}

TEST_F(ReadoutEntryTest, InchOnPiDoesNothing) {
  EXPECT_EQ(After("3.14159265", Inch_Click), "3.14159265");
}

TEST_F(ReadoutEntryTest, BlankIsAppendedToAnEntry) {
  EXPECT_EQ(After("7", Spacebar_Click), "7 ");
}

TEST_F(ReadoutEntryTest, BlankIsRefusedOnEmptyEntriesAndAfterTheInchMark) {
  EXPECT_EQ(After("0.", Spacebar_Click), "0.");
  EXPECT_EQ(After("", Spacebar_Click), "");
  EXPECT_EQ(After("7\"", Spacebar_Click), "7\"");
  EXPECT_EQ(After("3.14159265", Spacebar_Click), "3.14159265");
}

TEST_F(ReadoutEntryTest, BackspaceRemovesTheFeetPieceAsOne) {
  EXPECT_EQ(After("12'- 7", Backspace_Click), "12'- ");
  EXPECT_EQ(After("12'- ", Backspace_Click), "12");
}

TEST_F(ReadoutEntryTest, BackspaceOnTheLastDigitGivesTheEmptyEntry) {
  EXPECT_EQ(After("5", Backspace_Click), "0.");
  EXPECT_EQ(After("'- ", Backspace_Click), "0.");
}

TEST_F(ReadoutEntryTest, BackspaceLeavesEmptyTextsAlone) {
  EXPECT_EQ(After("", Backspace_Click), "");
  EXPECT_EQ(After("0.", Backspace_Click), "0.");
}

TEST_F(ReadoutEntryTest, BackspaceWorksOnPi) {
  EXPECT_EQ(After("3.14159265", Backspace_Click), "3.1415926");
  EXPECT_EQ(AfterDigit(Readout(), 1), "3.14159261");
}

TEST_F(ReadoutEntryTest, ClearEntryKeepsThePendingOperation) {
  Pending(5, "5", kOpAdd);
  ActionLabel() = "+";
  EXPECT_EQ(After("3.14159265", CancelEntry_Click), "0.");
  EXPECT_EQ(Engine().PendingOp, kOpAdd);
  EXPECT_EQ(ActionLabel(), "+");
  EXPECT_TRUE(Engine().PendingValue.has_value());
}

TEST_F(ReadoutEntryTest, ClearAllResetsTheEngineAndMarksTheTape) {
  Pending(5, "5", kOpAdd);
  Engine().CurrentValue = 3;
  Engine().FormulaStage = kStageCylinderLength;
  ActionLabel() = "+";
  Label1() = "Enter length of cylinder";
  EXPECT_EQ(After("12", Cancel_Click), "0.");
  EXPECT_FALSE(Engine().PendingValue.has_value());
  EXPECT_FALSE(Engine().CurrentValue.has_value());
  EXPECT_EQ(Engine().PendingOp, kOpNone);
  EXPECT_EQ(Engine().FormulaStage, kStageNone);
  EXPECT_EQ(ActionLabel(), "");
  EXPECT_EQ(Label1(), "");
  EXPECT_EQ(TapeLines(), (Lines{" ", "Clear ", " "}));
}

TEST_F(ReadoutEntryTest, ClearAllScrollsTheTapeToItsEnd) {
  for (int i = 0; i < 3; ++i) Cancel_Click(app);
  EXPECT_EQ(app.tapes.topRow, 6);  // nine lines, four rows in view
}

TEST_F(ReadoutEntryTest, PiOnEmptyTextsEntersPi) {
  for (const char* start : {"", "0.", "0", "0\""}) {
    Engine().PendingValue.reset();
    Readout() = start;
    Pi_Click(app);
    EXPECT_EQ(Readout(), "3.14159265") << start;
    EXPECT_EQ(Engine().EntryText, "3.14159265") << start;
  }
  EXPECT_EQ(TapeLines().size(), 4u);
}

TEST_F(ReadoutEntryTest, PiOnAnEntryDoesNothing) {
  EXPECT_EQ(After("5", Pi_Click), "5");
  EXPECT_TRUE(TapeLines().empty());
}

TEST_F(ReadoutEntryTest, RemoveLastPieceIsTheBackspaceRule) {
  std::string text = "7 3/16\"";
  ReadoutMarks marks;
  RemoveLastPiece(text, marks);
  EXPECT_EQ(text, "7 3/16");
  text = "12'- ";
  RemoveLastPiece(text, marks);
  EXPECT_EQ(text, "12");
}

}  // namespace
}  // namespace brenko::calc_test
