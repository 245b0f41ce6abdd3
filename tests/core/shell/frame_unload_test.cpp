#include <gtest/gtest.h>

#include "core/commands/frame_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

class FrameUnloadTest : public ::testing::Test, public TestProgram {
 protected:
  void SetUp() override {
    for (int i = 0; i < 3; ++i) NewMemory_Click(app);
    ReserveTapeLines(app.tapes, 0, 4);
    ClearTape(app.tapes, 2);
    app.mainFrame.state = WindowState::kMaximized;
    app.mainFrame.caption = "job";
  }
};

TEST_F(FrameUnloadTest, ClosingTheFrameEmptiesResetsAndHidesIt) {
  MDIForm_Unload(app);
  EXPECT_TRUE(app.memory.Forms().empty());
  EXPECT_FALSE(app.mainFrame.visible);
  EXPECT_EQ(app.mainFrame.caption, "Memory");
  EXPECT_EQ(app.mainFrame.geometry.width, 2055);
  EXPECT_EQ(app.mainFrame.state, WindowState::kNormal);
  EXPECT_FALSE(app.mainFrame.closing);
}

TEST_F(FrameUnloadTest, TheProgramGoesOn) {
  MDIForm_Unload(app);
  EXPECT_FALSE(app.shell.quitRequested);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FrameUnloadTest, CountersNamesAndTapeCountsGoBackToOneElement) {
  MDIForm_Unload(app);
  EXPECT_EQ(app.memory.nextNumber, 1);
  EXPECT_EQ(app.memory.windowCounter, 1);
  EXPECT_EQ(app.memory.Names().size(), 1u);
  EXPECT_EQ(app.tapes.TapeLineCount().size(), 1u);
  EXPECT_EQ(app.tapes.TapeLineCount()[0], 4);  // the kept element
  EXPECT_EQ(app.tapes.TapeNames().size(), 1u);
  EXPECT_EQ(app.tapes.Rows(), 1);
  EXPECT_EQ(app.tapes.Cols(), 1);
}

TEST_F(FrameUnloadTest, TheTapeWindowGoesBackToTheCalculatorsTape) {
  MemoryForm_Form_Activate(app, 2);
  MDIForm_Unload(app);
  EXPECT_EQ(app.tapes.ShownTape, 0);
  EXPECT_EQ(app.tapeWindow.title.caption, "Calculator");
  EXPECT_EQ(app.memory.current, 0);
  EXPECT_FALSE(app.tapeWindow.scrollButtonsVisible);
}

TEST_F(FrameUnloadTest, NextMemoryAfterwardsIsMemory1WithAnEmptyTape) {
  MDIForm_Unload(app);
  NewMemory_Click(app);
  EXPECT_EQ(Memory(1).caption, "Memory 1");
  EXPECT_TRUE(app.mainFrame.visible);
  EXPECT_EQ(app.tapes.TapeLineCount()[1], 0);
  EXPECT_EQ(app.tapes.Cell(2, 1), "");
}

TEST_F(FrameUnloadTest, ClosingAnEmptyFrameIsHarmless) {
  MDIForm_Unload(app);
  MDIForm_Unload(app);
  EXPECT_EQ(app.memory.windowCounter, 1);
  EXPECT_EQ(app.tapes.TapeLineCount().size(), 1u);
}

}  // namespace
}  // namespace brenko
