// The calculator's menus entry by entry: names, captions (odd ones kept as
// designed), nesting, design-time check marks, and which entries run a
// handler.

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/commands/app.h"
#include "core/commands/menus.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

struct TreeRow {
  int level;
  const char* name;
  int index;
  const char* caption;
  const char* parent;
  bool checked;
};

// In display order, as the menu bar and the two context menus show them.
const std::vector<TreeRow>& ExpectedTree() {
  static const std::vector<TreeRow> rows = {
      {1, "File", -1, "&File", "", false},
      {2, "mnuOpen", -1, "&Open...", "File", false},
      {2, "mnuSave", -1, "&Save", "File", false},
      {2, "mnuSaveAs", -1, "Save &As...", "File", false},
      {2, "mnuSep", -1, "-", "File", false},
      {2, "mnuPrint", -1, "&Print Current Tape", "File", false},
      {2, "mnuPrintAll", -1, "Print All &Tapes", "File", false},
      {2, "mnuSeperator", -1, "-", "File", false},
      {2, "Formulas", -1, "&Formulas", "File", false},
      {3, "Circumference", -1, "Circumference...", "Formulas", false},
      {3, "CircArea", -1, "Area of circle...", "Formulas", false},
      {3, "CylVolume", -1, "Volume of cylinder...", "Formulas", false},
      {3, "mnuDiagonal", -1, "Diagonal...", "Formulas", false},
      {2, "Exit", -1, "E&xit", "File", false},
      {1, "Memory", -1, "&Memory", "", false},
      {2, "NewMemory", -1, "New &Memory", "Memory", false},
      {2, "NamedMemory", -1, "&Named Memory...", "Memory", false},
      {2, "mnuArrangeMemory", -1, "&Arrange", "Memory", false},
      {2, "ClearMemory", -1, "&Clear All", "Memory", false},
      {2, "EraseMemory", -1, "&Erase All", "Memory", false},
      {1, "DisplayMenu", -1, "&Display", "", false},
      {2, "Accuracy", -1, "&Accuracy", "DisplayMenu", false},
      {3, "Sixteen", -1, "1/16\"", "Accuracy", true},
      {3, "thirtysecond", -1, "1/32\"", "Accuracy", false},
      {2, "ShowKeys", -1, "Show &Keys", "DisplayMenu", true},
      {2, "mnuConverter", -1, "&Converter", "DisplayMenu", false},
      {2, "mnuTape", -1, "&Tape", "DisplayMenu", false},
      {2, "Zoom", -1, "&Zoom", "DisplayMenu", false},
      {3, "ZoomSmall", -1, "75%", "Zoom", false},
      {3, "ZoomLarge", -1, "100%", "Zoom", true},
      {2, "mnuColors", -1, "Colors", "DisplayMenu", false},
      {3, "mnuColor", 0, "Calculator", "mnuColors", false},
      {3, "mnuColor", 1, "Calculator readout ", "mnuColors", false},
      {3, "mnuColor", 2, "Memory", "mnuColors", false},
      {3, "mnuColor", 3, "Memory readout", "mnuColors", false},
      {3, "mnuColor", 4, "Converter", "mnuColors", false},
      {3, "mnuColor", 5, "Converter readout", "mnuColors", false},
      {3, "mnuColor", 6, "Converter result readouts", "mnuColors", false},
      {1, "HelpMenu", -1, "&Help", "", false},
      {2, "mnuHelpContents", -1, "&Contents", "HelpMenu", false},
      {2, "mnuAbout", -1, "&About", "HelpMenu", false},
      {1, "mnuPopup1", -1, "Popup1", "", false},
      {2, "mnuPopup1NewMemory", -1, "New Memory", "mnuPopup1", false},
      {2, "mnuPopup1NamedMemory", -1, "Named Memory", "mnuPopup1", false},
      {2, "mnuPopup1Separator1", -1, "-", "mnuPopup1", false},
      {2, "mnuPopup1Accuracy16", -1, "1/16\" Accuracy", "mnuPopup1", true},
      {2, "mnuPopup1Accuracy32", -1, "1/32\" Accuracy", "mnuPopup1", false},
      {2, "mnuPopup1Separator2", -1, "-", "mnuPopup1", false},
      {2, "mnuPopup1Zoom75", -1, "Zoom 75%", "mnuPopup1", false},
      {2, "mnuPopup1Zoom100", -1, "Zoom 100%", "mnuPopup1", true},
      {2, "mnuPopup1ShowKeys", -1, "Show Keys", "mnuPopup1", true},
      {2, "mnuPopup1ShowTape", -1, "ShowTape", "mnuPopup1", false},
      {2, "mnuPopup1Separator3", -1, "-", "mnuPopup1", false},
      {2, "mnuPopUp1Circumference", -1, "Circumference...", "mnuPopup1", false},
      {2, "mnuPopUp1AreaofCircle", -1, "Area of Circle...", "mnuPopup1", false},
      {2, "mnuPopUp1VolumeofCylinder", -1, "VolumeofCylinder...", "mnuPopup1",
       false},
      {2, "mnuPopUp1Diagonal", -1, "Diagonal...", "mnuPopup1", false},
      {2, "mnuPopup1Separator4", -1, "-", "mnuPopup1", false},
      {2, "mnuPopup1Cancel", -1, "Cancel", "mnuPopup1", false},
      {1, "mnuPopup2", -1, "Popup2", "", false},
      {2, "mnuPopup2PrintTape", -1, "Print Tape", "mnuPopup2", false},
      {2, "mnuPopup2PrintAllTapes", -1, "Print All Tapes", "mnuPopup2", false},
  };
  return rows;
}

TEST(MenuTreeTest, EveryEntryInDisplayOrderWithCaptionParentAndMark) {
  const MenuModel menus;
  const std::vector<MenuEntry>& entries = menus.Entries();
  const std::vector<TreeRow>& expected = ExpectedTree();
  ASSERT_EQ(entries.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const TreeRow& row = expected[i];
    const MenuEntry& e = entries[i];
    SCOPED_TRACE(std::string(row.name) + " " + std::to_string(row.index));
    EXPECT_EQ(e.name, row.name);
    EXPECT_EQ(e.index, row.index);
    EXPECT_EQ(e.caption, row.caption);
    EXPECT_EQ(e.level, row.level);
    EXPECT_EQ(e.parent, row.parent);
    EXPECT_EQ(e.checked, row.checked);
  }
}

TEST(MenuTreeTest, ContextMenusAreNeverShownInTheMenuBar) {
  const MenuModel menus;
  EXPECT_FALSE(menus.Find("mnuPopup1")->visible);
  EXPECT_FALSE(menus.Find("mnuPopup2")->visible);
  for (const char* bar : {"File", "Memory", "DisplayMenu", "HelpMenu"}) {
    EXPECT_TRUE(menus.Find(bar)->visible) << bar;
  }
}

TEST(MenuTreeTest, SeparatorSpellingsAreDistinct) {
  const MenuModel menus;
  ASSERT_NE(menus.Find("mnuSeperator"), nullptr);
  EXPECT_EQ(menus.Find("mnuSeparator"), nullptr);
  EXPECT_EQ(menus.Find("mnuSeperator")->caption, "-");
  EXPECT_EQ(menus.Find("mnuSep")->caption, "-");
}

// The popup's formula entries carry a capital U, its other entries a small
// one; the misspelt names do not exist.
TEST(MenuTreeTest, PopupNamesKeepTheirCapitalU) {
  const MenuModel menus;
  EXPECT_NE(menus.Find("mnuPopUp1Circumference"), nullptr);
  EXPECT_EQ(menus.Find("mnuPopup1Circumference"), nullptr);
  EXPECT_NE(menus.Find("mnuPopup1ShowTape"), nullptr);
  EXPECT_EQ(menus.Find("mnuPopUp1ShowTape"), nullptr);
}

// Each entry sits at the place its typed name gives it.
TEST(MenuTreeTest, EveryEntryIsFoundByItsTypedName) {
  const MenuModel menus;
  for (std::size_t i = 0; i < menus.Entries().size(); ++i) {
    const MenuEntry& e = menus.Entries()[i];
    EXPECT_EQ(static_cast<std::size_t>(e.id), i) << e.name;
    EXPECT_EQ(&menus.Entry(e.id), &e) << e.name;
    EXPECT_EQ(&menus.At(e.name, e.index), &e) << e.name;
  }
  EXPECT_EQ(menus.Entry(MenuId::mnuColor3).name, "mnuColor");
  EXPECT_EQ(menus.Entry(MenuId::mnuColor3).index, 3);
  EXPECT_EQ(menus.Entry(MenuId::mnuSeperator).caption, "-");
}

// A name no entry has is an error that shows, not a check mark that is
// quietly false.
TEST(MenuTreeTest, AskingForAnUnknownEntryFailsLoudly) {
  const MenuModel menus;
  EXPECT_THROW(menus.At("mnuSeparator"), std::out_of_range);
  EXPECT_THROW(menus.At("mnuColor"), std::out_of_range);
  EXPECT_THROW(menus.At("mnuColor", 7), std::out_of_range);
  EXPECT_THROW(menus.At("ShowKeys", 0), std::out_of_range);
}

// A command by name: a member of a menu array needs its index, any other
// entry takes no notice of one.
TEST(MenuTreeTest, CommandsByNameFindTheirEntry) {
  EXPECT_EQ(MenuCommandId("mnuColor", 4), MenuId::mnuColor4);
  EXPECT_EQ(MenuCommandId("mnuColor", -1), std::nullopt);
  EXPECT_EQ(MenuCommandId("mnuColor", 7), std::nullopt);
  EXPECT_EQ(MenuCommandId("mnuOpen", -1), MenuId::mnuOpen);
  EXPECT_EQ(MenuCommandId("mnuOpen", 3), MenuId::mnuOpen);
  EXPECT_EQ(MenuCommandId("mnuopen", -1), std::nullopt);
}

struct CommandRow {
  const char* name;
  int index;
};

class MenuHandlerTest : public testing::TestWithParam<CommandRow> {};

// Every entry that has a handler runs it when chosen, on a running program
// whose dialogs are all cancelled.
TEST_P(MenuHandlerTest, EntryRunsItsHandler) {
  TestProgram t;
  t.Start();
  EXPECT_TRUE(RunMenuCommand(t.app, GetParam().name, GetParam().index));
}

std::string CommandName(const testing::TestParamInfo<CommandRow>& info) {
  std::string name = info.param.name;
  if (info.param.index >= 0) name += std::to_string(info.param.index);
  return name;
}

INSTANTIATE_TEST_SUITE_P(
    Entries, MenuHandlerTest,
    testing::Values(
        CommandRow{"mnuOpen", -1}, CommandRow{"mnuSave", -1},
        CommandRow{"mnuSaveAs", -1}, CommandRow{"mnuPrint", -1},
        CommandRow{"mnuPrintAll", -1}, CommandRow{"Circumference", -1},
        CommandRow{"CircArea", -1}, CommandRow{"CylVolume", -1},
        CommandRow{"mnuDiagonal", -1}, CommandRow{"Exit", -1},
        CommandRow{"NewMemory", -1}, CommandRow{"NamedMemory", -1},
        CommandRow{"mnuArrangeMemory", -1}, CommandRow{"ClearMemory", -1},
        CommandRow{"EraseMemory", -1}, CommandRow{"Sixteen", -1},
        CommandRow{"thirtysecond", -1}, CommandRow{"ShowKeys", -1},
        CommandRow{"mnuConverter", -1}, CommandRow{"mnuTape", -1},
        CommandRow{"ZoomSmall", -1}, CommandRow{"ZoomLarge", -1},
        CommandRow{"mnuColor", 0}, CommandRow{"mnuColor", 1},
        CommandRow{"mnuColor", 2}, CommandRow{"mnuColor", 3},
        CommandRow{"mnuColor", 4}, CommandRow{"mnuColor", 5},
        CommandRow{"mnuColor", 6}, CommandRow{"mnuHelpContents", -1},
        CommandRow{"mnuAbout", -1}, CommandRow{"mnuPopup1NewMemory", -1},
        CommandRow{"mnuPopup1NamedMemory", -1},
        CommandRow{"mnuPopup1Accuracy16", -1},
        CommandRow{"mnuPopup1Accuracy32", -1},
        CommandRow{"mnuPopup1Zoom75", -1}, CommandRow{"mnuPopup1Zoom100", -1},
        CommandRow{"mnuPopup1ShowKeys", -1},
        CommandRow{"mnuPopup1ShowTape", -1},
        CommandRow{"mnuPopUp1Circumference", -1},
        CommandRow{"mnuPopUp1AreaofCircle", -1},
        CommandRow{"mnuPopUp1VolumeofCylinder", -1},
        CommandRow{"mnuPopUp1Diagonal", -1}, CommandRow{"mnuPopup1Cancel", -1},
        CommandRow{"mnuPopup2PrintTape", -1},
        CommandRow{"mnuPopup2PrintAllTapes", -1}),
    CommandName);

class MenuWithoutHandlerTest : public testing::TestWithParam<CommandRow> {};

// Menus that only open a submenu, and the separator lines, run nothing.
TEST_P(MenuWithoutHandlerTest, EntryIsNoCommand) {
  TestProgram t;
  t.Start();
  EXPECT_FALSE(RunMenuCommand(t.app, GetParam().name, GetParam().index));
}

INSTANTIATE_TEST_SUITE_P(
    Entries, MenuWithoutHandlerTest,
    testing::Values(CommandRow{"File", -1}, CommandRow{"Memory", -1},
                    CommandRow{"DisplayMenu", -1}, CommandRow{"Accuracy", -1},
                    CommandRow{"Zoom", -1}, CommandRow{"mnuColors", -1},
                    CommandRow{"HelpMenu", -1}, CommandRow{"Formulas", -1},
                    CommandRow{"mnuSep", -1}, CommandRow{"mnuSeperator", -1},
                    CommandRow{"mnuPopup1Separator1", -1},
                    CommandRow{"mnuPopup1", -1}),
    CommandName);

}  // namespace
}  // namespace brenko
