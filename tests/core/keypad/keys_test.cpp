// The keypad's one table: every key of the window comes from it, and every
// click and mouse-down of a key is routed by it.

#include "core/commands/keys.h"

#include <gtest/gtest.h>

#include <string>

#include "core/calc/calc_test_app.h"

namespace brenko::calc_test {
namespace {

using KeysTest = CalcTestApp;

TEST_F(KeysTest, TheWindowsKeysAreTheTablesRowsInOrder) {
  const std::span<const KeyRow> keys = KeypadKeys();
  std::size_t k = 0;
  for (const CalcControl& c : app.calculator.controls) {
    if (!c.isKey) continue;
    ASSERT_LT(k, keys.size());
    EXPECT_EQ(c.name, keys[k].design.name);
    EXPECT_EQ(c.index, keys[k].design.index);
    EXPECT_EQ(c.label.caption, keys[k].design.caption);
    ++k;
  }
  EXPECT_EQ(k, keys.size());
  EXPECT_EQ(keys.size(), 28u);
}

TEST_F(KeysTest, EveryKeyHasAClickAndAMouseDown) {
  for (const KeyRow& k : KeypadKeys()) {
    EXPECT_TRUE(static_cast<bool>(k.click)) << k.design.name;
    EXPECT_NE(k.mouseDown, nullptr) << k.design.name;
  }
}

TEST_F(KeysTest, EachDigitKeyTypesItsOwnCaption) {
  for (int digit = 0; digit <= 9; ++digit) {
    Readout() = "0.";
    ASSERT_TRUE(ClickControl(app, "Number", digit));
    EXPECT_EQ(Readout(), std::to_string(digit));
  }
}

TEST_F(KeysTest, AKeyOutsideTheTableIsNoControl) {
  EXPECT_FALSE(ClickControl(app, "Number", 10));
  EXPECT_FALSE(ClickControl(app, "Number", -1));
  EXPECT_FALSE(ClickControl(app, "Plu", -1));
  EXPECT_FALSE(ControlMouseDown(app, "Number", 10, kRightButton));
  EXPECT_FALSE(ControlMouseDown(app, "Readout", -1, kRightButton));
  EXPECT_EQ(Readout(), "0.");
  EXPECT_TRUE(platform.popups.empty());
}

// A single key takes no notice of an index.
TEST_F(KeysTest, ASingleKeyIgnoresTheIndex) {
  Readout() = "12";
  EXPECT_TRUE(ClickControl(app, "Backspace", 4));
  EXPECT_EQ(Readout(), "1");
}

TEST_F(KeysTest, TheRightButtonOnEveryKeyOpensTheContextMenu) {
  for (const KeyRow& k : KeypadKeys()) {
    platform.popups.clear();
    EXPECT_TRUE(
        ControlMouseDown(app, k.design.name, k.design.index, kRightButton));
    EXPECT_EQ(platform.popups, (std::vector<std::string>{"mnuPopup1"}))
        << k.design.name;
    EXPECT_TRUE(
        ControlMouseDown(app, k.design.name, k.design.index, kLeftButton));
    EXPECT_EQ(platform.popups.size(), 1u) << k.design.name;
  }
}

TEST_F(KeysTest, TheTapeWindowsButtonsStepBetweenTapes) {
  app.tapes.AddTape(1, "Memory 1");
  EXPECT_TRUE(ClickControl(app, "cmdScrollTape", 1));
  EXPECT_EQ(app.tapes.ShownTape, 1);
  EXPECT_TRUE(ClickControl(app, "cmdScrollTape", 0));
  EXPECT_EQ(app.tapes.ShownTape, 0);
}

}  // namespace
}  // namespace brenko::calc_test
