#include <gtest/gtest.h>

#include <string>

#include "core/commands/app.h"
#include "core/commands/menus.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

struct MenuRow {
  const char* name;
  int index;
};

class ShellMenuCommandTest : public testing::TestWithParam<MenuRow> {};

TEST_P(ShellMenuCommandTest, RunsItsHandler) {
  TestProgram t;
  t.Start();
  EXPECT_TRUE(RunMenuCommand(t.app, GetParam().name, GetParam().index));
}

std::string MenuRowName(const testing::TestParamInfo<MenuRow>& info) {
  std::string name = info.param.name;
  if (info.param.index >= 0) name += std::to_string(info.param.index);
  return name;
}

INSTANTIATE_TEST_SUITE_P(
    Entries, ShellMenuCommandTest,
    testing::Values(
        MenuRow{"Exit", -1}, MenuRow{"mnuPrint", -1},
        MenuRow{"mnuPrintAll", -1}, MenuRow{"mnuPopup2PrintTape", -1},
        MenuRow{"mnuPopup2PrintAllTapes", -1}, MenuRow{"Sixteen", -1},
        MenuRow{"thirtysecond", -1}, MenuRow{"mnuPopup1Accuracy16", -1},
        MenuRow{"mnuPopup1Accuracy32", -1}, MenuRow{"ShowKeys", -1},
        MenuRow{"mnuPopup1ShowKeys", -1}, MenuRow{"ZoomSmall", -1},
        MenuRow{"ZoomLarge", -1}, MenuRow{"mnuPopup1Zoom75", -1},
        MenuRow{"mnuPopup1Zoom100", -1}, MenuRow{"mnuColor", 0},
        MenuRow{"mnuColor", 1}, MenuRow{"mnuColor", 2}, MenuRow{"mnuColor", 3},
        MenuRow{"mnuColor", 4}, MenuRow{"mnuColor", 5}, MenuRow{"mnuColor", 6},
        MenuRow{"mnuHelpContents", -1}, MenuRow{"mnuAbout", -1},
        MenuRow{"mnuPopup1Cancel", -1}),
    MenuRowName);

TEST(ShellMenusTest, UnknownEntriesRunNothing) {
  TestProgram t;
  t.Start();
  EXPECT_FALSE(RunMenuCommand(t.app, "NoSuchEntry", -1));
  EXPECT_FALSE(RunMenuCommand(t.app, "mnuColor", 7));
  EXPECT_FALSE(RunMenuCommand(t.app, "mnuColor", -1));
}

TEST(ShellMenusTest, CancelOnlyClosesTheMenu) {
  TestProgram t;
  App& app = t.Start();
  const auto before = app.menus.Entries().size();
  const Rect geometry = app.calculator.geometry;
  EXPECT_TRUE(RunMenuCommand(app, "mnuPopup1Cancel"));
  EXPECT_EQ(app.menus.Entries().size(), before);
  EXPECT_EQ(app.calculator.geometry, geometry);
  EXPECT_TRUE(t.platform.messages.empty());
  EXPECT_TRUE(t.platform.documents.empty());
}

TEST(ShellMenusTest, ExitThroughTheMenuEndsTheProgram) {
  TestProgram t;
  App& app = t.Start();
  EXPECT_TRUE(RunMenuCommand(app, "Exit"));
  EXPECT_TRUE(app.shell.quitRequested);
  EXPECT_EQ(t.Setting("Settings", "ShowTape"), "True");
}

TEST(ShellMenusTest, ColourEntriesPassTheirIndex) {
  TestProgram t;
  App& app = t.Start();
  QueuedAnswer a;
  a.kind = QueuedAnswer::Kind::kColor;
  a.color = 42;
  t.platform.answers.push_back(a);
  EXPECT_TRUE(RunMenuCommand(app, "mnuColor", 5));
  EXPECT_EQ(app.converter.label1.backColor, 42);
}

}  // namespace
}  // namespace brenko
