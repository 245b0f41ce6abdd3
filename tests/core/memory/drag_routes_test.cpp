// The drag routes by target kind, which the windows and the scenario runner
// share: a press on a source, the over and drop events of each kind of
// target, and the place of each target's control.

#include "core/commands/drag_routes.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/commands/app.h"
#include "core/commands/clipboard_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_drag.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

const DragSource kReadout{DragSource::kReadout, 0};
const DragSource kMemory1{DragSource::kMemory, 1};

// What a drag over or a drop on a target can change, to compare before and
// after.
struct Models {
  std::vector<MemoryForm> memories;
  std::vector<CalcControl> calculator;
  std::string readoutDragIcon;
  Label converterDrop;
  std::array<Label, 7> converterLabels;
  std::vector<std::string> tapes;
  std::optional<double> pending;
  int beeps = 0;
  std::vector<std::string> popups;
  bool operator==(const Models&) const = default;
};

Models ModelsOf(const TestProgram& program) {
  const App& app = program.app;
  Models models;
  for (const auto& form : app.memory.Forms()) models.memories.push_back(*form);
  models.calculator = app.calculator.controls;
  models.readoutDragIcon = app.calculator.readoutDragIcon;
  models.converterDrop = app.converter.label1;
  models.converterLabels = app.converter.lblLabel;
  for (int tape = 0; tape < app.tapes.Cols(); ++tape) {
    models.tapes.push_back(JoinedTapeLines(app.tapes, tape));
  }
  models.pending = app.engine.PendingValue;
  models.beeps = program.platform.beeps;
  models.popups = program.platform.popups;
  return models;
}

class DragRoutesTest : public ::testing::Test, public TestProgram {
 protected:
  void SetUp() override { NewMemory_Click(app); }
};

TEST_F(DragRoutesTest, TheLeftButtonOnAMemoryStartsItsDrag) {
  Memory(1).dragIcon = "Image1";
  EXPECT_FALSE(BeginDrag(app, kMemory1, kRightButton));
  EXPECT_EQ(Memory(1).dragIcon, "Image1");
  EXPECT_TRUE(BeginDrag(app, kMemory1, kLeftButton));
  EXPECT_EQ(Memory(1).dragIcon, "Image3");
  EXPECT_TRUE(platform.popups.empty());
}

TEST_F(DragRoutesTest, APressOnTheReadoutIsItsMouseDown) {
  app.calculator.readoutDragIcon = "Image2";
  EXPECT_FALSE(BeginDrag(app, kReadout, kRightButton));
  EXPECT_EQ(platform.popups, (std::vector<std::string>{"mnuPopup1"}));
  EXPECT_TRUE(BeginDrag(app, kReadout, kLeftButton));
  EXPECT_EQ(app.calculator.readoutDragIcon, "Image3");
}

TEST_F(DragRoutesTest, EachTargetKindReachesItsWindowsHandlers) {
  app.calculator.Readout().caption = " 5\"";
  const DropTarget memory{DropTarget::kMemoryLabel, 1};
  const float right = MemoryMidpoint(Memory(1).label1) + 1;
  DragOver(app, memory, kReadout, right, 0);
  EXPECT_EQ(Memory(1).dragIcon, "Image1");
  DropOn(app, memory, kReadout, right, 0);
  EXPECT_EQ(Memory(1).label1.caption, " 5\" ");

  DragOver(app, {DropTarget::kConverter, 0}, kMemory1, 0, 0);
  EXPECT_EQ(Memory(1).dragIcon, "DropHere");
  DropOn(app, {DropTarget::kConverter, 0}, kMemory1, 0, 0);
  EXPECT_EQ(app.converter.label1.caption, "5\" ");

  const float left = ReadoutMidpoint(app.calculator.Readout()) - 1;
  DropOn(app, {DropTarget::kReadout, 0}, kMemory1, left, 0);
  EXPECT_EQ(app.engine.PendingValue, -5);
}

TEST_F(DragRoutesTest, TextFromAnotherProgramIsTakenWhereAPasteWouldBe) {
  const DropTarget readout{DropTarget::kReadout, 0};
  const DropTarget memory{DropTarget::kMemoryLabel, 1};
  const std::optional<DragSource> text = TextDragSource(memory, "  3'- 4\" \n");
  ASSERT_TRUE(text.has_value());
  EXPECT_EQ(text->kind, DragSource::kText);
  EXPECT_EQ(text->text, "3'- 4\"");
  EXPECT_TRUE(TextDragSource(readout, "7 1/2\"").has_value());
  // The converter takes none, and no target takes what is no measurement.
  EXPECT_FALSE(TextDragSource({DropTarget::kConverterLabel, 0}, "12'"));
  EXPECT_FALSE(TextDragSource({DropTarget::kConverter, 0}, "12'"));
  EXPECT_FALSE(TextDragSource(memory, "twelve feet"));
  EXPECT_FALSE(TextDragSource(readout, "1 2 3"));
  EXPECT_FALSE(TextDragSource(readout, ""));
}

TEST_F(DragRoutesTest, TextDroppedOnTheReadoutIsAPaste) {
  const DropTarget readout{DropTarget::kReadout, 0};
  const DragSource text = *TextDragSource(readout, "3'- 4\"");
  app.calculator.readoutDragIcon = "Image3";
  DragOver(app, readout, text, 0, 0);
  // No halves are shown for a paste.
  EXPECT_EQ(app.calculator.readoutDragIcon, "Image3");
  DropOn(app, readout, text, 0, 0);

  TestProgram pasted;  // the same program, pasted into
  NewMemory_Click(pasted.app);
  ASSERT_TRUE(Readout_Paste(pasted.app, "3'- 4\""));
  EXPECT_EQ(app.calculator.Readout().caption,
            pasted.app.calculator.Readout().caption);
  EXPECT_EQ(app.calculator.Readout().caption, "3'- 4\"");
  EXPECT_EQ(TapeLines(0), pasted.TapeLines(0));
  EXPECT_EQ(platform.beeps, pasted.platform.beeps);
}

TEST_F(DragRoutesTest, AMemoryThatIsNotOpenTakesNothing) {
  app.calculator.Readout().caption = " 5\"";
  Memory(1).label1.caption = " 3\" ";
  for (const int number : {2, 7}) {
    const DropTarget absent{DropTarget::kMemoryLabel, number};
    for (const DragSource& source : {kReadout, kMemory1}) {
      const Models before = ModelsOf(*this);
      DragOver(app, absent, source, 0, 0);
      EXPECT_TRUE(ModelsOf(*this) == before) << "a drag over memory " << number;
      DropOn(app, absent, source, 0, 0);
      EXPECT_TRUE(ModelsOf(*this) == before) << "a drop on memory " << number;
    }
  }
}

TEST_F(DragRoutesTest, TargetsArePlacedWhereTheirControlsAre) {
  EXPECT_EQ(DropTargetPlace(app, {DropTarget::kReadout, 0}),
            app.calculator.Readout().rect);
  EXPECT_EQ(DropTargetPlace(app, {DropTarget::kMemoryLabel, 1}),
            Memory(1).label1.rect);
  EXPECT_EQ(DropTargetPlace(app, {DropTarget::kConverterLabel, 0}),
            app.converter.label1.rect);
  EXPECT_EQ(DropTargetPlace(app, {DropTarget::kConverter, 0}), Rect{});
  EXPECT_EQ(DropTargetPlace(app, {DropTarget::kMemoryLabel, 7}), Rect{});
}

}  // namespace
}  // namespace brenko
