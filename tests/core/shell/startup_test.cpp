#include "core/commands/startup.h"

#include <gtest/gtest.h>

#include "core/commands/app.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

// 1920 x 1080 pixels at 15 twips per pixel: 28800 x 16200 twips.
class FirstRunTest : public testing::Test {
 protected:
  void SetUp() override { t_.Start(); }
  TestProgram t_;
  App& app_ = t_.app;
};

TEST_F(FirstRunTest, CentresTheCalculator) {
  // (16200 - 3590) / 2 = 6305; (28800 - 3615) / 2 = 12592.5, to even 12592.
  EXPECT_EQ(app_.calculator.geometry, (Rect{12592, 6305, 3615, 3590}));
}

TEST_F(FirstRunTest, PutsTheConverterLeftOfTheCalculator) {
  // (16200 - 770) / 2 = 7715; (28800 - 2895) / 2 - 2895 / 2 - 3615 / 2 - 100
  // = 9597.5, to even 9598.
  EXPECT_EQ(app_.converter.geometry.top, 7715);
  EXPECT_EQ(app_.converter.geometry.left, 9598);
  EXPECT_TRUE(app_.converter.loaded);
  EXPECT_FALSE(app_.converter.visible);
  EXPECT_FALSE(app_.menus.IsChecked(MenuId::mnuConverter));
}

TEST_F(FirstRunTest, MovesTheFrameToItsDefaultPlace) {
  EXPECT_EQ(app_.mainFrame.geometry.left, 1575);
  EXPECT_EQ(app_.mainFrame.geometry.top, 1635);
}

TEST_F(FirstRunTest, UsesSixteenthsWithKeysAndTapeShown) {
  EXPECT_EQ(app_.accuracy, 16);
  EXPECT_TRUE(app_.menus.IsChecked(MenuId::Sixteen));
  EXPECT_TRUE(app_.menus.IsChecked(MenuId::mnuPopup1Accuracy16));
  EXPECT_FALSE(app_.menus.IsChecked(MenuId::thirtysecond));
  EXPECT_TRUE(app_.menus.IsChecked(MenuId::ShowKeys));
  EXPECT_TRUE(app_.menus.IsChecked(MenuId::ZoomLarge));
  EXPECT_FALSE(app_.menus.IsChecked(MenuId::ZoomSmall));
  EXPECT_TRUE(app_.tapeWindow.loaded);
  EXPECT_TRUE(app_.tapeWindow.visible);
  EXPECT_TRUE(app_.menus.IsChecked(MenuId::mnuTape));
  EXPECT_TRUE(app_.menus.IsChecked(MenuId::mnuPopup1ShowTape));
}

TEST_F(FirstRunTest, ColoursAreTealAndPaleYellow) {
  EXPECT_EQ(app_.calculator.backColor, 8421376);
  EXPECT_EQ(app_.calculator.Readout().backColor, 8454143);
  EXPECT_EQ(app_.colors.memoryBackground, 8421376);
  EXPECT_EQ(app_.colors.memoryReadout, 8454143);
  EXPECT_EQ(app_.colors.converter, 8421376);
  EXPECT_EQ(app_.converter.backColor, 8421376);
  EXPECT_EQ(app_.colors.convReadout, 8454143);
  EXPECT_EQ(app_.converter.label1.backColor, 8454143);
  EXPECT_EQ(app_.colors.convResult, 8454143);
  for (int i = 2; i <= 6; ++i) {
    EXPECT_EQ(app_.converter.lblLabel[static_cast<size_t>(i)].backColor,
              8454143);
  }
}

TEST_F(FirstRunTest, ResetsTheSharedState) {
  EXPECT_FALSE(app_.engine.PendingValue.has_value());
  EXPECT_FALSE(app_.engine.CurrentValue.has_value());
  EXPECT_EQ(app_.engine.PendingOp, 5);
  EXPECT_EQ(app_.memory.nextNumber, 1);
  EXPECT_EQ(app_.memory.windowCounter, 1);
  EXPECT_EQ(app_.calculator.Readout().caption, "0.");
  EXPECT_EQ(app_.calculator.focus, "Equal");
  EXPECT_TRUE(app_.calculator.visible);
  EXPECT_EQ(app_.tapes.ShownTape, 0);
  EXPECT_EQ(app_.shell.tapeColumnWidth, 1125);
}

TEST_F(FirstRunTest, RecordsTheDesignGeometryOfEveryControl) {
  ASSERT_EQ(app_.shell.designGeometry.size(), app_.calculator.controls.size());
  const std::vector<CalcControl> design = DesignControls();
  for (size_t i = 0; i < design.size(); ++i) {
    EXPECT_EQ(app_.shell.designGeometry[i], design[i].label.rect) << i;
  }
}

TEST_F(FirstRunTest, MakesTheCalculatorTopmost) {
  const auto calc = std::make_pair(WindowRef{WindowKind::kCalculator, 0}, true);
  EXPECT_NE(std::find(t_.platform.topmostCalls.begin(),
                      t_.platform.topmostCalls.end(), calc),
            t_.platform.topmostCalls.end());
}

TEST_F(FirstRunTest, WritesNothingToTheStore) {
  EXPECT_TRUE(t_.store.Entries().empty());
}

TEST_F(FirstRunTest, HelpFileIsTheManualInTheProgramFolder) {
  EXPECT_EQ(app_.shell.helpFile, "manual.html");
  TestProgram other;
  other.app.shell.programFolder = "/opt/brenko";
  other.Start();
  EXPECT_EQ(other.app.shell.helpFile, "/opt/brenko/manual.html");
}

TEST(StartupTest, RestoresStoredPositions) {
  TestProgram t;
  t.store.Save("Settings", "CalcTop", "100");
  t.store.Save("Settings", "CalcLeft", "200.5");
  t.store.Save("Settings", "ConvTop", "-300");
  t.store.Save("Settings", "ConvLeft", " 400");
  t.store.Save("Settings", "MDITop", "500");
  t.store.Save("Settings", "MDILeft", "601.5");
  App& app = t.Start();
  EXPECT_EQ(app.calculator.geometry.top, 100);
  EXPECT_EQ(app.calculator.geometry.left, 200);
  EXPECT_EQ(app.converter.geometry.top, -300);
  EXPECT_EQ(app.converter.geometry.left, 400);
  EXPECT_EQ(app.mainFrame.geometry.top, 500);
  EXPECT_EQ(app.mainFrame.geometry.left, 602);
}

TEST(StartupTest, APositionThatIsNotANumberStaysZero) {
  TestProgram t;
  t.store.Save("Settings", "CalcTop", "high");
  t.store.Save("Settings", "MDILeft", "");
  App& app = t.Start();
  EXPECT_EQ(app.calculator.geometry.top, 0);
  EXPECT_EQ(app.calculator.geometry.left, 12592);
  EXPECT_EQ(app.mainFrame.geometry.left, 0);
}

TEST(StartupTest, APositionBeyondSixteenBitsStaysZero) {
  TestProgram t;
  t.store.Save("Settings", "ConvTop", "40000");
  App& app = t.Start();
  EXPECT_EQ(app.converter.geometry.top, 0);
}

TEST(StartupTest, ADefaultThatOverflowsLeavesThePositionZero) {
  TestProgram t;
  // 5000 pixels make 75000 twips: the centred left (75000 - 3615) / 2 =
  // 35692.5 no longer fits; the converter's default 32697.5 still does.
  t.platform.screen.widthPixels = 5000;
  App& app = t.Start();
  EXPECT_EQ(app.calculator.geometry.left, 0);
  EXPECT_EQ(app.calculator.geometry.top, 6305);
  EXPECT_EQ(app.converter.geometry.left, 32698);
}

TEST(StartupTest, DefaultsFollowTheTwipsPerPixel) {
  TestProgram t;
  t.platform.screen = {1280, 1024, 12, 12};
  App& app = t.Start();
  // (15360 - 3615) / 2 = 5872.5 -> 5872; (12288 - 3590) / 2 = 4349.
  EXPECT_EQ(app.calculator.geometry.left, 5872);
  EXPECT_EQ(app.calculator.geometry.top, 4349);
}

TEST(StartupTest, DefaultsUseTheWindowsAsDesigned) {
  TestProgram t;
  // Whatever size the window has when the start-up runs.
  t.app.calculator.geometry.width = 1000;
  t.app.calculator.geometry.height = 500;
  App& app = t.Start();
  EXPECT_EQ(app.calculator.geometry.left, 12592);
  EXPECT_EQ(app.calculator.geometry.top, 6305);
  EXPECT_EQ(app.converter.geometry.left, 9598);
}

TEST(StartupTest, AccuracyStoredTrueReopensInThirtySeconds) {
  TestProgram t;
  t.store.Save("Settings", "Accuracy", "True");
  App& app = t.Start();
  EXPECT_EQ(app.accuracy, 32);
  EXPECT_TRUE(app.menus.IsChecked(MenuId::thirtysecond));
  EXPECT_TRUE(app.menus.IsChecked(MenuId::mnuPopup1Accuracy32));
  EXPECT_FALSE(app.menus.IsChecked(MenuId::Sixteen));
}

TEST(StartupTest, ZoomStoredTrueOpensSmall) {
  TestProgram t;
  t.store.Save("Settings", "Zoom", "-1");
  App& app = t.Start();
  EXPECT_EQ(app.calculator.geometry.width, 2745);
  EXPECT_EQ(app.calculator.geometry.height, 2844);
  EXPECT_TRUE(app.menus.IsChecked(MenuId::ZoomSmall));
  // The design geometry is recorded before the zoom is applied.
  EXPECT_EQ(app.shell.designGeometry[0], DesignControls()[0].label.rect);
}

TEST(StartupTest, ShowKeysStoredFalseHidesTheKeypad) {
  TestProgram t;
  t.store.Save("Settings", "ShowKeys", "false");
  App& app = t.Start();
  EXPECT_EQ(app.calculator.geometry.height, 1350);
  EXPECT_FALSE(app.menus.IsChecked(MenuId::ShowKeys));
  EXPECT_FALSE(app.menus.IsChecked(MenuId::mnuPopup1ShowKeys));
}

TEST(StartupTest, SmallAndKeysHiddenTogether) {
  TestProgram t;
  t.store.Save("Settings", "Zoom", "True");
  t.store.Save("Settings", "ShowKeys", "False");
  App& app = t.Start();
  EXPECT_EQ(app.calculator.geometry.width, 2745);
  EXPECT_EQ(app.calculator.geometry.height, 1200);
  EXPECT_FALSE(app.menus.IsChecked(MenuId::ShowKeys));
}

TEST(StartupTest, ShowTapeStoredFalseLeavesTheTapeWindowHidden) {
  TestProgram t;
  t.store.Save("Settings", "ShowTape", "0");
  App& app = t.Start();
  EXPECT_TRUE(app.tapeWindow.loaded);
  EXPECT_FALSE(app.tapeWindow.visible);
  EXPECT_FALSE(app.menus.IsChecked(MenuId::mnuTape));
  EXPECT_FALSE(app.menus.IsChecked(MenuId::mnuPopup1ShowTape));
}

TEST(StartupTest, ABooleanThatIsNoBooleanCountsAsFalse) {
  TestProgram t;
  t.store.Save("Settings", "ShowKeys", "maybe");
  t.store.Save("Settings", "Zoom", "yes");
  App& app = t.Start();
  EXPECT_FALSE(app.menus.IsChecked(MenuId::ShowKeys));
  EXPECT_EQ(app.calculator.geometry.width, 3615);
}

TEST(StartupTest, StoredColoursAreAppliedAsRead) {
  TestProgram t;
  t.store.Save("Colors", "CalcBackground", " 1");
  t.store.Save("Colors", "ReadoutBackground", " 2");
  t.store.Save("Colors", "MemoryBackground", " 3");
  t.store.Save("Colors", "MemoryReadout", " 4");
  t.store.Save("Colors", "Converter", " 5");
  t.store.Save("Colors", "ConvReadout", " 6");
  t.store.Save("Colors", "ConvResult", "7");
  App& app = t.Start();
  EXPECT_EQ(app.calculator.backColor, 1);
  EXPECT_EQ(app.calculator.Readout().backColor, 2);
  EXPECT_EQ(app.colors.memoryBackground, 3);
  EXPECT_EQ(app.colors.memoryReadout, 4);
  EXPECT_EQ(app.colors.converter, 5);
  EXPECT_EQ(app.converter.backColor, 5);
  EXPECT_EQ(app.colors.convReadout, 6);
  EXPECT_EQ(app.converter.label1.backColor, 6);
  EXPECT_EQ(app.colors.convResult, 7);
  EXPECT_EQ(app.converter.lblLabel[2].backColor, 7);
  EXPECT_EQ(app.converter.lblLabel[6].backColor, 7);
}

TEST(StartupTest, ABadColourLeavesTheDefault) {
  TestProgram t;
  t.store.Save("Colors", "CalcBackground", "blue");
  t.store.Save("Colors", "ConvResult", "99999999999");
  App& app = t.Start();
  EXPECT_EQ(app.calculator.backColor, kTeal);
  EXPECT_EQ(app.colors.convResult, kPaleYellow);
}

TEST(ActivationTest, ActivatingTheCalculatorShowsItsTapeAgain) {
  TestProgram t;
  App& app = t.Start();
  app.tapes.ShownTape = 2;
  app.tapes.topRow = 7;
  app.tapes.leftCol = 2;
  app.tapes.col = 2;
  app.tapes.row = 5;
  app.tapeWindow.title.caption = "Memory 2";
  Form_Activate(app);
  EXPECT_EQ(app.tapes.ShownTape, 0);
  EXPECT_EQ(app.tapes.leftCol, 0);
  EXPECT_EQ(app.tapes.row, 0);
  EXPECT_EQ(app.tapes.col, 0);
  // Tape 0 is shorter than the window, so its end is in view from row 0.
  EXPECT_EQ(app.tapes.topRow, 0);
  EXPECT_EQ(app.tapeWindow.title.caption, "Calculator");
}

TEST(ActivationTest, ActivatingKeepsTheNewestCalculatorLineInView) {
  TestProgram t;
  App& app = t.Start();
  for (int i = 0; i < 12; ++i) {
    ReserveTapeLines(app.tapes, 0, 3);
    ClearTape(app.tapes, 0);
  }
  app.tapes.ShownTape = 1;
  app.tapes.topRow = 0;
  Form_Activate(app);
  const int visible = static_cast<int>(app.tapes.height) /
                      static_cast<int>(app.tapes.rowHeight1);
  EXPECT_EQ(app.tapes.topRow, app.tapes.TapeLineCount()[0] - visible + 1);
}

TEST(ActivationTest, GotFocusLeavesTheShownTapeIndicator) {
  TestProgram t;
  App& app = t.Start();
  app.tapes.ShownTape = 2;
  app.tapes.topRow = 7;
  app.tapes.col = 2;
  app.tapeWindow.title.caption = "Memory 2";
  Form_GotFocus(app);
  EXPECT_EQ(app.tapes.ShownTape, 2);
  EXPECT_EQ(app.tapes.topRow, 7);
  EXPECT_EQ(app.tapes.col, 0);
  EXPECT_EQ(app.tapeWindow.title.caption, "Calculator");
}

}  // namespace
}  // namespace brenko
