#include "core/memory/memory_cells.h"

#include <gtest/gtest.h>

#include "core/commands/memory_handlers.h"
#include "core/memory/memory_form.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

class MemoryCellsTest : public ::testing::Test, public TestProgram {};

TEST_F(MemoryCellsTest, FirstMemoryIsCaptionedMemory1AndTaggedMemory1) {
  NewMemory_Click(app);
  ASSERT_EQ(app.memory.Forms().size(), 1u);
  EXPECT_EQ(Memory(1).caption, "Memory 1");
  EXPECT_EQ(Memory(1).label1.tag, "memory 1");
  EXPECT_EQ(Memory(1).label1.caption, "0.");
}

TEST_F(MemoryCellsTest, CountersRiseWithEachMemory) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  EXPECT_EQ(app.memory.nextNumber, 3);
  EXPECT_EQ(app.memory.windowCounter, 3);
  EXPECT_EQ(app.memory.Names().size(), 3u);
  EXPECT_EQ(app.memory.Names()[2], "Memory 2");
}

TEST_F(MemoryCellsTest, FirstMemoryTakesWidth1935AndTheCornerOfTheFrame) {
  NewMemory_Click(app);
  EXPECT_EQ(Memory(1).geometry, (Rect{0, 0, 1935, 585}));
  EXPECT_EQ(app.memory.sharedWidth, 1935);
  EXPECT_EQ(Memory(1).label1.rect.width, 1935 - kMemoryLabelMargin);
}

TEST_F(MemoryCellsTest, SecondMemoryIsPlacedBesideTheFirst) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  EXPECT_EQ(Memory(2).geometry, (Rect{1935, 0, 1935, 585}));
}

TEST_F(MemoryCellsTest, CreatingAMemoryShowsTheMainFrameAndTheTapeButtons) {
  app.tapeWindow.scrollButtonsVisible = false;
  EXPECT_FALSE(app.mainFrame.visible);
  NewMemory_Click(app);
  EXPECT_TRUE(app.mainFrame.visible);
  EXPECT_TRUE(app.tapeWindow.scrollButtonsVisible);
}

TEST_F(MemoryCellsTest, NewMemoryTakesTheKeptMemoryColours) {
  app.colors.memoryBackground = 255;
  app.colors.memoryReadout = 65280;
  NewMemory_Click(app);
  EXPECT_EQ(Memory(1).backColor, 255);
  EXPECT_EQ(Memory(1).label1.backColor, 65280);
}

TEST_F(MemoryCellsTest, EachMemoryGetsATapeColumnOfItsOwn) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  EXPECT_EQ(app.tapes.TapeLineCount().size(), 3u);
  EXPECT_EQ(app.tapes.TapeNames()[2], "Memory 2");
  EXPECT_GE(app.tapes.Cols(), 3);
  EXPECT_EQ(app.tapes.TapeLineCount()[2], 0);
}

TEST_F(MemoryCellsTest, NamedMemoryAsksWithTitlePromptAndNextName) {
  NewMemory_Click(app);
  QueueText("Deck");
  NamedMemory_Click(app);
  ASSERT_EQ(platform.prompts.size(), 1u);
  EXPECT_EQ(platform.prompts[0].title, "Named Memory");
  EXPECT_EQ(platform.prompts[0].prompt, "Enter a name for this memory cell:");
  EXPECT_EQ(platform.prompts[0].text, "Memory 2");
  EXPECT_EQ(Memory(2).caption, "Deck");
  EXPECT_EQ(Memory(2).label1.tag, "memory 2");
  EXPECT_EQ(app.memory.Names()[2], "Deck");
  EXPECT_EQ(app.tapes.TapeNames()[2], "Deck");
}

TEST_F(MemoryCellsTest, NamedMemoryAnsweredEmptyCreatesNothing) {
  NamedMemory_Click(app);  // no answer queued: cancelled
  EXPECT_TRUE(app.memory.Forms().empty());
  EXPECT_EQ(app.memory.nextNumber, 1);
  EXPECT_EQ(app.memory.windowCounter, 1);
  EXPECT_FALSE(app.mainFrame.visible);
}

TEST_F(MemoryCellsTest, NamedMemoryStillAdvancesTheNumbering) {
  QueueText("Wall  A");
  mnuPopup1NamedMemory_Click(app);
  mnuPopup1NewMemory_Click(app);
  EXPECT_EQ(Memory(1).caption, "Wall  A");
  EXPECT_EQ(Memory(2).caption, "Memory 2");
}

TEST_F(MemoryCellsTest, ClosingAMemoryDoesNotGiveItsNumberBack) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  MemoryForm_Form_Unload(app, 2);
  EXPECT_EQ(app.memory.windowCounter, 2);
  NewMemory_Click(app);
  EXPECT_EQ(app.memory.Forms().back()->caption, "Memory 3");
  EXPECT_EQ(app.memory.Forms().back()->label1.tag, "memory 3");
}

TEST_F(MemoryCellsTest, ClosingTheLastMemoryHidesTheTapeButtons) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  MemoryForm_Form_Unload(app, 1);
  EXPECT_TRUE(app.tapeWindow.scrollButtonsVisible);
  MemoryForm_Form_Unload(app, 2);
  EXPECT_FALSE(app.tapeWindow.scrollButtonsVisible);
  EXPECT_EQ(app.memory.windowCounter, 1);
  // The closed memories' tapes and names stay until the frame closes.
  EXPECT_EQ(app.memory.Names().size(), 3u);
  EXPECT_EQ(app.tapes.TapeLineCount().size(), 3u);
}

TEST_F(MemoryCellsTest, ClearAllKeepsTheMemoriesAndShowsZeroPointExactly) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  Memory(1).label1.caption = " 5'- 0\" ";
  Memory(2).label1.caption = " 7\" ";
  ClearMemory_Click(app);
  EXPECT_EQ(app.memory.Forms().size(), 2u);
  EXPECT_EQ(Memory(1).label1.caption, "0.");
  EXPECT_EQ(Memory(2).label1.caption, "0.");
  EXPECT_EQ(Tape(1), " \nClear \n ");
  EXPECT_EQ(Tape(2), " \nClear \n ");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MemoryCellsTest, ClearAllRefitsTheWidthToTheText) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  app.memory.sharedWidth = 4000;
  ApplySharedWidth(app.memory);
  ClearMemory_Click(app);
  EXPECT_EQ(app.memory.sharedWidth, 1935);
  EXPECT_EQ(Memory(1).geometry.width, 1935);
  EXPECT_EQ(Memory(2).geometry.width, 1935);
}

TEST_F(MemoryCellsTest, EraseAllStartsTheNumberingAgain) {
  for (int i = 0; i < 5; ++i) NewMemory_Click(app);
  EraseMemory_Click(app);
  EXPECT_TRUE(app.memory.Forms().empty());
  EXPECT_EQ(app.memory.nextNumber, 1);
  EXPECT_EQ(app.memory.windowCounter, 1);
  EXPECT_FALSE(app.mainFrame.visible);
  EXPECT_EQ(app.mainFrame.caption, "Memory");
  EXPECT_EQ(app.mainFrame.geometry.width, 2055);
  NewMemory_Click(app);
  EXPECT_EQ(Memory(1).caption, "Memory 1");
  EXPECT_TRUE(app.mainFrame.visible);
}

TEST_F(MemoryCellsTest, EraseAllAsksNothing) {
  NewMemory_Click(app);
  EraseMemory_Click(app);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(platform.prompts.empty());
}

TEST_F(MemoryCellsTest, EraseAllEmptiesTheMemoryTapes) {
  NewMemory_Click(app);
  ClearTape(app.tapes, 1);
  EraseMemory_Click(app);
  EXPECT_EQ(app.tapes.TapeLineCount().size(), 1u);
  EXPECT_EQ(app.tapes.Rows(), 1);
  NewMemory_Click(app);
  EXPECT_EQ(app.tapes.TapeLineCount()[1], 0);
  EXPECT_EQ(app.tapes.Cell(1, 1), "");
}

TEST_F(MemoryCellsTest, DoubleClickedValueShowsZeroPointWithNoBlank) {
  NewMemory_Click(app);
  Memory(1).label1.caption = " 5'- 0\" ";
  MemoryForm_Label1_DblClick(app, 1);
  EXPECT_EQ(Memory(1).label1.caption, "0.");
  EXPECT_EQ(app.tapes.TapeLineCount()[1], 0);
}

TEST_F(MemoryCellsTest, ResizingTheOnlyMemoryKeepsTheSharedWidth) {
  NewMemory_Click(app);
  Memory(1).geometry.width = 3000;
  MemoryForm_Form_Resize(app, 1);
  EXPECT_EQ(app.memory.sharedWidth, 1935);
  EXPECT_EQ(Memory(1).geometry.width, 3000);
}

TEST_F(MemoryCellsTest, ResizingOneOfSeveralGivesEveryMemoryItsWidth) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  NewMemory_Click(app);
  Memory(2).geometry.width = 2500.5f;
  MemoryForm_Form_Resize(app, 2);
  EXPECT_EQ(app.memory.sharedWidth, 2500);  // half to even
  for (const auto& form : app.memory.Forms()) {
    EXPECT_EQ(form->geometry.width, 2500);
    EXPECT_EQ(form->label1.rect.width, 2500 - kMemoryLabelMargin);
  }
  EXPECT_FALSE(app.memory.resizing);
}

TEST_F(MemoryCellsTest, ResizeIgnoredWhileTheGuardIsUp) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  app.memory.resizing = true;
  Memory(1).geometry.width = 3000;
  MemoryForm_Form_Resize(app, 1);
  EXPECT_EQ(app.memory.sharedWidth, 1935);
  EXPECT_EQ(Memory(2).geometry.width, 1935);
}

TEST_F(MemoryCellsTest, ActivatingAMemoryShowsItsTapeUnderItsName) {
  QueueText("Deck");
  NamedMemory_Click(app);
  NewMemory_Click(app);
  MemoryForm_Form_Activate(app, 1);
  EXPECT_EQ(app.memory.current, 1);
  EXPECT_EQ(app.tapes.ShownTape, 1);
  EXPECT_EQ(app.tapeWindow.title.caption, "Deck");
  MemoryForm_Form_MouseUp(app, 2);
  EXPECT_EQ(app.memory.current, 2);
  EXPECT_EQ(app.tapes.ShownTape, 2);
  EXPECT_EQ(app.tapeWindow.title.caption, "Memory 2");
}

TEST_F(MemoryCellsTest, FitWidthIsAFixedWidthPerCharacter) {
  EXPECT_EQ(MemoryFitWidth("0."), 1935);
  EXPECT_EQ(MemoryFitWidth(std::string(20, 'x')), 20 * 105 + 300);
}

TEST_F(MemoryCellsTest, ClickRefitsEveryWindowToTheWidestValue) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  Memory(2).label1.caption = std::string(30, '9');
  MemoryForm_Form_Click(app, 1);
  EXPECT_EQ(app.memory.sharedWidth, 30 * 105 + 300);
  EXPECT_EQ(Memory(1).geometry.width, 30 * 105 + 300);
}

TEST_F(MemoryCellsTest, RefitTooWideForTheWindowChangesNothing) {
  NewMemory_Click(app);
  Memory(1).label1.caption = std::string(1 << 20, '9');
  MemoryForm_Form_DblClick(app, 1);
  EXPECT_EQ(app.memory.sharedWidth, 1935);
}

TEST_F(MemoryCellsTest, EventsOfAnUnknownMemoryDoNothing) {
  NewMemory_Click(app);
  MemoryForm_Label1_DblClick(app, 7);
  MemoryForm_Form_Resize(app, 7);
  MemoryForm_Form_Activate(app, 7);
  MemoryForm_Form_Unload(app, 7);
  EXPECT_EQ(app.memory.Forms().size(), 1u);
  EXPECT_EQ(app.memory.windowCounter, 2);
}

}  // namespace
}  // namespace brenko
