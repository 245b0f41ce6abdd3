#include "core/converter/converter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "support/test_program.h"

namespace brenko {
namespace {

const DragSource kReadout{DragSource::kReadout, 0};

class ConverterTest : public ::testing::Test,
                      public testing_support::TestProgram {
 protected:
  void Drop(const std::string& text) {
    app.calculator.Readout().caption = text;
    Converter_Label1_DragDrop(app, kReadout, 100, 100);
  }
  const std::string& Result(int index) {
    return app.converter.lblLabel[static_cast<std::size_t>(index)].caption;
  }
};

struct NumberCase {
  const char* name;
  double value;
  const char* text;
};

class ConverterNumberTest : public ::testing::TestWithParam<NumberCase> {};

TEST_P(ConverterNumberTest, FourDecimalsHalfToEven) {
  const NumberCase& c = GetParam();
  const std::optional<std::string> text = ConverterNumberText(c.value);
  ASSERT_TRUE(text.has_value());
  EXPECT_EQ(*text, c.text);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, ConverterNumberTest,
    ::testing::Values(
        NumberCase{"Whole", 1728, " 1728"}, NumberCase{"Half", 0.5, " .5"},
        NumberCase{"Third", 1.0 / 3, " .3333"}, NumberCase{"Zero", 0, " 0"},
        NumberCase{"TinyRoundsToZero", 0.0000229, " 0"},
        NumberCase{"NegativeTinyIsZero", -0.00001, " 0"},
        NumberCase{"Negative", -2.25, "-2.25"},
        NumberCase{"NegativeFraction", -0.5, "-.5"},
        NumberCase{"FifthDecimalFiveGoesToEvenDown", 0.00125, " .0012"},
        NumberCase{"FifthDecimalFiveGoesToEvenUp", 0.00135, " .0014"},
        NumberCase{"Miles", 144.0 / 12 / 5280, " .0023"},
        NumberCase{"Large", 922337203685477.0, " 922337203685477"}),
    [](const ::testing::TestParamInfo<NumberCase>& info) {
      return std::string(info.param.name);
    });

TEST(ConverterNumberLimitTest, BeyondAbout922TrillionIsAnOverflow) {
  EXPECT_FALSE(ConverterNumberText(922337203685478.0).has_value());
  EXPECT_FALSE(ConverterNumberText(-1e300).has_value());
  EXPECT_FALSE(ConverterNumberText(std::nan("")).has_value());
  EXPECT_FALSE(
      ConverterNumberText(std::numeric_limits<double>::infinity()).has_value());
}

TEST_F(ConverterTest, TwelveFeetShowInchesFeetYardsAndMiles) {
  Drop(" 12'- 0\"");
  EXPECT_EQ(app.converter.label1.caption, "12'- 0\" ");
  EXPECT_EQ(Result(2), " 12'- 0\" ");
  EXPECT_EQ(Result(3), " 144\" ");
  EXPECT_EQ(Result(4), " 12' ");
  EXPECT_EQ(Result(5), " 4 yds ");
  EXPECT_EQ(Result(6), " .0023 miles ");
}

TEST_F(ConverterTest, OneSquareFootShowsSquareUnitsAndZeroAcres) {
  Drop(" 1'- 0\" sq.");
  EXPECT_EQ(Result(3), " 144\"sq ");
  EXPECT_EQ(Result(2), " 1'- 0\"sq ");
  EXPECT_EQ(Result(4), " 1'sq ");
  EXPECT_EQ(Result(5), " .1111 sy ");
  EXPECT_EQ(Result(6), " 0 acres ");
}

TEST_F(ConverterTest, VolumeShowsCubicUnits) {
  Drop(" 27'- 0\" cu.");
  EXPECT_EQ(Result(3), " 46656\"cu ");
  EXPECT_EQ(Result(2), " 27'- 0\"cu ");
  EXPECT_EQ(Result(4), " 27'cu ");
  EXPECT_EQ(Result(5), " 1 cy ");
  EXPECT_EQ(Result(6), "");
}

TEST_F(ConverterTest, TextWithBothCuAndSqIsAVolume) {
  Drop(" 1'- 0\" sq. cu.");
  EXPECT_EQ(Result(4), " 1'cu ");
}

TEST_F(ConverterTest, VolumeEmptiesTheMilesOfAnEarlierLength) {
  Drop(" 12'- 0\"");
  ASSERT_EQ(Result(6), " .0023 miles ");
  Drop(" 1'- 0\" cu.");
  EXPECT_EQ(Result(6), "");
}

TEST_F(ConverterTest, DropExpandsTheWindow) {
  ASSERT_EQ(app.converter.geometry.height, 770);
  Drop("3\"");
  EXPECT_EQ(app.converter.geometry.height, 2310);
}

TEST_F(ConverterTest, DropLabelIsTrimmedAndClosedByOneBlank) {
  Drop("   5\"   ");
  EXPECT_EQ(app.converter.label1.caption, "5\" ");
}

TEST_F(ConverterTest, UnreadableTextConvertsAsZero) {
  Drop("ERROR");
  EXPECT_EQ(Result(3), " 0\" ");
  EXPECT_EQ(Result(6), " 0 miles ");
}

TEST_F(ConverterTest, OverflowEndsTheDropWithTheCaptionsSetSoFar) {
  Drop(" 12'- 0\"");
  // 1e16 inches fit in feet (8.3e14) but not as inches.
  Drop("10000000000000000\"");
  EXPECT_EQ(app.converter.label1.caption, "10000000000000000\" ");
  EXPECT_EQ(Result(3), " 144\" ");  // stopped before any result changed
  EXPECT_EQ(Result(2), " 12'- 0\" ");
}

TEST_F(ConverterTest, LargestValuesThatFitAreShownInFull) {
  // Every later result is a quotient of the plain number, so an overflow
  // always stops at the plain number; just under the limit all is shown.
  Drop("900000000000000\"");
  EXPECT_EQ(Result(3), " 900000000000000\" ");
  EXPECT_EQ(Result(4), " 75000000000000' ");
  EXPECT_EQ(Result(5), " 25000000000000 yds ");
}

TEST_F(ConverterTest, DropFromAMemory) {
  NewMemory_Click(app);
  app.memory.Find(1)->label1.caption = " 3'- 0\" ";
  Converter_Label1_DragDrop(app, {DragSource::kMemory, 1}, 0, 0);
  EXPECT_EQ(Result(5), " 1 yds ");
}

TEST_F(ConverterTest, DragOverGivesTheDropHerePicture) {
  Converter_Form_DragOver(app, kReadout, 0, 0);
  EXPECT_EQ(app.calculator.readoutDragIcon, "DropHere");
  NewMemory_Click(app);
  Converter_Form_DragOver(app, {DragSource::kMemory, 1}, 0, 0);
  EXPECT_EQ(app.memory.Find(1)->dragIcon, "DropHere");
}

TEST_F(ConverterTest, FormDoubleClickTogglesTheHeight) {
  Converter_Form_DblClick(app);
  EXPECT_EQ(app.converter.geometry.height, 2310);
  Converter_Form_DblClick(app);
  EXPECT_EQ(app.converter.geometry.height, 770);
  app.converter.geometry.height = 1000;
  Converter_Form_DblClick(app);
  EXPECT_EQ(app.converter.geometry.height, 770);
}

TEST_F(ConverterTest, LabelDoubleClickClearsAndCollapses) {
  Drop(" 12'- 0\"");
  Converter_Label1_DblClick(app);
  EXPECT_EQ(app.converter.label1.caption, "Drop Here     ");
  for (int i = 2; i <= 6; ++i) EXPECT_EQ(Result(i), "") << i;
  EXPECT_EQ(Result(0), "Value");
  EXPECT_EQ(Result(1), "Equals");
  EXPECT_EQ(app.converter.geometry.height, 770);
}

TEST_F(ConverterTest, ResizeKeepsOneOfTheTwoHeightsAndFitsTheLabels) {
  app.converter.geometry.width = 4000;
  app.converter.geometry.height = 1500;
  Converter_Form_Resize(app);
  EXPECT_EQ(app.converter.geometry.height, 770);
  EXPECT_EQ(app.converter.lblLabel[4].rect.width, 4000 - 120 - 720 - 60);
  EXPECT_EQ(app.converter.label1.rect.width, 4000 - 120 - 720 - 60);
  app.converter.geometry.height = 1600;
  Converter_Form_Resize(app);
  EXPECT_EQ(app.converter.geometry.height, 2310);
}

TEST_F(ConverterTest, LoadStartsCollapsedWithTheIdleCaption) {
  app.converter.geometry.height = 2310;
  app.converter.label1.caption = "x";
  Converter_Form_Load(app);
  EXPECT_TRUE(app.converter.loaded);
  EXPECT_EQ(app.converter.geometry.height, 770);
  EXPECT_EQ(app.converter.label1.caption, "Drop Here     ");
  Converter_Form_Unload(app);
  EXPECT_FALSE(app.converter.loaded);
  EXPECT_FALSE(app.converter.visible);
}

TEST_F(ConverterTest, MenuPlacesItRightOfACalculatorLeftOfTheMiddle) {
  // Screen 1920 x 15 = 28800 twips wide; its middle is 14400.
  app.calculator.geometry = {1000, 500, 3615, 3590};
  mnuConverter_Click(app);
  EXPECT_TRUE(app.converter.visible);
  EXPECT_TRUE(app.menus.IsChecked(MenuId::mnuConverter));
  EXPECT_EQ(app.converter.geometry.left, 1000 + 3615 + 200);
  mnuConverter_Click(app);
  EXPECT_FALSE(app.converter.visible);
  EXPECT_FALSE(app.menus.IsChecked(MenuId::mnuConverter));
}

TEST_F(ConverterTest, MenuPlacesItLeftOfACalculatorRightOfTheMiddle) {
  app.calculator.geometry = {20000, 500, 3615, 3590};
  mnuConverter_Click(app);
  EXPECT_EQ(app.converter.geometry.left,
            20000 - app.converter.geometry.width - 200);
}

TEST_F(ConverterTest, CentreExactlyAtTheMiddleCountsAsRight) {
  app.calculator.geometry = {14400 - 2000, 500, 4000, 3590};
  mnuConverter_Click(app);
  EXPECT_EQ(app.converter.geometry.left,
            12400 - app.converter.geometry.width - 200);
}

TEST_F(ConverterTest, ClosingTheWindowUnchecksTheMenuEntry) {
  mnuConverter_Click(app);
  ASSERT_TRUE(app.menus.IsChecked(MenuId::mnuConverter));
  Converter_Form_Unload(app);
  EXPECT_FALSE(app.menus.IsChecked(MenuId::mnuConverter));
  mnuConverter_Click(app);
  EXPECT_TRUE(app.converter.visible);
  EXPECT_TRUE(app.menus.IsChecked(MenuId::mnuConverter));
}

}  // namespace
}  // namespace brenko
