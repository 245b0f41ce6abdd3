// The tape window: its load beside the calculator, stepping between tapes,
// fitting the grid, and showing or hiding it from the calculator's menus.

#include "core/tape/tape_window.h"

#include <gtest/gtest.h>

#include "core/commands/app.h"
#include "core/commands/menus.h"
#include "core/commands/tape_handlers.h"
#include "support/test_program.h"

namespace brenko {
namespace {

class TapeWindowTest : public ::testing::Test,
                       public testing_support::TestProgram {
 protected:
  TapeWindowTest() {
    app.calculator.geometry = {1000, 5000, 3615, 3590};
    frmTape_Form_Load(app);
  }

  void AddTapes(int count) {
    for (int k = 1; k <= count; ++k) {
      app.tapes.AddTape(k, "Memory " + std::to_string(k));
    }
  }
};

TEST_F(TapeWindowTest, LoadPlacesTheWindowJustAboveTheCalculator) {
  EXPECT_EQ(app.tapeWindow.geometry, (Rect{1240, 3525, 3135, 1525}));
  EXPECT_TRUE(app.tapeWindow.loaded);
  EXPECT_FALSE(app.tapeWindow.visible);
}

TEST_F(TapeWindowTest, LoadPutsTitleAndGridAcrossTheWindow) {
  EXPECT_EQ(app.tapeWindow.title.rect, (Rect{0, 0, 3015, 280}));
  EXPECT_EQ(app.tapeWindow.grid.height, 1125);
  EXPECT_EQ(app.tapeWindow.grid.width, 3015);
  EXPECT_EQ(app.tapes.height, 1125);
  EXPECT_EQ(app.tapeWindow.title.caption, "Calculator");
}

TEST_F(TapeWindowTest, LoadLeavesExactlyTheCalculatorsTape) {
  AddTapes(3);
  ReserveTapeLines(app.tapes, 0, 12);
  frmTape_Form_Load(app);
  ASSERT_EQ(app.tapes.TapeLineCount().size(), 1u);
  EXPECT_EQ(app.tapes.TapeLineCount()[0], 0);
  ASSERT_EQ(app.tapes.TapeNames().size(), 1u);
  EXPECT_EQ(app.tapes.TapeNames()[0], "Calculator");
  EXPECT_EQ(app.tapes.Cols(), 1);
}

TEST_F(TapeWindowTest, LoadGivesTheFocusBackToTheCalculator) {
  app.calculator.focus = "Number 3";
  frmTape_Form_Load(app);
  EXPECT_EQ(app.calculator.focus, "Equal");
}

TEST_F(TapeWindowTest, MovingLeftFromTheFirstTapeWrapsToTheLast) {
  AddTapes(2);
  MoveToTape(app.tapes, app.tapeWindow, false);
  EXPECT_EQ(app.tapes.col, 2);
  EXPECT_EQ(app.tapes.ShownTape, 2);
  EXPECT_EQ(app.tapes.leftCol, 2);
  EXPECT_EQ(app.tapeWindow.title.caption, "Memory 2");
}

TEST_F(TapeWindowTest, MovingRightFromTheLastTapeWrapsToTheFirst) {
  AddTapes(2);
  MoveToTape(app.tapes, app.tapeWindow, false);
  MoveToTape(app.tapes, app.tapeWindow, true);
  EXPECT_EQ(app.tapes.ShownTape, 0);
  EXPECT_EQ(app.tapeWindow.title.caption, "Calculator");
}

TEST_F(TapeWindowTest, MovingScrollsToTheEndOfTheNewTape) {
  AddTapes(1);
  ReserveTapeLines(app.tapes, 1, 30);
  MoveToTape(app.tapes, app.tapeWindow, true);
  EXPECT_EQ(app.tapes.topRow, 27);  // four rows of 240 in 1125
}

TEST_F(TapeWindowTest, WithOneTapeMovingStaysOnIt) {
  MoveToTape(app.tapes, app.tapeWindow, true);
  EXPECT_EQ(app.tapes.ShownTape, 0);
  MoveToTape(app.tapes, app.tapeWindow, false);
  EXPECT_EQ(app.tapes.ShownTape, 0);
}

TEST_F(TapeWindowTest, ScrollButtonZeroStepsLeftAnyOtherRight) {
  AddTapes(3);
  cmdScrollTape_Click(app, 1);
  EXPECT_EQ(app.tapes.ShownTape, 1);
  cmdScrollTape_Click(app, 7);
  EXPECT_EQ(app.tapes.ShownTape, 2);
  cmdScrollTape_Click(app, 0);
  EXPECT_EQ(app.tapes.ShownTape, 1);
}

TEST_F(TapeWindowTest, ArrowKeysOnTheGridStepAndOtherKeysDoNot) {
  AddTapes(2);
  Grid1_KeyDown(app, 39);
  EXPECT_EQ(app.tapes.ShownTape, 1);
  Grid1_KeyDown(app, 37);
  EXPECT_EQ(app.tapes.ShownTape, 0);
  Grid1_KeyDown(app, 38);
  Grid1_KeyDown(app, 40);
  EXPECT_EQ(app.tapes.ShownTape, 0);
}

TEST_F(TapeWindowTest, ResizeFitsTheGridToWholeRows) {
  app.tapeWindow.geometry.width = 4120;
  app.tapeWindow.geometry.height = 2500;
  frmTape_Form_Resize(app);
  // 2500 - 120 frame - 280 title = 2100: eight rows of 240.
  EXPECT_EQ(app.tapeWindow.grid, (Rect{0, 280, 4000, 1920}));
  EXPECT_EQ(app.tapes.height, 1920);
  EXPECT_EQ(app.tapeWindow.scrollButtons[1].left, 3720);
  EXPECT_FALSE(app.tapeWindow.resizeGuard);
}

TEST_F(TapeWindowTest, ResizeKeepsTheCalculatorAboveTheTape) {
  frmTape_Form_Resize(app);
  ASSERT_EQ(platform.topmostCalls.size(), 2u);
  EXPECT_EQ(platform.topmostCalls[0].first.kind, WindowKind::kTape);
  EXPECT_EQ(platform.topmostCalls[1].first.kind, WindowKind::kCalculator);
  EXPECT_TRUE(platform.topmostCalls[1].second);
}

TEST_F(TapeWindowTest, ResizeOfATinyWindowKeepsOneRow) {
  app.tapeWindow.geometry.height = 100;
  frmTape_Form_Resize(app);
  EXPECT_EQ(app.tapeWindow.grid.height, 240);
}

TEST_F(TapeWindowTest, ResizeWithTheCalculatorMinimisedChangesNothing) {
  app.calculator.state = WindowState::kMinimized;
  app.tapeWindow.resizeGuard = true;
  app.tapeWindow.geometry.height = 3000;
  frmTape_Form_Resize(app);
  EXPECT_FALSE(app.tapeWindow.resizeGuard);
  EXPECT_EQ(app.tapeWindow.grid.height, 1125);
  EXPECT_TRUE(platform.topmostCalls.empty());
}

TEST_F(TapeWindowTest, GuardSwallowsOneResize) {
  app.tapeWindow.resizeGuard = true;
  app.tapeWindow.geometry.height = 3000;
  frmTape_Form_Resize(app);
  EXPECT_FALSE(app.tapeWindow.resizeGuard);
  EXPECT_EQ(app.tapeWindow.grid.height, 1125);
  frmTape_Form_Resize(app);
  EXPECT_EQ(app.tapeWindow.grid.height, 2400);
}

TEST_F(TapeWindowTest, ShowingChecksBothEntriesAndKeepsCalculatorOnTop) {
  mnuTape_Click(app);
  EXPECT_TRUE(app.tapeWindow.visible);
  EXPECT_TRUE(app.menus.IsChecked(MenuId::mnuTape));
  EXPECT_TRUE(app.menus.IsChecked(MenuId::mnuPopup1ShowTape));
  ASSERT_EQ(platform.topmostCalls.size(), 2u);
  EXPECT_EQ(platform.topmostCalls[0].first.kind, WindowKind::kTape);
  EXPECT_EQ(platform.topmostCalls[1].first.kind, WindowKind::kCalculator);
}

TEST_F(TapeWindowTest, HidingUnchecksBothAndDoesNotFitTheGrid) {
  mnuTape_Click(app);
  platform.topmostCalls.clear();
  app.tapeWindow.geometry.height = 3000;
  mnuTape_Click(app);
  EXPECT_FALSE(app.tapeWindow.visible);
  EXPECT_FALSE(app.menus.IsChecked(MenuId::mnuTape));
  EXPECT_FALSE(app.menus.IsChecked(MenuId::mnuPopup1ShowTape));
  EXPECT_EQ(app.tapeWindow.grid.height, 1125);
  EXPECT_TRUE(platform.topmostCalls.empty());
  EXPECT_FALSE(app.tapeWindow.resizeGuard);
}

TEST_F(TapeWindowTest, ContextMenuEntryTogglesLikeTheMenu) {
  mnuPopup1ShowTape_Click(app);
  EXPECT_TRUE(app.tapeWindow.visible);
  EXPECT_TRUE(app.menus.IsChecked(MenuId::mnuTape));
  EXPECT_TRUE(app.menus.IsChecked(MenuId::mnuPopup1ShowTape));
  mnuTape_Click(app);
  EXPECT_FALSE(app.menus.IsChecked(MenuId::mnuPopup1ShowTape));
  mnuPopup1ShowTape_Click(app);
  EXPECT_TRUE(app.menus.IsChecked(MenuId::mnuTape));
}

TEST_F(TapeWindowTest, MenuCommandsReachTheTapeWindow) {
  EXPECT_TRUE(RunMenuCommand(app, "mnuTape"));
  EXPECT_TRUE(app.tapeWindow.visible);
  EXPECT_TRUE(RunMenuCommand(app, "mnuPopup1ShowTape"));
  EXPECT_FALSE(app.tapeWindow.visible);
}

}  // namespace
}  // namespace brenko
