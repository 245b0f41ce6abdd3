// Typing on the calculator: each character reaches the key that shows it,
// and whole calculations typed from the keyboard leave their tape.

#include "core/calc/calc_test_app.h"
#include "core/commands/keypad_handlers.h"

namespace brenko::calc_test {
namespace {

using KeyboardMapTest = CalcTestApp;

TEST_F(KeyboardMapTest, DigitsReachTheirKeys) {
  Type("0123456789");
  EXPECT_EQ(Readout(), "0123456789");
}

TEST_F(KeyboardMapTest, SpaceReachesTheBlankKey) {
  Type("7 ");
  EXPECT_EQ(Readout(), "7 ");
}

TEST_F(KeyboardMapTest, EscapeOnTheEmptyEntryClearsEverything) {
  Pending(5, "5", kOpAdd);
  Type("\x1b");
  EXPECT_FALSE(Engine().PendingValue.has_value());
  EXPECT_EQ(TapeLines(), (Lines{" ", "Clear ", " "}));
}

TEST_F(KeyboardMapTest, EscapeOnAnEntryOnlyClearsTheEntry) {
  Pending(5, "5", kOpAdd);
  Readout() = "12";
  Type("\x1b");
  EXPECT_EQ(Readout(), "0.");
  EXPECT_TRUE(Engine().PendingValue.has_value());
  EXPECT_TRUE(TapeLines().empty());
}

TEST_F(KeyboardMapTest, EnterAndEqualsSignBothFinish) {
  Type("5\r+3\r");
  EXPECT_EQ(Readout(), " 8\"");
  EXPECT_EQ(ActionLabel(), "");
  Type("+");
  EXPECT_EQ(ActionLabel(), "+");
  Type("2=");
  EXPECT_EQ(Readout(), " 10\"");
  EXPECT_EQ(ActionLabel(), "");
}

TEST_F(KeyboardMapTest, FootAndInchMarks) {
  Type("5'6\"");
  EXPECT_EQ(Readout(), "5'- 6\"");
}

TEST_F(KeyboardMapTest, PlusMinusSlashAndPoint) {
  Type("5\r");
  Type("+");
  EXPECT_EQ(Engine().PendingOp, kOpAdd);
  Type("-");
  EXPECT_EQ(Readout(), "-");
  Type("3/4.");
  EXPECT_EQ(Readout(), "-3/4.");
}

TEST_F(KeyboardMapTest, StarAndBothXsMultiply) {
  for (char key : {'*', 'x', 'X'}) {
    Pending(5, "5", kOpNone);
    ActionLabel().clear();
    Readout() = "5";
    Form_KeyPress(app, key);
    EXPECT_EQ(Engine().PendingOp, kOpMultiply) << key;
    EXPECT_EQ(ActionLabel(), "x") << key;
  }
}

TEST_F(KeyboardMapTest, BothCsClearAll) {
  for (char key : {'c', 'C'}) {
    Pending(5, "5", kOpAdd);
    Readout() = "12";
    Form_KeyPress(app, key);
    EXPECT_EQ(Readout(), "0.") << key;
    EXPECT_FALSE(Engine().PendingValue.has_value()) << key;
  }
  EXPECT_EQ(TapeLines().size(), 6u);
}

TEST_F(KeyboardMapTest, OtherLettersAndCodesDoNothing) {
  Readout() = "12";
  Type("abyzAQ!?#\t\n");
  Form_KeyPress(app, 200);
  Form_KeyPress(app, -5);
  Form_KeyPress(app, 100000);
  EXPECT_EQ(Readout(), "12");
  EXPECT_TRUE(TapeLines().empty());
  EXPECT_EQ(platform.beeps, 0);
}

TEST_F(KeyboardMapTest, BackspaceFollowsTheBackspaceRule) {
  Type("12'7\b");
  EXPECT_EQ(Readout(), "12'- ");
  Type("\b");
  EXPECT_EQ(Readout(), "12");
  Type("\b\b");
  EXPECT_EQ(Readout(), "0.");
  Type("\b");
  EXPECT_EQ(Readout(), "0.");
}

TEST_F(KeyboardMapTest, ZeroPointTypedFirstIsTheEmptyEntry) {
  Type("0.5");
  EXPECT_EQ(Readout(), "5");
}

TEST_F(KeyboardMapTest, KeyUpOfTheSpaceBarIsSwallowed) {
  int code = 32;
  Form_KeyUp(app, code);
  EXPECT_EQ(code, 0);
  code = 13;
  Form_KeyUp(app, code);
  EXPECT_EQ(code, 13);
}

TEST_F(KeyboardMapTest, TypedFractionCalculation) {
  Engine().PendingOp = kOpNone;
  Type("12'7 3/16\"\r");
  EXPECT_EQ(TapeLines(), (Lines{"12'- 7 3/16\" "}));
  Type("x2\r");
  Type("/2'\r");
  Type("-");
  EXPECT_EQ(ActionLabel(), "--");
  Type("1.5\r");
  EXPECT_EQ(TapeLines(), (Lines{"12'- 7 3/16\" ", "x 2 ", "--------------- ",
                                " 25'- 2 3/8\" ", "/ 2' ", "--------------- ",
                                " 12.5989583333333 ", "- 1.5 ",
                                "--------------- ", " 11 1/8\" "}));
  EXPECT_EQ(Readout(), " 11 1/8\"");
}

TEST_F(KeyboardMapTest, TypedAreaThenVolume) {
  Type("c2'\r*3'\r");
  EXPECT_EQ(Readout(), " 6'- 0\" sq.");
  Type("*");
  EXPECT_EQ(ActionLabel(), "x");
  Type("4'\r");
  EXPECT_EQ(Readout(), " 24'- 0\" cu.");
  EXPECT_EQ(TapeLines(), (Lines{" ", "Clear ", " ", "2' ", "x 3' ",
                                "--------------- ", " 6'- 0\" sq. ", "x 4' ",
                                "--------------- ", " 24'- 0\" cu. "}));
}

TEST_F(KeyboardMapTest, TypedSubtractionBelowZero) {
  Type("c1'\r-2'6\"\r");
  EXPECT_EQ(Readout(), "- 1'- 6\"");
  EXPECT_EQ(TapeLines().back(), "- 1'- 6\" ");
}

TEST_F(KeyboardMapTest, RightButtonOnAKeyOpensTheContextMenu) {
  Key_MouseDown(app, 2);
  Plus_MouseDown(app, 2);
  Number_MouseDown(app, 2);
  ASSERT_EQ(platform.popups.size(), 3u);
  EXPECT_EQ(platform.popups[0], "mnuPopup1");
}

TEST_F(KeyboardMapTest, OtherButtonsOnAKeyDoNothing) {
  Key_MouseDown(app, 1);
  Equal_MouseDown(app, 4);
  Pi_MouseDown(app, 0);
  EXPECT_TRUE(platform.popups.empty());
  EXPECT_EQ(Readout(), "0.");
}

}  // namespace
}  // namespace brenko::calc_test
