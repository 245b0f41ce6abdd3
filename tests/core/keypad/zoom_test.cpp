#include "core/keypad/zoom.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/commands/app.h"
#include "core/commands/display_handlers.h"
#include "core/commands/menus.h"
#include "core/keypad/key_display.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

std::vector<Rect> Geometry(const CalculatorForm& calc) {
  std::vector<Rect> rects;
  for (const CalcControl& c : calc.controls) rects.push_back(c.label.rect);
  return rects;
}

std::vector<Rect> DesignGeometry() {
  std::vector<Rect> rects;
  for (const CalcControl& c : DesignControls()) rects.push_back(c.label.rect);
  return rects;
}

class ZoomTest : public testing::Test {
 protected:
  void SetUp() override { t_.Start(); }
  void ExpectSmallMarks(bool small) {
    EXPECT_EQ(app_.menus.IsChecked(MenuId::ZoomSmall), small);
    EXPECT_EQ(app_.menus.IsChecked(MenuId::mnuPopup1Zoom75), small);
    EXPECT_EQ(app_.menus.IsChecked(MenuId::ZoomLarge), !small);
    EXPECT_EQ(app_.menus.IsChecked(MenuId::mnuPopup1Zoom100), !small);
  }
  const MenuEntry& MemoryMenu() { return *app_.menus.Find("Memory"); }
  TestProgram t_;
  App& app_ = t_.app;
  CalculatorForm& calc_ = app_.calculator;
};

TEST_F(ZoomTest, SmallScalesEveryControlByThreeQuarters) {
  const std::vector<Rect> design = DesignGeometry();
  ZoomSmall_Click(app_);
  for (size_t i = 1; i < design.size(); ++i) {
    const Rect& r = calc_.controls[i].label.rect;
    EXPECT_EQ(r.left, design[i].left * 0.75f) << i;
    EXPECT_EQ(r.top, design[i].top * 0.75f) << i;
    EXPECT_EQ(r.width, design[i].width * 0.75f) << i;
    EXPECT_EQ(r.height, design[i].height * 0.75f) << i;
  }
}

TEST_F(ZoomTest, SmallSetsTheFixedReadoutAndWindowValues) {
  ZoomSmall_Click(app_);
  const Label& readout = calc_.Readout();
  EXPECT_EQ(readout.rect.left, 139);
  EXPECT_EQ(readout.rect.width, 2385);
  EXPECT_EQ(readout.rect.top, 120 * 0.75f);
  EXPECT_EQ(readout.rect.height, 450 * 0.75f);
  EXPECT_EQ(readout.fontSize, 9.75f);
  EXPECT_EQ(calc_.geometry.width, 2745);
  EXPECT_EQ(calc_.geometry.height, 2844);
  ExpectSmallMarks(true);
}

TEST_F(ZoomTest, SmallLeavesTheMemoryMenuCaption) {
  app_.menus.SetCaption(MenuId::Memory, "M&em");
  ZoomSmall_Click(app_);
  EXPECT_EQ(MemoryMenu().caption, "M&em");
}

TEST_F(ZoomTest, SmallTwiceIsLikeOnce) {
  ZoomSmall_Click(app_);
  const std::vector<Rect> once = Geometry(calc_);
  const Rect window = calc_.geometry;
  mnuPopup1Zoom75_Click(app_);
  EXPECT_EQ(Geometry(calc_), once);
  EXPECT_EQ(calc_.geometry, window);
}

TEST_F(ZoomTest, LargeInTheLargeLayoutChangesNothing) {
  app_.menus.SetCaption(MenuId::Memory, "M&em");
  calc_.controls[5].label.rect.left = 1;
  ZoomLarge_Click(app_);
  EXPECT_EQ(calc_.controls[5].label.rect.left, 1);
  EXPECT_EQ(MemoryMenu().caption, "M&em");
  EXPECT_EQ(calc_.geometry.width, 3615);
}

TEST_F(ZoomTest, ExactlyThreeThousandWideIsChangedByNeither) {
  calc_.geometry.width = 3000;
  const std::vector<Rect> before = Geometry(calc_);
  ZoomSmall_Click(app_);
  ZoomLarge_Click(app_);
  EXPECT_EQ(Geometry(calc_), before);
  EXPECT_EQ(calc_.geometry.width, 3000);
  ExpectSmallMarks(false);
}

TEST_F(ZoomTest, LargeActsJustBelowThreeThousand) {
  calc_.geometry.width = 2999;
  ZoomLarge_Click(app_);
  EXPECT_EQ(calc_.geometry.width, 3615);
}

TEST_F(ZoomTest, SmallActsJustAboveThreeThousand) {
  calc_.geometry.width = 3001;
  ZoomSmall_Click(app_);
  EXPECT_EQ(calc_.geometry.width, 2745);
}

TEST_F(ZoomTest, LargeAfterSmallRestoresTheDesignExactly) {
  ZoomSmall_Click(app_);
  ZoomLarge_Click(app_);
  EXPECT_EQ(Geometry(calc_), DesignGeometry());
  EXPECT_EQ(calc_.Readout().fontSize, 13.5f);
  EXPECT_EQ(calc_.geometry.width, 3615);
  EXPECT_EQ(calc_.geometry.height, 3590);
  ExpectSmallMarks(false);
}

TEST_F(ZoomTest, ManyRoundTripsDoNotDrift) {
  for (int i = 0; i < 50; ++i) {
    ZoomSmall_Click(app_);
    ZoomLarge_Click(app_);
  }
  EXPECT_EQ(Geometry(calc_), DesignGeometry());
}

TEST_F(ZoomTest, LargeSetsTheMemoryMenuCaption) {
  ZoomSmall_Click(app_);
  app_.menus.SetCaption(MenuId::Memory, "M&em");
  ZoomLarge_Click(app_);
  EXPECT_EQ(MemoryMenu().caption, "&Memory");
}

TEST_F(ZoomTest, HeightFollowsTheKeyDisplay) {
  ShowKeys_Click(app_);
  ZoomSmall_Click(app_);
  EXPECT_EQ(calc_.geometry.height, 1200);
  ZoomLarge_Click(app_);
  EXPECT_EQ(calc_.geometry.height, 1350);
  EXPECT_FALSE(app_.menus.IsChecked(MenuId::ShowKeys));
}

TEST_F(ZoomTest, AShownTapeWindowStaysOnTheCalculator) {
  ASSERT_TRUE(app_.tapeWindow.visible);
  calc_.geometry.left = 5000;
  calc_.geometry.top = 6000;
  const float tapeHeight = app_.tapeWindow.geometry.height;
  ZoomSmall_Click(app_);
  EXPECT_EQ(app_.tapeWindow.geometry,
            (Rect{5240, 6000 - tapeHeight + 60, 2745 - 480, tapeHeight}));
  ZoomLarge_Click(app_);
  EXPECT_EQ(app_.tapeWindow.geometry,
            (Rect{5240, 6000 - tapeHeight + 60, 3615 - 480, tapeHeight}));
}

TEST_F(ZoomTest, AHiddenTapeWindowIsNotMoved) {
  app_.tapeWindow.visible = false;
  const Rect before = app_.tapeWindow.geometry;
  ZoomSmall_Click(app_);
  EXPECT_EQ(app_.tapeWindow.geometry, before);
}

TEST_F(ZoomTest, ContextMenuEntriesRunTheZoomActions) {
  EXPECT_TRUE(RunMenuCommand(app_, "mnuPopup1Zoom75"));
  EXPECT_EQ(calc_.geometry.width, 2745);
  mnuPopup1Zoom100_Click(app_);
  EXPECT_EQ(calc_.geometry.width, 3615);
}

TEST_F(ZoomTest, WithoutRecordedDesignLargeStillSetsTheWindow) {
  TestProgram bare;
  bare.app.calculator.geometry.width = 2745;
  ZoomLarge_Click(bare.app);
  EXPECT_EQ(bare.app.calculator.geometry.width, 3615);
  EXPECT_EQ(bare.app.calculator.Readout().rect.left, 185);
}

}  // namespace
}  // namespace brenko
