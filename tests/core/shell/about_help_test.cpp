#include <gtest/gtest.h>

#include <memory>

#include "core/commands/app.h"
#include "core/commands/shell_handlers.h"
#include "core/shell/about.h"
#include "core/shell/version.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;
using Call = std::pair<WindowRef, bool>;

WindowRef Tape() { return {WindowKind::kTape, 0}; }
WindowRef Calc() { return {WindowKind::kCalculator, 0}; }
WindowRef Conv() { return {WindowKind::kConverter, 0}; }
WindowRef Mem(int n) { return {WindowKind::kMemory, n}; }

class AboutTest : public testing::Test {
 protected:
  void SetUp() override {
    t_.Start();
    t_.platform.topmostCalls.clear();
  }
  void AddMemory(int number) {
    auto form = std::make_unique<MemoryForm>();
    form->number = static_cast<std::int16_t>(number);
    form->label1.tag = "memory " + std::to_string(number);
    app_.memory.Add(std::move(form));
  }
  TestProgram t_;
  App& app_ = t_.app;
};

TEST_F(AboutTest, ShowsTitleVersionAndNotice) {
  mnuAbout_Click(app_);
  ASSERT_EQ(t_.platform.aboutShown.size(), 1u);
  const AboutInfo& info = t_.platform.aboutShown[0];
  EXPECT_EQ(info.title, "Brenko Calculator");
  EXPECT_EQ(info.version, "Version " + ProgramVersion());
  EXPECT_FALSE(info.description.empty());
  EXPECT_NE(info.disclaimer.find("without warranty"), std::string::npos);
}

TEST(VersionTest, IsThreePlainNumbers) {
  const std::string v = ProgramVersion();
  int dots = 0;
  bool digitBeforeEachDot = true;
  char previous = '.';
  for (char c : v) {
    if (c == '.') {
      ++dots;
      if (previous == '.') digitBeforeEachDot = false;
    } else {
      EXPECT_TRUE(c >= '0' && c <= '9') << v;
    }
    previous = c;
  }
  EXPECT_EQ(dots, 2) << v;
  EXPECT_TRUE(digitBeforeEachDot && previous != '.') << v;
}

TEST_F(AboutTest, ReleasesAndRestoresEveryWindowAroundTheBox) {
  AddMemory(1);
  AddMemory(2);
  app_.converter.visible = true;
  mnuAbout_Click(app_);
  const std::vector<Call> expected = {
      {Tape(), false}, {Conv(), false}, {Mem(1), false},
      {Mem(2), false}, {Tape(), true},  {Calc(), true},
      {Conv(), true},  {Mem(1), true},  {Mem(2), true},
  };
  EXPECT_EQ(t_.platform.topmostCalls, expected);
}

TEST_F(AboutTest, HiddenWindowsAreReleasedAndRestoredToo) {
  app_.tapeWindow.visible = false;
  app_.converter.visible = false;
  mnuAbout_Click(app_);
  const std::vector<Call> expected = {
      {Tape(), false}, {Conv(), false}, {Tape(), true},
      {Calc(), true},  {Conv(), true},
  };
  EXPECT_EQ(t_.platform.topmostCalls, expected);
}

TEST_F(AboutTest, SystemInformationUnavailableShowsTheMessage) {
  t_.platform.sysInfoInstalled = false;
  cmdSysInfo_Click(app_);
  ASSERT_EQ(t_.platform.messages.size(), 1u);
  EXPECT_EQ(t_.platform.messages[0].text,
            "System Information Is Unavailable At This Time");
  EXPECT_EQ(t_.platform.messages[0].title, "Brenko Calculator");
  EXPECT_EQ(t_.platform.messages[0].buttons, MsgButtons::kOk);
  EXPECT_EQ(t_.platform.messages[0].icon, MsgIcon::kNone);
  EXPECT_EQ(t_.platform.sysInfoStarted, 0);
}

TEST_F(AboutTest, SystemInformationAvailableStartsItQuietly) {
  t_.platform.sysInfoInstalled = true;
  cmdSysInfo_Click(app_);
  EXPECT_EQ(t_.platform.sysInfoStarted, 1);
  EXPECT_TRUE(t_.platform.messages.empty());
}

TEST_F(AboutTest, HelpOpensTheManual) {
  mnuHelpContents_Click(app_);
  EXPECT_EQ(t_.platform.helpShown, std::vector<std::string>{"manual.html"});
}

TEST_F(AboutTest, RightClickOnTheWindowOpensTheContextMenu) {
  Form_MouseDown(app_, kRightButton);
  Label1_MouseDown(app_, kRightButton);
  EXPECT_EQ(t_.platform.popups,
            (std::vector<std::string>{"mnuPopup1", "mnuPopup1"}));
}

TEST_F(AboutTest, OtherButtonsOpenNothing) {
  Form_MouseDown(app_, kLeftButton);
  Label1_MouseDown(app_, kLeftButton);
  Form_MouseDown(app_, 4);
  EXPECT_TRUE(t_.platform.popups.empty());
}

TEST_F(AboutTest, DoubleClickTogglesTheKeys) {
  Form_DblClick(app_);
  EXPECT_FALSE(app_.menus.IsChecked(MenuId::ShowKeys));
  EXPECT_EQ(app_.calculator.geometry.height, 1350);
  Label1_DblClick(app_);
  EXPECT_TRUE(app_.menus.IsChecked(MenuId::ShowKeys));
  EXPECT_EQ(app_.calculator.geometry.height, 3590);
}

}  // namespace
}  // namespace brenko
