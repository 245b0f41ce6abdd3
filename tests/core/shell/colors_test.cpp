#include "core/shell/colors.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/commands/app.h"
#include "core/commands/shell_handlers.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

class ColorsTest : public testing::Test {
 protected:
  void SetUp() override { t_.Start(); }
  void Answer(QueuedAnswer::Kind kind, ColorNumber color = 0) {
    QueuedAnswer a;
    a.kind = kind;
    a.color = color;
    t_.platform.answers.push_back(a);
  }
  void Pick(ColorNumber color) { Answer(QueuedAnswer::Kind::kColor, color); }
  // A memory window as the memory commands make it.
  MemoryForm& AddMemory(int number) {
    auto form = std::make_unique<MemoryForm>();
    form->number = static_cast<std::int16_t>(number);
    form->label1.tag = "memory " + std::to_string(number);
    app_.memory.Add(std::move(form));
    return *app_.memory.Forms().back();
  }
  TestProgram t_;
  App& app_ = t_.app;
};

TEST_F(ColorsTest, ThePickerStartsAtRedEveryTime) {
  app_.calculator.backColor = 123;
  Pick(5);
  mnuColor_Click(app_, 0);
  Pick(6);
  mnuColor_Click(app_, 3);
  EXPECT_EQ(t_.platform.colorPickerStarts,
            (std::vector<ColorNumber>{255, 255}));
}

TEST_F(ColorsTest, AcceptingWithoutChangeGivesPureRed) {
  Answer(QueuedAnswer::Kind::kOk);
  mnuColor_Click(app_, 1);
  EXPECT_EQ(app_.calculator.Readout().backColor, 255);
}

TEST_F(ColorsTest, CancellingChangesNothing) {
  for (int index = 0; index <= 6; ++index) {
    Answer(QueuedAnswer::Kind::kCancel);
    mnuColor_Click(app_, index);
  }
  EXPECT_EQ(app_.calculator.backColor, kTeal);
  EXPECT_EQ(app_.calculator.Readout().backColor, kPaleYellow);
  EXPECT_EQ(app_.colors.memoryBackground, kTeal);
  EXPECT_EQ(app_.colors.memoryReadout, kPaleYellow);
  EXPECT_EQ(app_.colors.converter, kTeal);
  EXPECT_EQ(app_.colors.convReadout, kPaleYellow);
  EXPECT_EQ(app_.colors.convResult, kPaleYellow);
}

TEST_F(ColorsTest, CalculatorBackground) {
  Pick(111);
  mnuColor_Click(app_, 0);
  EXPECT_EQ(app_.calculator.backColor, 111);
  EXPECT_EQ(app_.calculator.Readout().backColor, kPaleYellow);
}

TEST_F(ColorsTest, CalculatorReadout) {
  Pick(222);
  mnuColor_Click(app_, 1);
  EXPECT_EQ(app_.calculator.Readout().backColor, 222);
  EXPECT_EQ(app_.calculator.backColor, kTeal);
}

TEST_F(ColorsTest, MemoryWithNoWindowOpenChangesOnlyTheKeptValue) {
  Pick(333);
  mnuColor_Click(app_, 2);
  EXPECT_EQ(app_.colors.memoryBackground, 333);
  EXPECT_TRUE(app_.memory.Forms().empty());
}

TEST_F(ColorsTest, MemoryRecoloursEveryOpenMemoryWindow) {
  MemoryForm& first = AddMemory(1);
  MemoryForm& second = AddMemory(2);
  Pick(444);
  mnuColor_Click(app_, 2);
  EXPECT_EQ(first.backColor, 444);
  EXPECT_EQ(second.backColor, 444);
  EXPECT_EQ(first.label1.backColor, kPaleYellow);
}

TEST_F(ColorsTest, MemoryReadoutRecoloursEveryValueLabel) {
  MemoryForm& first = AddMemory(1);
  MemoryForm& second = AddMemory(3);
  Pick(555);
  mnuColor_Click(app_, 3);
  EXPECT_EQ(app_.colors.memoryReadout, 555);
  EXPECT_EQ(first.label1.backColor, 555);
  EXPECT_EQ(second.label1.backColor, 555);
  EXPECT_EQ(first.backColor, kTeal);
}

TEST_F(ColorsTest, OnlyWindowsTaggedMemoryAreRecoloured) {
  MemoryForm& untagged = AddMemory(1);
  untagged.label1.tag = "Memory 1";  // the tag test is case-sensitive
  Pick(666);
  mnuColor_Click(app_, 2);
  EXPECT_EQ(untagged.backColor, kTeal);
}

TEST_F(ColorsTest, ConverterBackgroundIsSetAndKept) {
  Pick(777);
  mnuColor_Click(app_, 4);
  EXPECT_EQ(app_.converter.backColor, 777);
  EXPECT_EQ(app_.colors.converter, 777);
}

TEST_F(ColorsTest, ConverterReadoutIsSetAndKept) {
  Pick(888);
  mnuColor_Click(app_, 5);
  EXPECT_EQ(app_.converter.label1.backColor, 888);
  EXPECT_EQ(app_.colors.convReadout, 888);
}

TEST_F(ColorsTest, ResultReadoutsOfAClosedConverterAreRecoloured) {
  ASSERT_FALSE(app_.converter.visible);
  Pick(999);
  mnuColor_Click(app_, 6);
  EXPECT_EQ(app_.colors.convResult, 999);
  EXPECT_NE(app_.converter.lblLabel[1].backColor, 999);
  for (size_t i = 2; i <= 6; ++i) {
    EXPECT_EQ(app_.converter.lblLabel[i].backColor, 999) << i;
  }
  EXPECT_FALSE(app_.converter.visible);
}

TEST_F(ColorsTest, ConverterNotYetMadeIsMadeHidden) {
  TestProgram fresh;
  Pick(1);
  fresh.platform.answers = t_.platform.answers;
  mnuColor_Click(fresh.app, 4);
  EXPECT_TRUE(fresh.app.converter.loaded);
  EXPECT_FALSE(fresh.app.converter.visible);
  EXPECT_EQ(fresh.app.converter.backColor, 1);
}

TEST_F(ColorsTest, NothingIsWrittenToTheSettings) {
  Pick(1);
  mnuColor_Click(app_, 0);
  EXPECT_TRUE(t_.store.Entries().empty());
}

TEST_F(ColorsTest, AnIndexOutsideTheMenuDoesNothing) {
  Pick(1);
  mnuColor_Click(app_, 7);
  mnuColor_Click(app_, -1);
  EXPECT_TRUE(t_.platform.colorPickerStarts.empty());
}

}  // namespace
}  // namespace brenko
