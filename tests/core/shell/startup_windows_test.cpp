// The start-up and shutdown together with the converter and memory windows.

#include <gtest/gtest.h>

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/frame_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/startup.h"
#include "core/converter/converter.h"
#include "core/memory/memory_cells.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

TEST(StartupWindowsTest, ConverterStoredTrueOpensItAtItsSavedPlace) {
  TestProgram t;
  t.store.Save("Settings", "Converter", "True");
  t.store.Save("Settings", "ConvLeft", "1000");
  t.store.Save("Settings", "ConvTop", "2000");
  App& app = t.Start();
  EXPECT_TRUE(app.converter.visible);
  EXPECT_TRUE(app.menus.IsChecked(MenuId::mnuConverter));
  // The menu action places it beside the calculator; the saved place wins.
  EXPECT_EQ(app.converter.geometry.left, 1000);
  EXPECT_EQ(app.converter.geometry.top, 2000);
}

TEST(StartupWindowsTest, ConverterEmptyCountsAsClosed) {
  TestProgram t;
  t.store.Save("Settings", "Converter", "");
  App& app = t.Start();
  EXPECT_FALSE(app.converter.visible);
  EXPECT_TRUE(app.converter.loaded);
  EXPECT_EQ(app.converter.label1.caption, "Drop Here     ");
}

TEST(StartupWindowsTest, ConverterOpenIsWrittenAsTrue) {
  TestProgram t;
  App& app = t.Start();
  mnuConverter_Click(app);
  Exit_Click(app);
  EXPECT_EQ(t.Setting("Settings", "Converter"), "True");
  EXPECT_FALSE(app.converter.loaded);
}

TEST(StartupWindowsTest, MemoriesMadeLaterTakeTheStoredColours) {
  TestProgram t;
  t.store.Save("Colors", "MemoryBackground", " 12");
  t.store.Save("Colors", "MemoryReadout", " 34");
  App& app = t.Start();
  NewMemory_Click(app);
  ASSERT_EQ(app.memory.Forms().size(), 1u);
  EXPECT_EQ(app.memory.Forms()[0]->backColor, 12);
  EXPECT_EQ(app.memory.Forms()[0]->label1.backColor, 34);
}

TEST(StartupWindowsTest, ExitErasesTheMemories) {
  TestProgram t;
  App& app = t.Start();
  NewMemory_Click(app);
  NewMemory_Click(app);
  Exit_Click(app);
  EXPECT_TRUE(app.memory.Forms().empty());
  EXPECT_EQ(app.memory.nextNumber, 1);
  EXPECT_EQ(app.memory.windowCounter, 1);
  EXPECT_TRUE(t.platform.messages.empty());
}

TEST(StartupWindowsTest, ClosingTheFrameKeepsTheProgramAndItsSavedPlace) {
  TestProgram t;
  t.store.Save("Settings", "MDILeft", "700");
  t.store.Save("Settings", "MDITop", "800");
  App& app = t.Start();
  NewMemory_Click(app);
  NewMemory_Click(app);
  NewMemory_Click(app);
  MDIForm_Unload(app);
  EXPECT_TRUE(app.memory.Forms().empty());
  EXPECT_FALSE(app.mainFrame.visible);
  EXPECT_EQ(app.mainFrame.caption, "Memory");
  EXPECT_EQ(app.mainFrame.geometry.width, 2055);
  EXPECT_FALSE(app.shell.quitRequested);
  EXPECT_TRUE(app.calculator.loaded);

  Exit_Click(app);
  EXPECT_EQ(t.Setting("Settings", "MDILeft"), "700");
  TestProgram next;
  next.store = t.store;
  App& again = next.Start();
  EXPECT_EQ(again.mainFrame.geometry.left, 700);
  EXPECT_EQ(again.mainFrame.geometry.top, 800);
}

}  // namespace
}  // namespace brenko
