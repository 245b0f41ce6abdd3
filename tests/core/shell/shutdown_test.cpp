#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/commands/app.h"
#include "core/commands/display_handlers.h"
#include "core/commands/startup.h"
#include "core/commands/tape_handlers.h"
#include "core/keypad/key_display.h"
#include "core/keypad/zoom.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

std::vector<std::string> Written(const MemorySettingsStore& store) {
  std::vector<std::string> lines;
  for (const auto& e : store.Entries()) {
    lines.push_back(e.section + "/" + e.key + "=" + e.value);
  }
  return lines;
}

TEST(ShutdownTest, FirstRunWritesColoursThenSettingsInOrder) {
  TestProgram t;
  Exit_Click(t.Start());
  const std::vector<std::string> expected = {
      "Colors/CalcBackground= 8421376",
      "Colors/ReadoutBackground= 8454143",
      "Colors/MemoryBackground= 8421376",
      "Colors/MemoryReadout= 8454143",
      "Colors/Converter= 8421376",
      "Colors/ConvReadout= 8454143",
      "Colors/ConvResult= 8454143",
      "Settings/CalcTop=6305",
      "Settings/CalcLeft=12592",
      "Settings/ConvTop=7715",
      "Settings/ConvLeft=9598",
      "Settings/MDITop=1635",
      "Settings/MDILeft=1575",
      "Settings/Zoom=False",
      "Settings/Accuracy=False",
      "Settings/Converter=False",
      "Settings/ShowKeys=True",
      "Settings/ShowTape=True",
  };
  EXPECT_EQ(Written(t.store), expected);
}

TEST(ShutdownTest, AccuracyIsWrittenAsTheNegationOfSixteenths) {
  TestProgram t;
  App& app = t.Start();
  thirtysecond_Click(app);
  Exit_Click(app);
  EXPECT_EQ(t.Setting("Settings", "Accuracy"), "True");
}

TEST(ShutdownTest, BooleansFollowTheCheckMarks) {
  TestProgram t;
  App& app = t.Start();
  ZoomSmall_Click(app);
  ShowKeys_Click(app);
  mnuTape_Click(app);
  Exit_Click(app);
  EXPECT_EQ(t.Setting("Settings", "Zoom"), "True");
  EXPECT_EQ(t.Setting("Settings", "ShowKeys"), "False");
  EXPECT_EQ(t.Setting("Settings", "ShowTape"), "False");
}

TEST(ShutdownTest, NegativeColoursAndPositionsHaveNoBlank) {
  TestProgram t;
  App& app = t.Start();
  app.calculator.backColor = -1;
  app.calculator.geometry.left = -120;
  Exit_Click(app);
  EXPECT_EQ(t.Setting("Colors", "CalcBackground"), "-1");
  EXPECT_EQ(t.Setting("Settings", "CalcLeft"), "-120");
}

TEST(ShutdownTest, QueryUnloadHidesTheCalculator) {
  TestProgram t;
  App& app = t.Start();
  Form_QueryUnload(app);
  EXPECT_FALSE(app.calculator.visible);
  EXPECT_FALSE(app.shell.quitRequested);
  EXPECT_TRUE(t.store.Entries().empty());
}

TEST(ShutdownTest, UnloadClosesTheOtherWindowsAndEndsTheProgram) {
  TestProgram t;
  App& app = t.Start();
  Form_QueryUnload(app);
  Form_Unload(app);
  EXPECT_FALSE(app.converter.loaded);
  EXPECT_FALSE(app.converter.visible);
  EXPECT_FALSE(app.tapeWindow.loaded);
  EXPECT_FALSE(app.tapeWindow.visible);
  EXPECT_FALSE(app.calculator.loaded);
  EXPECT_TRUE(app.shell.quitRequested);
}

TEST(ShutdownTest, ASecondCloseWritesNothingMore) {
  TestProgram t;
  App& app = t.Start();
  Exit_Click(app);
  const size_t written = t.store.Entries().size();
  t.store.Save("Settings", "Zoom", "marker");
  Form_Unload(app);
  EXPECT_EQ(t.store.Entries().size(), written);
  EXPECT_EQ(t.Setting("Settings", "Zoom"), "marker");
}

TEST(ShutdownTest, ConverterNeverLoadedIsMadeToReadItsPlace) {
  TestProgram t;
  App& app = t.app;
  // A shutdown without a start-up: the converter is made for the purpose.
  Exit_Click(app);
  EXPECT_EQ(t.Setting("Settings", "ConvTop"), "0");
  EXPECT_EQ(t.Setting("Settings", "ConvLeft"), "0");
}

// A store the shutdown cannot write to still lets the shutdown complete.
class FailingStore : public SettingsStore {
 public:
  std::optional<std::string> Get(const std::string&,
                                 const std::string&) const override {
    return std::nullopt;
  }
  void Save(const std::string&, const std::string&,
            const std::string&) override {
    ++saves;
  }
  bool Flush() override {
    ++flushes;
    return false;
  }
  int saves = 0;
  int flushes = 0;
};

TEST(ShutdownTest, AFailedWriteIsLostSilently) {
  FailingStore store;
  TestProgram t(store);
  App& app = t.Start();
  Exit_Click(app);
  EXPECT_EQ(store.saves, 18);
  EXPECT_EQ(store.flushes, 1);
  EXPECT_TRUE(app.shell.quitRequested);
  EXPECT_TRUE(t.platform.messages.empty());
}

}  // namespace
}  // namespace brenko
