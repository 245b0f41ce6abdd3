// The memory windows' change count moves on only when a window comes or
// goes; the menus' only when a caption or a check mark changes.

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

#include "core/commands/menus.h"
#include "core/memory/memory_form.h"

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
