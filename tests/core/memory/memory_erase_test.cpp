// Erase All closes the memory windows in two stages: a walk by window place
// that passes some of them over, then the frame's own close, which takes the
// rest. Whatever the walk missed, nothing of the memories is left.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

class MemoryEraseTest : public ::testing::Test, public TestProgram {};

// The numbers of the open memory windows, in the window list's order.
std::vector<int> Numbers(const App& app) {
  std::vector<int> numbers;
  for (const auto& form : app.memory.Forms()) numbers.push_back(form->number);
  return numbers;
}

// Six memories, the third the current one.
void SixMemories(TestProgram& p) {
  p.Start();
  for (int i = 0; i < 6; ++i) NewMemory_Click(p.app);
  MemoryForm_Form_Activate(p.app, 3);
}

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

// Thousands of windows close together in one pass: closing the marked ones
// together leaves what closing each in turn leaves, for every choice of six.
TEST(MemoryCloseTogetherTest, ClosingMarkedWindowsTogetherIsClosingEachInTurn) {
  for (unsigned pattern = 0; pattern < 64; ++pattern) {
    TestProgram together;
    TestProgram inTurn;
    SixMemories(together);
    SixMemories(inTurn);
    std::vector<bool> marks(6);
    for (std::size_t i = 0; i < marks.size(); ++i) {
      marks[i] = (pattern >> i & 1u) != 0;
    }
    const auto before = std::as_const(together.app.memory).Revision();
    CloseMemoriesAt(together.app.memory, together.app.tapeWindow, marks);
    // From the last place to the first, so that each place is still right.
    for (std::size_t i = marks.size(); i > 0; --i) {
      if (marks[i - 1]) {
        CloseMemoryAt(inTurn.app.memory, inTurn.app.tapeWindow, i - 1);
      }
    }
    SCOPED_TRACE(pattern);
    EXPECT_EQ(Numbers(together.app), Numbers(inTurn.app));
    EXPECT_EQ(together.app.memory.windowCounter,
              inTurn.app.memory.windowCounter);
    EXPECT_EQ(together.app.memory.current, inTurn.app.memory.current);
    EXPECT_EQ(together.app.tapeWindow.scrollButtonsVisible,
              inTurn.app.tapeWindow.scrollButtonsVisible);
    EXPECT_EQ(together.app.memory.Revision() - before,
              static_cast<std::uint64_t>(6 - Numbers(together.app).size()));
  }
}

TEST(MemoryCloseTogetherTest, MarksCoverThePlacesTheyName) {
  TestProgram p;
  SixMemories(p);
  // Fewer marks than windows: the windows beyond them stay.
  EXPECT_EQ(p.app.memory.RemoveMarked({true, false, true}), 2u);
  EXPECT_EQ(Numbers(p.app), (std::vector<int>{2, 4, 5, 6}));
  EXPECT_EQ(p.app.memory.RemoveMarked({}), 0u);
  EXPECT_EQ(p.app.memory.RemoveMarked({true, true, true, true, true}), 4u);
  EXPECT_TRUE(p.app.memory.Forms().empty());
}

// A window whose tag is not a memory's is passed over by both stages; two
// windows of one number (the last number a file holds is given again) are
// both closed by the frame's close.
TEST_F(MemoryEraseTest, WindowsThatAreNotMemoriesStayInTheirOrder) {
  for (int i = 0; i < 7; ++i) NewMemory_Click(app);
  Memory(2).label1.tag = "note";
  Memory(5).label1.tag = "note";
  Memory(6).label1.tag = "Memory";
  EraseMemory_Click(app);
  EXPECT_EQ(Numbers(app), (std::vector<int>{2, 5, 6}));
  EXPECT_EQ(app.memory.windowCounter, 1);
  EXPECT_EQ(app.memory.current, 0);
}

TEST_F(MemoryEraseTest, TwoWindowsOfOneNumberBothClose) {
  // The walk closes the first, third and fifth; the frame's close finds
  // the two left of number 2 by their number.
  for (int i = 0; i < 6; ++i) NewMemory_Click(app);
  Memory(4).number = 2;
  Memory(6).label1.tag = "note";
  EraseMemory_Click(app);
  EXPECT_EQ(Numbers(app), (std::vector<int>{6}));
  EXPECT_EQ(app.memory.windowCounter, 1);
}

TEST_F(MemoryEraseTest, TheFramesCloseGoesByNumber) {
  // The window list after the walk: the note numbered 2, a memory numbered
  // 2, the sixth. The frame's close, from the last: the sixth; the first
  // window numbered 2, the note; the memory.
  for (int i = 0; i < 6; ++i) NewMemory_Click(app);
  Memory(2).label1.tag = "note";
  Memory(4).number = 2;
  EraseMemory_Click(app);
  EXPECT_TRUE(Numbers(app).empty());
  EXPECT_FALSE(app.tapeWindow.scrollButtonsVisible);
}

}  // namespace
}  // namespace brenko
