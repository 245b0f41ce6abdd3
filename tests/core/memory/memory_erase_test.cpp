// Erase All closes the memory windows in two stages: a walk by window place
// that passes some of them over, then the frame's own close, which takes the
// rest. Whatever the walk missed, nothing of the memories is left.

#include <gtest/gtest.h>

#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

class MemoryEraseTest : public ::testing::Test, public TestProgram {};

TEST_F(MemoryEraseTest, EveryWindowIsClosedEvenThoseTheWalkPassesOver) {
  for (int i = 0; i < 7; ++i) NewMemory_Click(app);
  MemoryForm_Form_Activate(app, 4);
  EraseMemory_Click(app);
  EXPECT_TRUE(app.memory.Forms().empty());
  EXPECT_EQ(app.memory.windowCounter, 1);
  EXPECT_EQ(app.memory.nextNumber, 1);
  EXPECT_EQ(app.memory.current, 0);
  EXPECT_FALSE(app.tapeWindow.scrollButtonsVisible);
}

TEST_F(MemoryEraseTest, NamesAndMemoryTapesGoBackToTheCalculatorsAlone) {
  QueueText("Deck");
  NamedMemory_Click(app);
  NewMemory_Click(app);
  ClearTape(app.tapes, 2);
  EraseMemory_Click(app);
  EXPECT_EQ(app.memory.Names().size(), 1u);
  ASSERT_EQ(app.tapes.TapeNames().size(), 1u);
  EXPECT_EQ(app.tapes.TapeNames()[0], "Calculator");
  EXPECT_EQ(app.tapes.TapeLineCount().size(), 1u);
}

TEST_F(MemoryEraseTest, TheCalculatorsTapeKeepsItsLines) {
  ReserveTapeLines(app.tapes, 0, 1);
  WriteTapeLine(app.tapes, 0, 1, " 5'- 0\" ");
  NewMemory_Click(app);
  EraseMemory_Click(app);
  EXPECT_EQ(app.tapes.TapeLineCount()[0], 1);
}

TEST_F(MemoryEraseTest, EraseWithGapsLeftByClosedWindows) {
  for (int i = 0; i < 4; ++i) NewMemory_Click(app);
  MemoryForm_Form_Unload(app, 2);
  MemoryForm_Form_Unload(app, 3);
  EraseMemory_Click(app);
  EXPECT_TRUE(app.memory.Forms().empty());
  NewMemory_Click(app);
  EXPECT_EQ(Memory(1).caption, "Memory 1");
  EXPECT_EQ(app.memory.windowCounter, 2);
}

TEST_F(MemoryEraseTest, EraseWithNoMemoryIsHarmless) {
  EraseMemory_Click(app);
  EXPECT_TRUE(app.memory.Forms().empty());
  EXPECT_EQ(app.memory.nextNumber, 1);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MemoryEraseTest, GotFocusOfAMemoryChangesNothing) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  MemoryForm_Form_Activate(app, 1);
  MemoryForm_Form_GotFocus(app, 2);
  EXPECT_EQ(app.memory.current, 1);
  EXPECT_EQ(app.tapes.ShownTape, 1);
}

}  // namespace
}  // namespace brenko
