#include "core/memory/memory_drag.h"

#include <gtest/gtest.h>

#include "core/commands/drag_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

const DragSource kReadout{DragSource::kReadout, 0};
DragSource FromMemory(int number) { return {DragSource::kMemory, number}; }

class MemoryDropTest : public ::testing::Test, public TestProgram {
 protected:
  void SetUp() override {
    NewMemory_Click(app);
    NewMemory_Click(app);
  }
  float Mid(int number) { return MemoryMidpoint(Memory(number).label1); }
  void DropReadout(const std::string& readout, int number, float x) {
    app.calculator.Readout().caption = readout;
    MemoryForm_Label1_DragDrop(app, number, kReadout, x, 0);
  }
};

TEST_F(MemoryDropTest, MidpointMixesTheLabelsTopWithItsWidth) {
  MemoryForm& form = Memory(1);
  form.label1.rect = {500, 60, 1695, 255};
  EXPECT_FLOAT_EQ(MemoryMidpoint(form.label1), 60 + 1695 / 2.0f);
}

TEST_F(MemoryDropTest, RightHalfAddsAndWritesThreeLines) {
  Memory(1).label1.caption = " 5'- 0\" ";
  DropReadout("3'", 1, Mid(1) + 10);
  EXPECT_EQ(Memory(1).label1.caption, " 8'- 0\" ");
  EXPECT_EQ(Tape(1), " + 3' \n---------------- \n 8'- 0\" ");
}

TEST_F(MemoryDropTest, LeftHalfSubtracts) {
  Memory(1).label1.caption = " 5'- 0\" ";
  DropReadout(" 3'- 0\"", 1, Mid(1) - 10);
  EXPECT_EQ(Memory(1).label1.caption, " 2'- 0\" ");
  EXPECT_EQ(Tape(1), " -  3'- 0\" \n---------------- \n 2'- 0\" ");
}

TEST_F(MemoryDropTest, DropExactlyOnTheMidpointAdds) {
  DropReadout(" 7\"", 1, Mid(1));
  EXPECT_EQ(Memory(1).label1.caption, " 7\" ");
  EXPECT_EQ(app.tapes.Cell(1, 1), " +  7\" ");
}

TEST_F(MemoryDropTest, TrailingBlanksOfTheDroppedTextAreNotWritten) {
  DropReadout(" 7\"   ", 1, Mid(1) + 1);
  EXPECT_EQ(app.tapes.Cell(1, 1), " +  7\" ");
}

TEST_F(MemoryDropTest, MemoryDroppedOnItselfIsClearedNotDoubled) {
  Memory(1).label1.caption = " 5'- 0\" ";
  MemoryForm_Label1_DragDrop(app, 1, FromMemory(1), Mid(1) + 10, 0);
  EXPECT_EQ(Memory(1).label1.caption, "0.");
  EXPECT_EQ(Tape(1), " \nClear \n ");
}

TEST_F(MemoryDropTest, MemoryDroppedOnAnotherAddsItsValue) {
  Memory(1).label1.caption = " 5'- 0\" ";
  Memory(2).label1.caption = " 1'- 0\" ";
  MemoryForm_Label1_DragDrop(app, 2, FromMemory(1), Mid(2) + 10, 0);
  EXPECT_EQ(Memory(2).label1.caption, " 6'- 0\" ");
  EXPECT_EQ(Memory(1).label1.caption, " 5'- 0\" ");
  EXPECT_EQ(Tape(2), " +  5'- 0\" \n---------------- \n 6'- 0\" ");
}

TEST_F(MemoryDropTest, SquareOntoALengthIsRefusedAndTheTapeTakesItsLineBack) {
  Memory(1).label1.caption = " 5'- 0\" ";
  ClearTape(app.tapes, 1);
  DropReadout("12 sq", 1, Mid(1) + 10);
  EXPECT_EQ(Memory(1).label1.caption, " 5'- 0\" ");
  EXPECT_EQ(Tape(1), " \nClear \n ");
  EXPECT_EQ(app.tapes.Cell(4, 1), "");
  EXPECT_EQ(platform.beeps, 2);
}

// The sum goes through the engine's add and subtract: whatever operation
// the calculator had pending, the drop leaves none, and its result becomes
// the engine's last result.
TEST_F(MemoryDropTest, DropLeavesNoOperatorPendingAndKeepsItsResult) {
  app.engine.PendingValue = 4;
  app.engine.PendingOp = kOpMultiply;
  Memory(1).label1.caption = " 5'- 0\" ";
  DropReadout("3'", 1, Mid(1) - 10);
  EXPECT_EQ(app.engine.PendingOp, kOpNone);
  EXPECT_EQ(app.engine.ResultValue, 24);
  EXPECT_EQ(app.engine.PendingValue, 4);
}

TEST_F(MemoryDropTest, RefusedDropAlsoLeavesNoOperatorPending) {
  app.engine.PendingValue = 4;
  app.engine.PendingOp = kOpDivide;
  app.engine.ResultValue = 9;
  app.engine.PendingText = " 4\"";
  Memory(1).label1.caption = " 5'- 0\" ";
  DropReadout("12 sq", 1, Mid(1) + 10);
  EXPECT_EQ(app.engine.PendingOp, kOpNone);
  EXPECT_EQ(app.engine.ResultValue, 9);
  // The error signal shows the pending operand again.
  EXPECT_EQ(app.calculator.Readout().caption, " 4\"");
}

TEST_F(MemoryDropTest, SquareOntoZeroTakesTheSquareKind) {
  DropReadout(" 1'- 0\" sq.", 1, Mid(1) + 10);
  EXPECT_EQ(Memory(1).label1.caption, " 1'- 0\" sq. ");
}

TEST_F(MemoryDropTest, DropMakesTheMemoryCurrentAndShowsItsTape) {
  DropReadout("3'", 2, Mid(2) + 10);
  EXPECT_EQ(app.memory.current, 2);
  EXPECT_EQ(app.tapes.ShownTape, 2);
  EXPECT_EQ(app.tapeWindow.title.caption, "Memory 2");
}

TEST_F(MemoryDropTest, SuccessfulDropPutsThePlainPictureBack) {
  app.calculator.readoutDragIcon = kAddPicture;
  DropReadout("3'", 1, Mid(1) + 10);
  EXPECT_EQ(app.calculator.readoutDragIcon, "Image3");
}

TEST_F(MemoryDropTest, LongerValueWidensTheMemories) {
  Memory(1).label1.caption = "0.";
  DropReadout(" 1234567'- 11 15/16\" cu.", 1, Mid(1) + 10);
  const double fit = MemoryFitWidth(Memory(1).label1.caption);
  ASSERT_GT(fit, 1935);
  EXPECT_EQ(app.memory.sharedWidth, static_cast<float>(fit));
  EXPECT_EQ(Memory(2).geometry.width, static_cast<float>(fit));
}

TEST_F(MemoryDropTest, DragOverGivesTheHalfsPictureToTargetAndSource) {
  MemoryForm_Label1_DragOver(app, 1, kReadout, Mid(1) - 1, 0);
  EXPECT_EQ(Memory(1).dragIcon, "Image2");
  EXPECT_EQ(app.calculator.readoutDragIcon, "Image2");
  MemoryForm_Label1_DragOver(app, 1, FromMemory(2), Mid(1), 0);
  EXPECT_EQ(Memory(1).dragIcon, "Image1");
  EXPECT_EQ(Memory(2).dragIcon, "Image1");
}

TEST_F(MemoryDropTest, DropFromAClosedMemoryDoesNothing) {
  MemoryForm_Label1_DragDrop(app, 1, FromMemory(9), Mid(1) + 10, 0);
  EXPECT_EQ(Memory(1).label1.caption, "0.");
  EXPECT_EQ(app.tapes.TapeLineCount()[1], 0);
}

TEST(ReadoutMouseDownTest, LeftButtonStartsADragWithThePlainPicture) {
  TestProgram t;
  t.app.calculator.readoutDragIcon = "Image1";
  EXPECT_TRUE(Readout_MouseDown(t.app, 1));
  EXPECT_EQ(t.app.calculator.readoutDragIcon, "Image3");
  EXPECT_FALSE(Readout_MouseDown(t.app, 2));
  ASSERT_EQ(t.platform.popups.size(), 1u);
  EXPECT_EQ(t.platform.popups[0], "mnuPopup1");
}

}  // namespace
}  // namespace brenko
