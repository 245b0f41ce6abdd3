// Entry keys on the texts the keypad rules name: the pi text, the empty text
// and feet numbers with a point.

#include "core/calc/calc_test_app.h"
#include "core/commands/keypad_handlers.h"
#include "core/keypad/readout_entry.h"

namespace brenko::calc_test {
namespace {

using EntryEdgesTest = CalcTestApp;

TEST_F(EntryEdgesTest, ClearAllWorksOnPi) {
  Pending(5, "5", kOpAdd);
  Readout() = "3.14159265";
  Cancel_Click(app);
  EXPECT_EQ(Readout(), "0.");
  EXPECT_FALSE(Engine().PendingValue.has_value());
  EXPECT_EQ(TapeLines(), (Lines{" ", "Clear ", " "}));
}

TEST_F(EntryEdgesTest, EscapeOnPiOnlyClearsTheEntry) {
  Pending(5, "5", kOpAdd);
  Readout() = "3.14159265";
  Type("\x1b");
  EXPECT_EQ(Readout(), "0.");
  EXPECT_TRUE(Engine().PendingValue.has_value());
  EXPECT_TRUE(TapeLines().empty());
}

TEST_F(EntryEdgesTest, TypedKeysOnPiDoNothingButBackspace) {
  Readout() = "3.14159265";
  Type("7.'\" ");
  EXPECT_EQ(Readout(), "3.14159265");
  Type("\b");
  EXPECT_EQ(Readout(), "3.1415926");
}

TEST_F(EntryEdgesTest, PointAfterAFeetNumberWithAPointIsAlwaysTaken) {
  // The first point stands before the feet mark, so the rule lets a point
  // through however many the inches already have.
  Readout() = "2.5'- 3.5";
  Decimal_Click(app);
  EXPECT_EQ(Readout(), "2.5'- 3.5.");
}

TEST_F(EntryEdgesTest, PointAfterAFeetNumberWithoutOne) {
  Readout() = "2'- 3";
  Decimal_Click(app);
  EXPECT_EQ(Readout(), "2'- 3.");
}

TEST_F(EntryEdgesTest, KeysOnTheEmptyText) {
  Readout() = "";
  Decimal_Click(app);
  EXPECT_EQ(Readout(), ".");
  Readout() = "";
  Foot_Click(app);
  EXPECT_EQ(Readout(), "'- ");
  Readout() = "";
  Inch_Click(app);
  EXPECT_EQ(Readout(), "\"");
  Readout() = "";
  Number_Click(app, 0);
  EXPECT_EQ(Readout(), "0");
}

TEST_F(EntryEdgesTest, BackspaceTakesOneOfTwoFeetPieces) {
  Readout() = "12'- '- ";
  Backspace_Click(app);
  EXPECT_EQ(Readout(), "12'- ");
}

TEST_F(EntryEdgesTest, BackspaceTakesTheInchMarkAlone) {
  Readout() = "7\"";
  Backspace_Click(app);
  EXPECT_EQ(Readout(), "7");
}

TEST_F(EntryEdgesTest, PiOnAZeroInchEntryStartsAnOperand) {
  Readout() = "0\"";
  Pi_Click(app);
  EXPECT_EQ(Readout(), "3.14159265");
  EXPECT_EQ(*Engine().PendingValue, 3.14159265);
  EXPECT_EQ(Engine().PendingText, "3.14159265");
}

TEST_F(EntryEdgesTest, PiOnTheFeetPieceDoesNothing) {
  Readout() = "0.'- ";
  Pi_Click(app);
  EXPECT_EQ(Readout(), "0.'- ");
  EXPECT_FALSE(Engine().PendingValue.has_value());
}

TEST_F(EntryEdgesTest, FeetPieceAfterTheEmptyEntryReadsAsZeroFeet) {
  Type("'6\r");
  EXPECT_EQ(Readout(), "0.'- 6");
  EXPECT_EQ(Engine().EntryValue, 6);
  EXPECT_EQ(TapeLines(), (Lines{"0.'- 6 "}));
}

}  // namespace
}  // namespace brenko::calc_test
