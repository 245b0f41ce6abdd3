// The memory windows' change count moves on only when a window comes or
// goes; the forms' whenever a form may have changed, and never for a key
// that touches no memory; the menus' only when a caption or a check mark
// changes.

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <utility>

#include "core/commands/calc_handlers.h"
#include "core/commands/frame_handlers.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/menus.h"
#include "core/memory/memory_form.h"
#include "support/test_program.h"

namespace brenko {
namespace {

std::unique_ptr<MemoryForm> FormNumbered(int number) {
  auto form = std::make_unique<MemoryForm>();
  form->number = static_cast<std::int16_t>(number);
  form->caption = "Memory " + std::to_string(number);
  return form;
}

TEST(MemoryRevisionTest, WindowsComingAndGoingMoveItOn) {
  MemoryState memory;
  std::uint64_t before = memory.Revision();
  memory.Add(FormNumbered(1));
  EXPECT_GT(memory.Revision(), before);
  before = memory.Revision();
  EXPECT_TRUE(memory.RemoveAt(0));
  EXPECT_GT(memory.Revision(), before);
}

TEST(MemoryRevisionTest, NothingRemovedNothingChanged) {
  MemoryState memory;
  memory.Add(FormNumbered(1));
  const std::uint64_t before = memory.Revision();
  EXPECT_FALSE(memory.RemoveAt(3));
  memory.ForgetNames();
  EXPECT_EQ(memory.Revision(), before);
}

TEST(MemoryRevisionTest, FormsMoveOnWhereAFormCanBeChangedOnly) {
  MemoryState memory;
  std::uint64_t before = memory.FormsRevision();
  memory.Add(FormNumbered(1));
  memory.Add(FormNumbered(2));
  EXPECT_GT(memory.FormsRevision(), before);

  // Read-only: nothing moves, however the forms are looked at.
  before = memory.FormsRevision();
  const MemoryState& reading = memory;
  EXPECT_EQ(reading.Find(2)->caption, "Memory 2");
  EXPECT_EQ(reading.Forms().size(), 2u);
  EXPECT_EQ(reading.Find(7), nullptr);
  EXPECT_EQ(memory.FormsRevision(), before);

  // A way in that could change a form moves it on; one that finds nothing
  // does not.
  EXPECT_EQ(memory.Find(7), nullptr);
  EXPECT_EQ(memory.FormsRevision(), before);
  memory.Find(2)->label1.caption = " 2'- 0\" ";
  EXPECT_GT(memory.FormsRevision(), before);
  before = memory.FormsRevision();
  memory.Forms()[0]->caption = "Stock";
  EXPECT_GT(memory.FormsRevision(), before);
  before = memory.FormsRevision();
  memory.FormsChanged();
  EXPECT_GT(memory.FormsRevision(), before);
  before = memory.FormsRevision();
  EXPECT_TRUE(memory.RemoveAt(0));
  EXPECT_GT(memory.FormsRevision(), before);
}

class FormsRevisionTest : public ::testing::Test,
                          public testing_support::TestProgram {};

TEST_F(FormsRevisionTest, ACalculationLeavesTheMemoriesAlone) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  const std::uint64_t before = app.memory.FormsRevision();
  Number_Click(app, 1);
  Number_Click(app, 2);
  Plus_Click(app);
  Number_Click(app, 3);
  Equal_Click(app);
  EXPECT_EQ(app.memory.FormsRevision(), before);
}

TEST_F(FormsRevisionTest, ArrangingTheMemoriesMovesItOn) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  // Out of place, so that the arrangement has a window to move back.
  app.memory.Find(2)->geometry.left += 600;
  const std::uint64_t before = app.memory.FormsRevision();
  const float left = std::as_const(app.memory).Find(2)->geometry.left;
  mnuArrangeMemory_Click(app);
  ASSERT_NE(std::as_const(app.memory).Find(2)->geometry.left, left);
  EXPECT_GT(app.memory.FormsRevision(), before);
}

TEST(MemoryRevisionTest, FormsCompareByWhatTheyShow) {
  MemoryForm a;
  a.label1.caption = " 5'- 0\" ";
  MemoryForm b = a;
  EXPECT_EQ(a, b);
  b.label1.caption = " 6'- 0\" ";
  EXPECT_NE(a, b);
  b = a;
  b.geometry.left += 15;
  EXPECT_NE(a, b);
}

TEST(MenuRevisionTest, OnlyARealChangeMovesItOn) {
  MenuModel menus;
  const bool checked = menus.IsChecked(MenuId::mnuTape);
  std::uint64_t before = menus.Revision();
  menus.SetChecked(MenuId::mnuTape, checked);
  EXPECT_EQ(menus.Revision(), before);
  menus.SetChecked(MenuId::mnuTape, !checked);
  EXPECT_GT(menus.Revision(), before);
  before = menus.Revision();
  menus.SetCaption(MenuId::mnuTape, menus.Entry(MenuId::mnuTape).caption);
  EXPECT_EQ(menus.Revision(), before);
  menus.SetCaption(MenuId::mnuTape, "&Hide Tape");
  EXPECT_GT(menus.Revision(), before);
}

}  // namespace
}  // namespace brenko
