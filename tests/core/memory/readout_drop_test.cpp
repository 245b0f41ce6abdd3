#include <gtest/gtest.h>

#include "core/commands/drag_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_drag.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

const DragSource kReadout{DragSource::kReadout, 0};
const DragSource kMemory1{DragSource::kMemory, 1};

class ReadoutDropTest : public ::testing::Test, public TestProgram {
 protected:
  void SetUp() override {
    NewMemory_Click(app);
    app.calculator.Readout().caption = "0.";
    app.tapeWindow.title.caption = "Memory 1";
    app.tapes.ShownTape = 1;
  }
  float Mid() { return ReadoutMidpoint(app.calculator.Readout()); }
  void Drop(const std::string& value, float x) {
    Memory(1).label1.caption = value;
    Readout_DragDrop(app, kMemory1, x, 0);
  }
  void Pending(double value, const std::string& text, std::int16_t op) {
    app.engine.PendingValue = value;
    app.engine.PendingText = text;
    app.engine.PendingOp = op;
  }
};

TEST_F(ReadoutDropTest, MidpointIsLeftPlusHalfTheWidth) {
  app.calculator.Readout().rect = {185, 120, 3180, 450};
  EXPECT_FLOAT_EQ(Mid(), 185 + 1590);
}

TEST_F(ReadoutDropTest, RightHalfWithNothingPendingMakesTheValuePending) {
  Drop(" 5'- 0\" ", Mid() + 100);
  EXPECT_EQ(app.engine.PendingValue, 60);
  EXPECT_EQ(app.engine.PendingText, " 5'- 0\" ");
  EXPECT_EQ(app.engine.PendingOp, 0);
  EXPECT_EQ(app.calculator.Readout().caption, "0.");
  EXPECT_EQ(Tape(0), " + 5'- 0\" ");
  EXPECT_EQ(app.tapeWindow.title.caption, "Calculator");
  EXPECT_EQ(app.tapes.ShownTape, 0);
}

TEST_F(ReadoutDropTest, DropExactlyOnTheMidpointAdds) {
  Drop(" 7\" ", Mid());
  EXPECT_EQ(app.engine.PendingValue, 7);
  EXPECT_EQ(Tape(0), " + 7\" ");
}

TEST_F(ReadoutDropTest, LeftHalfEntersTheNegatedValue) {
  Drop(" 5'- 0\" ", Mid() - 100);
  EXPECT_EQ(app.engine.PendingValue, -60);
  EXPECT_EQ(app.engine.PendingText, "- 5'- 0\" ");
  EXPECT_EQ(app.calculator.Readout().caption, "- 5'- 0\" ");
  EXPECT_EQ(Tape(0), " - 5'- 0\" ");
}

TEST_F(ReadoutDropTest, TrailingMinusIsCutAndTheHalfGivesTheSign) {
  app.calculator.Readout().caption = "5'-";
  Readout_DragDrop(app, kReadout, Mid() + 100, 0);
  EXPECT_EQ(app.engine.PendingValue, 60);
  EXPECT_EQ(Tape(0), " + 5' ");
  EXPECT_EQ(app.engine.PendingText, "5'-");
}

TEST_F(ReadoutDropTest, NegativeValueIsEnteredByItsMagnitude) {
  Drop("- 7\" ", Mid() + 100);
  EXPECT_EQ(app.engine.PendingValue, 7);
  // Only the sign is cut: the blank that followed it stays.
  EXPECT_EQ(Tape(0), " +  7\" ");
}

TEST_F(ReadoutDropTest, PendingAdditionIsCompletedByTheHalfOfTheDrop) {
  Pending(60, " 5'- 0\"", kOpAdd);
  Drop(" 3'- 0\" ", Mid() + 100);
  EXPECT_EQ(app.engine.PendingValue, 96);
  EXPECT_EQ(app.engine.PendingOp, 0);
  EXPECT_EQ(app.engine.PendingText, " 8'- 0\"");
  EXPECT_FALSE(app.engine.CurrentValue.has_value());
  EXPECT_EQ(app.calculator.Readout().caption, " 8'- 0\"");
  EXPECT_EQ(Tape(0), " + 3'- 0\" \n--------------- \n 8'- 0\" ");
}

TEST_F(ReadoutDropTest, PendingAdditionDroppedOnTheLeftSubtracts) {
  Pending(60, " 5'- 0\"", kOpAdd);
  Drop(" 3'- 0\" ", Mid() - 100);
  EXPECT_EQ(app.engine.PendingValue, 24);
  EXPECT_EQ(Tape(0), " - 3'- 0\" \n--------------- \n 2'- 0\" ");
}

TEST_F(ReadoutDropTest, NegativeResultShowsItsSignOnce) {
  Pending(12, " 1'- 0\"", kOpSubtract);
  Drop(" 2'- 0\" ", Mid() - 100);
  EXPECT_EQ(app.engine.PendingValue, -12);
  EXPECT_EQ(app.calculator.Readout().caption, "- 1'- 0\"");
}

TEST_F(ReadoutDropTest, PendingMultiplyTakesTheDropAsSecondOperand) {
  Pending(24, " 2'- 0\"", kOpMultiply);
  app.calculator.ActionLabel().caption = "x";
  Drop(" 3'- 0\" ", Mid() - 100);
  EXPECT_EQ(app.engine.ResultValue, 24 * 36);
  EXPECT_EQ(app.engine.PendingValue, 24 * 36);
  EXPECT_EQ(app.calculator.ActionLabel().caption, "");
  EXPECT_NE(app.calculator.Readout().caption.find("sq."), std::string::npos);
}

TEST_F(ReadoutDropTest, PendingDivideTakesTheMagnitudeAsDivisor) {
  Pending(24, " 2'- 0\"", kOpDivide);
  Drop("- 6\" ", Mid() - 100);
  EXPECT_EQ(app.engine.ResultValue, 4);
}

TEST_F(ReadoutDropTest, DragOverShowsTheOperatorsPicture) {
  app.calculator.ActionLabel().caption = "x";
  Readout_DragOver(app, kMemory1, -5000, 0);
  EXPECT_EQ(app.calculator.readoutDragIcon, "Image4");
  EXPECT_EQ(Memory(1).dragIcon, "Image4");
  app.calculator.ActionLabel().caption = "\xC3\xB7";
  Readout_DragOver(app, kMemory1, Mid(), 0);
  EXPECT_EQ(app.calculator.readoutDragIcon, "Image5");
}

TEST_F(ReadoutDropTest, DragOverShowsPlusOrMinusInsideTheReadout) {
  const Label& r = app.calculator.Readout();
  Readout_DragOver(app, kReadout, Mid(), 0);
  EXPECT_EQ(app.calculator.readoutDragIcon, "Image1");
  Readout_DragOver(app, kReadout, Mid() - 1, 0);
  EXPECT_EQ(app.calculator.readoutDragIcon, "Image2");
  Readout_DragOver(app, kReadout, r.rect.left + r.rect.width + 1, 0);
  EXPECT_EQ(app.calculator.readoutDragIcon, "Image2");  // unchanged outside
}

// The kind checks made before a drop on the readout changes anything.
struct KindCase {
  const char* name;
  std::int16_t op;
  bool pending;
  const char* pendingText;
  const char* dropped;
  bool accepted;
};

class ReadoutKindCheckTest : public ::testing::TestWithParam<KindCase> {};

TEST_P(ReadoutKindCheckTest, RefusesMismatchedKindsBeforeAnyChange) {
  const KindCase& c = GetParam();
  TestProgram t;
  NewMemory_Click(t.app);
  t.app.memory.Find(1)->label1.caption = c.dropped;
  if (c.pending) t.app.engine.PendingValue = 2;
  t.app.engine.PendingText = c.pendingText;
  t.app.engine.PendingOp = c.op;
  t.app.calculator.Readout().caption = "0.";
  const float x = ReadoutMidpoint(t.app.calculator.Readout()) + 10;
  Readout_DragDrop(t.app, kMemory1, x, 0);
  if (c.accepted) {
    EXPECT_EQ(t.platform.beeps, 0);
  } else {
    EXPECT_EQ(t.platform.beeps, 2);
    EXPECT_EQ(t.app.tapes.TapeLineCount()[0], 0);
    EXPECT_EQ(t.app.engine.PendingValue,
              c.pending ? std::optional<double>(2) : std::nullopt);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ReadoutKindCheckTest,
    ::testing::Values(KindCase{"MultiplySquareBySquareRefused", kOpMultiply,
                               true, " 1'- 0\" sq.", " 2'- 0\" sq.", false},
                      KindCase{"MultiplySquareByCubicRefused", kOpMultiply,
                               true, " 1'- 0\" sq.", " 2'- 0\" cu.", false},
                      KindCase{"MultiplySquareByLengthAccepted", kOpMultiply,
                               true, " 1'- 0\" sq.", " 2'- 0\"", true},
                      KindCase{"MultiplyLengthByCubicRefused", kOpMultiply,
                               true, " 1'- 0\"", " 2'- 0\" cu.", false},
                      KindCase{"MultiplyLengthBySquareAccepted", kOpMultiply,
                               true, " 1'- 0\"", " 2'- 0\" sq.", true},
                      KindCase{"MultiplyPlainNumberByCubicAccepted",
                               kOpMultiply, true, "3", " 2'- 0\" cu.", true},
                      KindCase{"DivideCubicByAnythingAccepted", kOpDivide, true,
                               " 1'- 0\" cu.", " 2'- 0\" sq.", true},
                      KindCase{"DivideSquareByCubicRefused", kOpDivide, true,
                               " 1'- 0\" sq.", " 2'- 0\" cu.", false},
                      KindCase{"DivideSquareBySquareAccepted", kOpDivide, true,
                               " 1'- 0\" sq.", " 2'- 0\" sq.", true},
                      KindCase{"DivideLengthBySquareRefused", kOpDivide, true,
                               " 1'- 0\"", " 2'- 0\" sq.", false},
                      KindCase{"AddCubicToLengthRefused", kOpAdd, true,
                               " 1'- 0\" cu.", " 2'- 0\"", false},
                      KindCase{"AddSquareToSquareAccepted", kOpAdd, true,
                               " 1'- 0\" sq.", " 2'- 0\" sq.", true},
                      KindCase{"SubtractSquareFromLengthRefused", kOpSubtract,
                               true, " 1'- 0\"", " 2'- 0\" sq.", false},
                      KindCase{"ResultPendingChecksAsAddition", kOpNone, true,
                               " 1'- 0\"", " 2'- 0\" cu.", false},
                      KindCase{"NothingPendingChecksNothing", kOpNone, false,
                               "", " 2'- 0\" cu.", true}),
    [](const ::testing::TestParamInfo<KindCase>& info) {
      return std::string(info.param.name);
    });

}  // namespace
}  // namespace brenko
