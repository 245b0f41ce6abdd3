#include "core/shell/ini_settings_store.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include "core/base/path_text.h"

namespace brenko {
namespace {

namespace fs = std::filesystem;

class IniSettingsStoreTest : public testing::Test {
 protected:
  void SetUp() override {
    std::random_device rd;
    folder_ =
        fs::temp_directory_path() /
        ("brenko-ini-test-" + std::to_string(rd()) + std::to_string(rd()));
    fs::create_directories(folder_);
    path_ = folder_ / "Brenko" / "Brenko.ini";
  }
  void TearDown() override {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }
  void WriteFile(const std::string& text) {
    fs::create_directories(path_.parent_path());
    std::ofstream out(path_, std::ios::binary);
    out << text;
  }
  std::string ReadFile() const {
    std::ifstream in(path_, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  }

  fs::path folder_;
  fs::path path_;
};

TEST_F(IniSettingsStoreTest, MissingFileBehavesAsEmpty) {
  IniSettingsStore store(path_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), std::nullopt);
  EXPECT_EQ(store.GetSetting("Settings", "Zoom", "0"), "0");
  EXPECT_FALSE(fs::exists(path_));
}

TEST_F(IniSettingsStoreTest, ReadsSectionsAndKeys) {
  WriteFile("[Colors]\nCalcBackground= 8421376\n\n[Settings]\nZoom=True\n");
  IniSettingsStore store(path_);
  EXPECT_EQ(store.Get("Colors", "CalcBackground"), " 8421376");
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
}

TEST_F(IniSettingsStoreTest, KeyWrittenWithSmallGIsFoundWithCapitalG) {
  WriteFile("[Colors]\nCalcBackground= 255\n");
  IniSettingsStore store(path_);
  EXPECT_EQ(store.Get("Colors", "CalcBackGround"), " 255");
  EXPECT_EQ(store.Get("COLORS", "calcbackground"), " 255");
}

TEST_F(IniSettingsStoreTest, SaveUnderOtherCaseReplacesTheSameValue) {
  IniSettingsStore store(path_);
  store.Save("Colors", "ReadoutBackground", " 1");
  store.Save("colors", "ReadoutBackGround", " 2");
  EXPECT_EQ(store.Get("Colors", "readoutbackground"), " 2");
  EXPECT_EQ(store.Text(), "[Colors]\nReadoutBackground= 2\n");
}

TEST_F(IniSettingsStoreTest, NothingIsWrittenBeforeFlush) {
  IniSettingsStore store(path_);
  store.Save("Settings", "Zoom", "True");
  EXPECT_FALSE(fs::exists(path_));
  EXPECT_TRUE(store.Flush());
  EXPECT_EQ(ReadFile(), "[Settings]\nZoom=True\n");
}

TEST_F(IniSettingsStoreTest, FlushWritesSectionsInTheOrderFirstWritten) {
  IniSettingsStore store(path_);
  store.Save("Colors", "CalcBackground", " 8421376");
  store.Save("Settings", "CalcTop", "6305");
  store.Save("Colors", "ReadoutBackground", " 8454143");
  ASSERT_TRUE(store.Flush());
  EXPECT_EQ(ReadFile(),
            "[Colors]\nCalcBackground= 8421376\nReadoutBackground= 8454143\n"
            "\n[Settings]\nCalcTop=6305\n");
}

TEST_F(IniSettingsStoreTest, FlushCreatesTheFolderAndLeavesNoTemporaryFile) {
  IniSettingsStore store(path_);
  store.Save("Settings", "Zoom", "False");
  ASSERT_TRUE(store.Flush());
  int files = 0;
  for (const auto& entry : fs::directory_iterator(path_.parent_path())) {
    (void)entry;
    ++files;
  }
  EXPECT_EQ(files, 1);
}

TEST_F(IniSettingsStoreTest, FlushReplacesTheOldFileAndKeepsOtherKeys) {
  WriteFile("[Settings]\nZoom=False\nMDITop=99\n");
  IniSettingsStore store(path_);
  store.Save("Settings", "Zoom", "True");
  ASSERT_TRUE(store.Flush());
  EXPECT_EQ(ReadFile(), "[Settings]\nZoom=True\nMDITop=99\n");
  IniSettingsStore again(path_);
  EXPECT_EQ(again.Get("Settings", "Zoom"), "True");
}

TEST_F(IniSettingsStoreTest, WindowsLineEndsAndByteOrderMarkAreRead) {
  WriteFile("\xEF\xBB\xBF[Settings]\r\nZoom=True\r\n");
  IniSettingsStore store(path_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
}

TEST_F(IniSettingsStoreTest, GarbledLinesArePassedOver) {
  WriteFile("Orphan=1\n[Settings\nnonsense\n=novalue\n[Settings]\nZoom=True\n");
  IniSettingsStore store(path_);
  EXPECT_EQ(store.Get("Settings", "Orphan"), std::nullopt);
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
}

TEST_F(IniSettingsStoreTest, ABinaryFileBehavesAsEmpty) {
  WriteFile(std::string("[Settings]\nZoom=True\n\0\x01\x02", 24));
  IniSettingsStore store(path_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), std::nullopt);
}

TEST_F(IniSettingsStoreTest, AFolderInPlaceOfTheFileBehavesAsEmpty) {
  fs::create_directories(path_);
  IniSettingsStore store(path_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), std::nullopt);
  store.Save("Settings", "Zoom", "True");
  EXPECT_FALSE(store.Flush());
}

TEST_F(IniSettingsStoreTest, AnUnwritableFolderFailsQuietly) {
  WriteFile("");
  IniSettingsStore store(path_ / "below-a-file.ini");
  store.Save("Settings", "Zoom", "True");
  EXPECT_FALSE(store.Flush());
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
}

TEST_F(IniSettingsStoreTest, ALineBreakInAValueCannotSplitTheFile) {
  IniSettingsStore store(path_);
  store.Save("Settings", "Name", "a\nb\rc");
  ASSERT_TRUE(store.Flush());
  IniSettingsStore again(path_);
  EXPECT_EQ(again.Get("Settings", "Name"), "a b c");
}

// A user whose name is not in the local code page still keeps settings: the
// folder of the settings file carries it on Windows.
TEST_F(IniSettingsStoreTest, AFolderWithLettersBeyondAsciiKeepsTheSettings) {
  const fs::path file =
      folder_ / PathFromText("Jürgen Ярд") / "Brenko" / "Brenko.ini";
  IniSettingsStore store(file);
  store.Save("Settings", "Zoom", "True");
  ASSERT_TRUE(store.Flush());
  EXPECT_TRUE(fs::is_regular_file(file));
  IniSettingsStore again(file);
  EXPECT_EQ(again.Get("Settings", "Zoom"), "True");
  EXPECT_EQ(again.Path(), file);
}

}  // namespace
}  // namespace brenko
