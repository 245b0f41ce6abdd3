#include <gtest/gtest.h>

#include "core/commands/app.h"
#include "core/commands/display_handlers.h"
#include "core/commands/menus.h"
#include "core/keypad/key_display.h"
#include "core/measure/measure.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

class AccuracyTest : public testing::Test {
 protected:
  void SetUp() override { t_.Start(); }
  void ExpectMarks(bool thirtySeconds) {
    EXPECT_EQ(app_.menus.IsChecked(MenuId::Sixteen), !thirtySeconds);
    EXPECT_EQ(app_.menus.IsChecked(MenuId::mnuPopup1Accuracy16),
              !thirtySeconds);
    EXPECT_EQ(app_.menus.IsChecked(MenuId::thirtysecond), thirtySeconds);
    EXPECT_EQ(app_.menus.IsChecked(MenuId::mnuPopup1Accuracy32), thirtySeconds);
  }
  TestProgram t_;
  App& app_ = t_.app;
};

TEST_F(AccuracyTest, ThirtySecondsChecksBothMenus) {
  thirtysecond_Click(app_);
  EXPECT_EQ(app_.accuracy, 32);
  ExpectMarks(true);
}

TEST_F(AccuracyTest, SixteenthsChecksBothMenus) {
  thirtysecond_Click(app_);
  Sixteen_Click(app_);
  EXPECT_EQ(app_.accuracy, 16);
  ExpectMarks(false);
}

TEST_F(AccuracyTest, ContextMenuEntriesRunTheMenuActions) {
  mnuPopup1Accuracy32_Click(app_);
  EXPECT_EQ(app_.accuracy, 32);
  ExpectMarks(true);
  mnuPopup1Accuracy16_Click(app_);
  EXPECT_EQ(app_.accuracy, 16);
  ExpectMarks(false);
}

TEST_F(AccuracyTest, ThirtySecondsFormatsAThirtySecond) {
  thirtysecond_Click(app_);
  EXPECT_EQ(FormatLinear(0.03125, app_.accuracy), "1/32\"");
  Sixteen_Click(app_);
  EXPECT_EQ(FormatLinear(0.03125, app_.accuracy), " 0\"");
}

TEST_F(AccuracyTest, SwitchingLeavesTheReadoutText) {
  app_.calculator.Readout().caption = " 1'- 0 1/16\"";
  thirtysecond_Click(app_);
  EXPECT_EQ(app_.calculator.Readout().caption, " 1'- 0 1/16\"");
  Sixteen_Click(app_);
  EXPECT_EQ(app_.calculator.Readout().caption, " 1'- 0 1/16\"");
}

TEST_F(AccuracyTest, MenuCommandsByName) {
  EXPECT_TRUE(RunMenuCommand(app_, "thirtysecond"));
  EXPECT_EQ(app_.accuracy, 32);
  EXPECT_TRUE(RunMenuCommand(app_, "Sixteen"));
  EXPECT_EQ(app_.accuracy, 16);
}

class ShowKeysTest : public AccuracyTest {
 protected:
  void ExpectShown(bool shown) {
    EXPECT_EQ(app_.menus.IsChecked(MenuId::ShowKeys), shown);
    EXPECT_EQ(app_.menus.IsChecked(MenuId::mnuPopup1ShowKeys), shown);
  }
  Rect& Window() { return app_.calculator.geometry; }
};

TEST_F(ShowKeysTest, FullSizeHidesThenShowsTheKeys) {
  ShowKeys_Click(app_);
  EXPECT_EQ(Window().height, 1350);
  ExpectShown(false);
  ShowKeys_Click(app_);
  EXPECT_EQ(Window().height, 3590);
  ExpectShown(true);
}

TEST_F(ShowKeysTest, SmallSizeFollowsTheCheckMark) {
  Window().width = 2745;
  Window().height = 2844;
  ShowKeys_Click(app_);
  EXPECT_EQ(Window().height, 1200);
  ExpectShown(false);
  ShowKeys_Click(app_);
  EXPECT_EQ(Window().height, 2844);
  ExpectShown(true);
}

TEST_F(ShowKeysTest, ExactlyThreeThousandWideIsTheSmallLayout) {
  Window().width = 3000;
  ShowKeys_Click(app_);
  EXPECT_EQ(Window().height, 1200);
  ExpectShown(false);
}

TEST_F(ShowKeysTest, SmallSizeIgnoresAStretchedHeight) {
  Window().width = 2745;
  Window().height = 5000;
  ShowKeys_Click(app_);
  EXPECT_EQ(Window().height, 1200);
  ExpectShown(false);
}

TEST_F(ShowKeysTest, FullSizeDecidesOnTheHeightNotTheCheckMark) {
  // Keys hidden, then the user stretches the window: the first toggle cuts
  // it to the readout again although the mark already said hidden.
  ShowKeys_Click(app_);
  Window().height = 2000;
  ShowKeys_Click(app_);
  EXPECT_EQ(Window().height, 1350);
  ExpectShown(false);
}

TEST_F(ShowKeysTest, FullSizeWithKeysShownAndAStretchedHeight) {
  Window().height = 4000;
  ShowKeys_Click(app_);
  EXPECT_EQ(Window().height, 1350);
  ExpectShown(false);
}

TEST_F(ShowKeysTest, FullSizeAtTheReadoutHeightShowsTheKeysWhateverTheMark) {
  Window().height = 1350;  // the mark still says shown
  ShowKeys_Click(app_);
  EXPECT_EQ(Window().height, 3590);
  ExpectShown(true);
}

TEST_F(ShowKeysTest, ContextMenuEntryRunsTheToggle) {
  mnuPopup1ShowKeys_Click(app_);
  EXPECT_EQ(Window().height, 1350);
  ExpectShown(false);
  EXPECT_TRUE(RunMenuCommand(app_, "ShowKeys"));
  EXPECT_EQ(Window().height, 3590);
  ExpectShown(true);
}

TEST_F(ShowKeysTest, WidthIsLeftAlone) {
  ShowKeys_Click(app_);
  EXPECT_EQ(Window().width, 3615);
}

}  // namespace
}  // namespace brenko
