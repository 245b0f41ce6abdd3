// A whole run written to the settings file and read back by the next run.

#include <gtest/gtest.h>

#include <filesystem>

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/display_handlers.h"
#include "core/commands/shell_handlers.h"
#include "core/commands/startup.h"
#include "core/commands/tape_handlers.h"
#include "core/converter/converter.h"
#include "core/keypad/key_display.h"
#include "core/keypad/zoom.h"
#include "core/shell/colors.h"
#include "core/shell/ini_settings_store.h"
#include "os/system_file_ops.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

namespace brenko {
namespace {

namespace fs = std::filesystem;
using testing_support::TestProgram;

class PersistenceTest : public testing::Test {
 protected:
  std::string FileText() const { return scratch_.Read(path_); }
  void PickColor(FakePlatform& platform, ColorNumber color) {
    QueuedAnswer answer;
    answer.kind = QueuedAnswer::Kind::kColor;
    answer.color = color;
    platform.answers.push_back(answer);
  }

  testing_support::ScratchFolder scratch_{"brenko-persist-"};
  os::SystemFileOps files_;
  const fs::path path_ = scratch_.Path(fs::path("Brenko") / "Brenko.ini");
};

TEST_F(PersistenceTest, AFirstRunWritesTheDefaults) {
  {
    IniSettingsStore store(path_, files_);
    TestProgram run(store);
    App& app = run.Start();
    Exit_Click(app);
  }
  EXPECT_EQ(FileText(),
            "[Colors]\n"
            "CalcBackground= 8421376\n"
            "ReadoutBackground= 8454143\n"
            "MemoryBackground= 8421376\n"
            "MemoryReadout= 8454143\n"
            "Converter= 8421376\n"
            "ConvReadout= 8454143\n"
            "ConvResult= 8454143\n"
            "\n"
            "[Settings]\n"
            "CalcTop=6305\n"
            "CalcLeft=12592\n"
            "ConvTop=7715\n"
            "ConvLeft=9598\n"
            "MDITop=1635\n"
            "MDILeft=1575\n"
            "Zoom=False\n"
            "Accuracy=False\n"
            "Converter=False\n"
            "ShowKeys=True\n"
            "ShowTape=True\n");
}

TEST_F(PersistenceTest, EverythingChangedIsRestoredByTheNextRun) {
  {
    IniSettingsStore store(path_, files_);
    TestProgram run(store);
    App& app = run.Start();
    ZoomSmall_Click(app);
    thirtysecond_Click(app);
    ShowKeys_Click(app);
    mnuTape_Click(app);
    mnuConverter_Click(app);
    for (int index = 0; index <= 6; ++index) {
      PickColor(run.platform, 1000 + index);
      mnuColor_Click(app, index);
    }
    app.calculator.geometry.left = 1000;
    app.calculator.geometry.top = 2000;
    app.converter.geometry.left = 3000;
    app.converter.geometry.top = 4000;
    app.mainFrame.geometry.left = 500;
    app.mainFrame.geometry.top = 600;
    // Nothing reaches the file before the shutdown.
    EXPECT_FALSE(fs::exists(path_));
    Exit_Click(app);
  }
  EXPECT_EQ(FileText(),
            "[Colors]\n"
            "CalcBackground= 1000\n"
            "ReadoutBackground= 1001\n"
            "MemoryBackground= 1002\n"
            "MemoryReadout= 1003\n"
            "Converter= 1004\n"
            "ConvReadout= 1005\n"
            "ConvResult= 1006\n"
            "\n"
            "[Settings]\n"
            "CalcTop=2000\n"
            "CalcLeft=1000\n"
            "ConvTop=4000\n"
            "ConvLeft=3000\n"
            "MDITop=600\n"
            "MDILeft=500\n"
            "Zoom=True\n"
            "Accuracy=True\n"
            "Converter=True\n"
            "ShowKeys=False\n"
            "ShowTape=False\n");

  IniSettingsStore store(path_, files_);
  TestProgram next(store);
  App& app = next.Start();
  EXPECT_EQ(app.calculator.geometry, (Rect{1000, 2000, 2745, 1200}));
  EXPECT_TRUE(app.menus.IsChecked(MenuId::ZoomSmall));
  EXPECT_EQ(app.accuracy, 32);
  EXPECT_TRUE(app.menus.IsChecked(MenuId::thirtysecond));
  EXPECT_FALSE(app.menus.IsChecked(MenuId::ShowKeys));
  EXPECT_FALSE(app.tapeWindow.visible);
  EXPECT_FALSE(app.menus.IsChecked(MenuId::mnuTape));
  EXPECT_TRUE(app.converter.visible);
  EXPECT_TRUE(app.menus.IsChecked(MenuId::mnuConverter));
  EXPECT_EQ(app.converter.geometry.left, 3000);
  EXPECT_EQ(app.converter.geometry.top, 4000);
  EXPECT_EQ(app.mainFrame.geometry.left, 500);
  EXPECT_EQ(app.mainFrame.geometry.top, 600);
  EXPECT_EQ(app.calculator.backColor, 1000);
  EXPECT_EQ(app.calculator.Readout().backColor, 1001);
  EXPECT_EQ(app.colors.memoryBackground, 1002);
  EXPECT_EQ(app.colors.memoryReadout, 1003);
  EXPECT_EQ(app.converter.backColor, 1004);
  EXPECT_EQ(app.converter.label1.backColor, 1005);
  EXPECT_EQ(app.converter.lblLabel[4].backColor, 1006);
}

}  // namespace
}  // namespace brenko
