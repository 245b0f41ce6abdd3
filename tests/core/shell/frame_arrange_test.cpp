#include <gtest/gtest.h>

#include "core/commands/frame_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

class FrameArrangeTest : public ::testing::Test, public TestProgram {
 protected:
  // A frame whose inner area is `columns` memory widths by `rows` memory
  // heights.
  void FrameHolding(int columns, int rows) {
    app.mainFrame.geometry.width = 1935.0f * columns + kFrameBorderWidth;
    app.mainFrame.geometry.height = 585.0f * rows + kFrameBorderHeight;
  }
  void Make(int count) {
    for (int i = 0; i < count; ++i) NewMemory_Click(app);
  }
  Rect At(int number) { return Memory(number).geometry; }
  int CalculatorTopmostCalls() const {
    int calls = 0;
    for (const auto& [window, onTop] : platform.topmostCalls) {
      if (window.kind == WindowKind::kCalculator && onTop) ++calls;
    }
    return calls;
  }
};

TEST_F(FrameArrangeTest, NoMemoryArrangeDoesNothing) {
  const Rect before = app.mainFrame.geometry;
  mnuArrangeMemory_Click(app);
  EXPECT_EQ(app.mainFrame.geometry, before);
  EXPECT_TRUE(platform.topmostCalls.empty());
}

TEST_F(FrameArrangeTest, SingleMemorySizesTheFrameAndMovesNothing) {
  Make(1);
  Memory(1).geometry.left = 300;
  Memory(1).geometry.top = 200;
  mnuArrangeMemory_Click(app);
  EXPECT_EQ(app.mainFrame.geometry.width, 1935 + 120);
  EXPECT_EQ(app.mainFrame.geometry.height, 1040);
  EXPECT_EQ(At(1).left, 300);
  EXPECT_EQ(At(1).top, 200);
}

TEST_F(FrameArrangeTest, ThreeMemoriesGrowByRowsWhileTheScreenAllows) {
  Make(2);
  FrameHolding(1, 1);
  Make(1);  // the third memory lays the frame out
  EXPECT_EQ(At(1), (Rect{0, 0, 1935, 585}));
  EXPECT_EQ(At(2), (Rect{0, 585, 1935, 585}));
  EXPECT_EQ(At(3), (Rect{0, 1170, 1935, 585}));
  EXPECT_EQ(app.mainFrame.geometry.width, 1935 + 120);
  EXPECT_EQ(app.mainFrame.geometry.height, 585 * 3 + 450);
}

TEST_F(FrameArrangeTest, ThreeMemoriesGrowByColumnsOnALowScreen) {
  platform.screen.heightPixels = 100;  // 1500 twips: (1 + 2) x 630 > 1500
  Make(2);
  FrameHolding(1, 1);
  Make(1);
  EXPECT_EQ(At(1), (Rect{0, 0, 1935, 585}));
  EXPECT_EQ(At(2), (Rect{1935, 0, 1935, 585}));
  EXPECT_EQ(At(3), (Rect{3870, 0, 1935, 585}));
  EXPECT_EQ(app.mainFrame.geometry.width, 1935 * 3 + 120);
  EXPECT_EQ(app.mainFrame.geometry.height, 585 + 450);
}

TEST_F(FrameArrangeTest, RowsGrowByTheFixed630AllowanceNotTheWindowHeight) {
  // 1800 twips high: (1 + 2) x 585 would fit, (1 + 2) x 630 does not.
  platform.screen.heightPixels = 120;
  Make(2);
  FrameHolding(1, 1);
  Make(1);
  EXPECT_EQ(At(2), (Rect{1935, 0, 1935, 585}));
  EXPECT_EQ(app.mainFrame.geometry.height, 585 + 450);
}

TEST_F(FrameArrangeTest, WindowsFillTheFirstColumnBeforeTheSecond) {
  Make(2);
  FrameHolding(2, 2);
  Make(3);
  // 2 x 2 cannot hold five: a row is added (rows >= columns).
  EXPECT_EQ(At(1), (Rect{0, 0, 1935, 585}));
  EXPECT_EQ(At(2), (Rect{0, 585, 1935, 585}));
  EXPECT_EQ(At(3), (Rect{0, 1170, 1935, 585}));
  EXPECT_EQ(At(4), (Rect{1935, 0, 1935, 585}));
  EXPECT_EQ(At(5), (Rect{1935, 585, 1935, 585}));
  EXPECT_EQ(app.mainFrame.geometry.width, 1935 * 2 + 120);
  EXPECT_EQ(app.mainFrame.geometry.height, 585 * 3 + 450);
}

TEST_F(FrameArrangeTest, ColumnsAndRowsRoundHalfToEven) {
  Make(3);
  // 2.5 columns round to 2, 2.5 rows to 2.
  app.mainFrame.geometry.width = 1935 * 2.5f + kFrameBorderWidth;
  app.mainFrame.geometry.height = 585 * 2.5f + kFrameBorderHeight;
  mnuArrangeMemory_Click(app);
  EXPECT_EQ(At(3), (Rect{1935, 0, 1935, 585}));
  EXPECT_EQ(app.mainFrame.geometry.height, 585 * 2 + 450);
}

TEST_F(FrameArrangeTest, MinimisedFrameIsNotResizedButWindowsArePlaced) {
  Make(3);
  FrameHolding(1, 1);
  app.mainFrame.state = WindowState::kMinimized;
  const Rect before = app.mainFrame.geometry;
  Memory(3).geometry.left = 9999;
  mnuArrangeMemory_Click(app);
  EXPECT_EQ(app.mainFrame.geometry, before);
  EXPECT_EQ(At(3).left, 0);
  EXPECT_EQ(At(3).top, 1170);
}

TEST_F(FrameArrangeTest, ColumnsStartAtMultiplesOfTheWidestWidth) {
  Make(4);
  FrameHolding(2, 2);
  Memory(2).geometry.width = 2500;
  mnuArrangeMemory_Click(app);
  EXPECT_EQ(At(3).left, 2500);
  EXPECT_EQ(At(4).left, 2500);
  EXPECT_EQ(At(1).left, 0);
  EXPECT_EQ(app.mainFrame.geometry.width, 2500 * 2 + 120);
}

TEST_F(FrameArrangeTest, OverflowStopsTheRoutine) {
  Make(3);
  for (auto& form : app.memory.Forms()) {
    form->geometry.width = 20000;
    form->geometry.left = 77;
  }
  app.mainFrame.geometry.width = 40000 + kFrameBorderWidth;
  app.mainFrame.geometry.height = 585 + kFrameBorderHeight;
  const Rect before = app.mainFrame.geometry;
  mnuArrangeMemory_Click(app);  // (2 + 2) x 20000 does not fit 16 bits
  EXPECT_EQ(app.mainFrame.geometry, before);
  EXPECT_EQ(At(1).left, 77);
  EXPECT_FALSE(app.mainFrame.arranging);
}

TEST_F(FrameArrangeTest, ArrangingFlagSwallowsTheFramesOwnResize) {
  Make(3);
  app.mainFrame.geometry.width = 6500;  // 3.3 columns, 3.5 rows
  app.mainFrame.geometry.height = 2500;
  platform.topmostCalls.clear();
  mnuArrangeMemory_Click(app);
  EXPECT_FALSE(app.mainFrame.arranging);
  EXPECT_FALSE(app.mainFrame.resizeToggle);
  EXPECT_EQ(CalculatorTopmostCalls(), 1);  // the resize that followed
  EXPECT_EQ(app.mainFrame.geometry.width, 1935 * 3 + 120);
  EXPECT_EQ(app.mainFrame.geometry.height, 585 * 4 + 450);
}

TEST_F(FrameArrangeTest, UserResizeLaysOutAndTheToggleTakesTheEcho) {
  Make(3);
  app.mainFrame.geometry.width = 1935 * 3 + kFrameBorderWidth;
  app.mainFrame.geometry.height = 585 + kFrameBorderHeight;
  MDIForm_Resize(app);
  EXPECT_EQ(At(2), (Rect{1935, 0, 1935, 585}));
  EXPECT_EQ(At(3), (Rect{3870, 0, 1935, 585}));
  // The frame kept its size here, so no echo came back: the toggle stays.
  EXPECT_TRUE(app.mainFrame.resizeToggle);
  app.mainFrame.geometry.height = 585 * 3 + kFrameBorderHeight + 100;
  MDIForm_Resize(app);  // swallowed by the toggle
  EXPECT_FALSE(app.mainFrame.resizeToggle);
  EXPECT_EQ(At(2).left, 1935);
}

TEST_F(FrameArrangeTest, ResizeWithTheToggleAndOneMemoryStillLaysOut) {
  Make(1);
  app.mainFrame.resizeToggle = true;
  app.mainFrame.geometry.width = 5000;
  MDIForm_Resize(app);
  EXPECT_EQ(app.mainFrame.geometry.width, 1935 + 120);
}

TEST_F(FrameArrangeTest, ResizeWhileArrangingDoesNotLayOut) {
  Make(3);
  app.mainFrame.arranging = true;
  Memory(3).geometry.left = 4444;
  MDIForm_Resize(app);
  EXPECT_EQ(At(3).left, 4444);
  EXPECT_FALSE(app.mainFrame.resizeToggle);
}

TEST_F(FrameArrangeTest, ResizeKeepsTheCompanionsOnTop) {
  app.tapeWindow.visible = true;
  app.converter.visible = true;
  app.calculator.focus = "Number 7";
  MDIForm_Resize(app);
  ASSERT_EQ(platform.topmostCalls.size(), 3u);
  EXPECT_EQ(platform.topmostCalls[0].first.kind, WindowKind::kTape);
  EXPECT_EQ(platform.topmostCalls[1].first.kind, WindowKind::kConverter);
  EXPECT_EQ(platform.topmostCalls[2].first.kind, WindowKind::kCalculator);
  EXPECT_EQ(app.calculator.focus, "Equal");
}

TEST_F(FrameArrangeTest, MinimisedResizeKeepsOnlyTheCalculatorOnTop) {
  app.tapeWindow.visible = true;
  app.converter.visible = true;
  app.mainFrame.state = WindowState::kMinimized;
  MDIForm_Resize(app);
  ASSERT_EQ(platform.topmostCalls.size(), 1u);
  EXPECT_EQ(platform.topmostCalls[0].first.kind, WindowKind::kCalculator);
}

TEST_F(FrameArrangeTest, HiddenCompanionsAreLeftAlone) {
  MDIForm_Resize(app);
  ASSERT_EQ(platform.topmostCalls.size(), 1u);
  EXPECT_EQ(platform.topmostCalls[0].first.kind, WindowKind::kCalculator);
}

TEST_F(FrameArrangeTest, FramePlaceOffTheScreenFallsBackToTheDefault) {
  EXPECT_EQ(KeepFrameOnScreen({50000, 100, 3000, 2000}, 28800, 16200),
            (Rect{1575, 1635, 3000, 2000}));
  EXPECT_EQ(KeepFrameOnScreen({-4000, 100, 3000, 2000}, 28800, 16200),
            (Rect{1575, 1635, 3000, 2000}));
  EXPECT_EQ(KeepFrameOnScreen({-1000, 100, 3000, 2000}, 28800, 16200),
            (Rect{-1000, 100, 3000, 2000}));
}

}  // namespace
}  // namespace brenko
