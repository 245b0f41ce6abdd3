// The memory window's commands against the drags they stand for: two
// programs in the same state, one given the command, the other the drag by
// the mouse's route; everything the user can see must come out the same.

#include "core/commands/memory_commands.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/commands/app.h"
#include "core/commands/calc_handlers.h"
#include "core/commands/drag_routes.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/menus.h"
#include "core/memory/memory_drag.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

// Well inside a half, as a hand drops it.
constexpr float kAside = 200;

struct Seen {
  std::string readout;
  std::string action;
  std::vector<std::string> memories;
  std::vector<std::vector<std::string>> tapes;
  int shownTape;
  std::string tapeTitle;
  std::string converter;
  int beeps;
  std::string pendingText;
  double pendingValue;
  int pendingOp;

  bool operator==(const Seen&) const = default;
};

Seen SeenIn(TestProgram& p) {
  Seen seen;
  const App& app = p.app;
  seen.readout = app.calculator.Readout().caption;
  seen.action = app.calculator.ActionLabel().caption;
  for (int tape = 0; tape < static_cast<int>(app.tapes.TapeLineCount().size());
       ++tape) {
    seen.tapes.push_back(p.TapeLines(tape));
  }
  for (int n = 1; n <= 3; ++n) {
    const MemoryForm* form = app.memory.Find(n);
    seen.memories.push_back(form ? form->label1.caption : "<closed>");
  }
  seen.shownTape = app.tapes.ShownTape;
  seen.tapeTitle = app.tapeWindow.title.caption;
  seen.converter = app.converter.label1.caption;
  for (const Label& label : app.converter.lblLabel) {
    seen.converter += "|" + label.caption;
  }
  seen.beeps = p.platform.beeps;
  seen.pendingText = app.engine.PendingText;
  seen.pendingValue = app.engine.PendingValue.value_or(-12345);
  seen.pendingOp = app.engine.PendingOp;
  return seen;
}

void Drag(App& app, const DragSource& source, const DropTarget& target,
          float x) {
  ASSERT_TRUE(BeginDrag(app, source, kLeftButton));
  DragOver(app, target, source, x, 0);
  DropOn(app, target, source, x, 0);
}

// Both programs: the calculator, two memories, a value keyed.
void Prepare(TestProgram& p, const std::string& keys) {
  p.Start();
  NewMemory_Click(p.app);
  NewMemory_Click(p.app);
  p.app.memory.Find(1)->label1.caption = " 5'- 0\" ";
  p.Type(keys);
}

struct Case {
  const char* keys;  // typed before the command
  MemoryCommand command;
};

class MemoryCommandTest : public ::testing::TestWithParam<Case> {};

TEST_P(MemoryCommandTest, DoesWhatTheDragDoes) {
  const Case c = GetParam();
  TestProgram byCommand;
  TestProgram byDrag;
  Prepare(byCommand, c.keys);
  Prepare(byDrag, c.keys);
  App& app = byDrag.app;
  const DragSource readout{DragSource::kReadout, 0, {}};
  const DragSource memory1{DragSource::kMemory, 1, {}};
  const DropTarget label1{DropTarget::kMemoryLabel, 1};
  const float memoryMid = MemoryMidpoint(app.memory.Find(1)->label1);
  switch (c.command) {
    case MemoryCommand::kAddReadout:
      Drag(app, readout, label1, memoryMid + kAside);
      break;
    case MemoryCommand::kSubtractReadout:
      Drag(app, readout, label1, memoryMid - kAside);
      break;
    case MemoryCommand::kRecallToReadout:
      Drag(app, memory1, {DropTarget::kReadout, 0},
           ReadoutMidpoint(app.calculator.Readout()) + kAside);
      break;
    case MemoryCommand::kShowInConverter:
      Drag(app, memory1, {DropTarget::kConverter, 0}, 0);
      break;
    case MemoryCommand::kClear:
      MemoryForm_Label1_DblClick(app, 1);
      break;
  }
  const Seen before = SeenIn(byCommand);
  RunMemoryCommand(byCommand.app, 1, c.command);
  const Seen after = SeenIn(byCommand);
  EXPECT_TRUE(after == SeenIn(byDrag));
  EXPECT_EQ(after.readout, SeenIn(byDrag).readout);
  EXPECT_EQ(after.memories, SeenIn(byDrag).memories);
  EXPECT_EQ(after.tapes, SeenIn(byDrag).tapes);
  EXPECT_EQ(after.converter, SeenIn(byDrag).converter);
  EXPECT_EQ(after.beeps, SeenIn(byDrag).beeps);
  // Every one of these cases does something the user sees.
  EXPECT_FALSE(after == before);
}

INSTANTIATE_TEST_SUITE_P(
    EachCommand, MemoryCommandTest,
    ::testing::Values(Case{"3'=", MemoryCommand::kAddReadout},
                      Case{"3'=", MemoryCommand::kSubtractReadout},
                      Case{"", MemoryCommand::kRecallToReadout},
                      Case{"2'=+", MemoryCommand::kRecallToReadout},
                      Case{"2'=-", MemoryCommand::kRecallToReadout},
                      Case{"2'*", MemoryCommand::kRecallToReadout},
                      Case{"", MemoryCommand::kShowInConverter},
                      Case{"", MemoryCommand::kClear}));

TEST(MemoryCommands, AddingTheReadoutWritesTheDropsThreeLines) {
  TestProgram p;
  Prepare(p, "3'=");
  RunMemoryCommand(p.app, 1, MemoryCommand::kAddReadout);
  EXPECT_EQ(p.Memory(1).label1.caption, " 8'- 0\" ");
  ASSERT_EQ(p.TapeLines(1).size(), 3u);
  EXPECT_EQ(p.TapeLines(1)[1], "---------------- ");
  RunMemoryCommand(p.app, 1, MemoryCommand::kSubtractReadout);
  EXPECT_EQ(p.Memory(1).label1.caption, " 5'- 0\" ");
}

TEST(MemoryCommands, AMixedKindIsRefusedAsTheDropRefusesIt) {
  TestProgram p;
  Prepare(p, "");
  p.app.calculator.Readout().caption = "12 sq";
  RunMemoryCommand(p.app, 1, MemoryCommand::kAddReadout);
  EXPECT_EQ(p.Memory(1).label1.caption, " 5'- 0\" ");
  EXPECT_TRUE(p.TapeLines(1).empty());
}

TEST(MemoryCommands, AMemoryThatIsGoneIsLeftAlone) {
  TestProgram p;
  Prepare(p, "3'=");
  const Seen before = SeenIn(p);
  RunMemoryCommand(p.app, 9, MemoryCommand::kAddReadout);
  EXPECT_TRUE(SeenIn(p) == before);
}

TEST(MemoryCommands, EachHasAWordAndACaption) {
  ASSERT_EQ(MemoryCommands().size(), 5u);
  EXPECT_EQ(MemoryCommandNamed("Add"), MemoryCommand::kAddReadout);
  EXPECT_EQ(MemoryCommandNamed("Subtract"), MemoryCommand::kSubtractReadout);
  EXPECT_EQ(MemoryCommandNamed("Recall"), MemoryCommand::kRecallToReadout);
  EXPECT_EQ(MemoryCommandNamed("Convert"), MemoryCommand::kShowInConverter);
  EXPECT_EQ(MemoryCommandNamed("Clear"), MemoryCommand::kClear);
  EXPECT_FALSE(MemoryCommandNamed("add").has_value());
  EXPECT_STREQ(MemoryCommands()[0].caption, "&Add Readout");
}

}  // namespace
}  // namespace brenko
