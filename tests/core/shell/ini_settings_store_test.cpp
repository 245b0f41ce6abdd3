#include "core/shell/ini_settings_store.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/base/path_text.h"
#include "os/system_file_ops.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

namespace brenko {
namespace {

namespace fs = std::filesystem;

class IniSettingsStoreTest : public testing::Test {
 protected:
  static inline const fs::path kFile = fs::path("Brenko") / "Brenko.ini";

  void WriteFile(const std::string& text) { scratch_.Write(kFile, text); }
  std::string ReadFile() const { return scratch_.Read(kFile); }

  os::SystemFileOps files_;
  testing_support::ScratchFolder scratch_{"brenko-ini-test-"};
  const fs::path path_ = scratch_.Path(kFile);
};

TEST_F(IniSettingsStoreTest, MissingFileBehavesAsEmpty) {
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), std::nullopt);
  EXPECT_EQ(store.GetSetting("Settings", "Zoom", "0"), "0");
  EXPECT_FALSE(fs::exists(path_));
}

TEST_F(IniSettingsStoreTest, ReadsSectionsAndKeys) {
  WriteFile("[Colors]\nCalcBackground= 8421376\n\n[Settings]\nZoom=True\n");
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.Get("Colors", "CalcBackground"), " 8421376");
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
}

TEST_F(IniSettingsStoreTest, KeyWrittenWithSmallGIsFoundWithCapitalG) {
  WriteFile("[Colors]\nCalcBackground= 255\n");
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.Get("Colors", "CalcBackGround"), " 255");
  EXPECT_EQ(store.Get("COLORS", "calcbackground"), " 255");
}

TEST_F(IniSettingsStoreTest, SaveUnderOtherCaseReplacesTheSameValue) {
  IniSettingsStore store(path_, files_);
  store.Save("Colors", "ReadoutBackground", " 1");
  store.Save("colors", "ReadoutBackGround", " 2");
  EXPECT_EQ(store.Get("Colors", "readoutbackground"), " 2");
  EXPECT_EQ(store.Text(), "[Colors]\nReadoutBackground= 2\n");
}

TEST_F(IniSettingsStoreTest, NothingIsWrittenBeforeFlush) {
  IniSettingsStore store(path_, files_);
  store.Save("Settings", "Zoom", "True");
  EXPECT_FALSE(fs::exists(path_));
  EXPECT_TRUE(store.Flush());
  EXPECT_EQ(ReadFile(), "[Settings]\nZoom=True\n");
}

TEST_F(IniSettingsStoreTest, FlushWritesSectionsInTheOrderFirstWritten) {
  IniSettingsStore store(path_, files_);
  store.Save("Colors", "CalcBackground", " 8421376");
  store.Save("Settings", "CalcTop", "6305");
  store.Save("Colors", "ReadoutBackground", " 8454143");
  ASSERT_TRUE(store.Flush());
  EXPECT_EQ(ReadFile(),
            "[Colors]\nCalcBackground= 8421376\nReadoutBackground= 8454143\n"
            "\n[Settings]\nCalcTop=6305\n");
}

TEST_F(IniSettingsStoreTest, FlushCreatesTheFolderAndLeavesNoTemporaryFile) {
  IniSettingsStore store(path_, files_);
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
  IniSettingsStore store(path_, files_);
  store.Save("Settings", "Zoom", "True");
  ASSERT_TRUE(store.Flush());
  EXPECT_EQ(ReadFile(), "[Settings]\nZoom=True\nMDITop=99\n");
  IniSettingsStore again(path_, files_);
  EXPECT_EQ(again.Get("Settings", "Zoom"), "True");
}

TEST_F(IniSettingsStoreTest, WindowsLineEndsAndByteOrderMarkAreRead) {
  WriteFile("\xEF\xBB\xBF[Settings]\r\nZoom=True\r\n");
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
}

// Found by the settings fuzz target: a file that began with two byte order
// marks had a kept first line "<mark>[Settings]" that came back as a
// section header once the writing had dropped the file's own mark, taking
// the kept lines below it in as keys.
TEST_F(IniSettingsStoreTest, AKeptLineBeginningWithAByteOrderMarkStaysKept) {
  const std::string mark = "\xEF\xBB\xBF";
  WriteFile(mark + mark + "[Settings]\nShowKeys=True\n");
  {
    IniSettingsStore store(path_, files_);
    EXPECT_EQ(store.Get("Settings", "ShowKeys"), std::nullopt);
    store.Save("Settings", "Zoom", "75");
    ASSERT_TRUE(store.Flush());
  }
  EXPECT_EQ(ReadFile(), mark + mark +
                            "[Settings]\nShowKeys=True\n\n[Settings]\n"
                            "Zoom=75\n");
  IniSettingsStore again(path_, files_);
  EXPECT_EQ(again.Get("Settings", "ShowKeys"), std::nullopt);
  EXPECT_EQ(again.Get("Settings", "Zoom"), "75");
}

TEST_F(IniSettingsStoreTest, GarbledLinesArePassedOver) {
  WriteFile("Orphan=1\n[Settings\nnonsense\n=novalue\n[Settings]\nZoom=True\n");
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.Get("Settings", "Orphan"), std::nullopt);
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
}

TEST_F(IniSettingsStoreTest, ABinaryFileBehavesAsEmpty) {
  WriteFile(std::string("[Settings]\nZoom=True\n\0\x01\x02", 24));
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), std::nullopt);
}

TEST_F(IniSettingsStoreTest, AFolderInPlaceOfTheFileBehavesAsEmpty) {
  fs::create_directories(path_);
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), std::nullopt);
  store.Save("Settings", "Zoom", "True");
  EXPECT_FALSE(store.Flush());
}

TEST_F(IniSettingsStoreTest, AnUnwritableFolderFailsQuietly) {
  WriteFile("");
  IniSettingsStore store(path_ / "below-a-file.ini", files_);
  store.Save("Settings", "Zoom", "True");
  EXPECT_FALSE(store.Flush());
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
}

TEST_F(IniSettingsStoreTest, ALineBreakInAValueCannotSplitTheFile) {
  IniSettingsStore store(path_, files_);
  store.Save("Settings", "Name", "a\nb\rc");
  ASSERT_TRUE(store.Flush());
  IniSettingsStore again(path_, files_);
  EXPECT_EQ(again.Get("Settings", "Name"), "a b c");
}

// A user whose name is not in the local code page still keeps settings: the
// folder of the settings file carries it on Windows.
TEST_F(IniSettingsStoreTest, AFolderWithLettersBeyondAsciiKeepsTheSettings) {
  const fs::path file =
      scratch_.Folder() / PathFromText("Jürgen Ярд") / "Brenko" / "Brenko.ini";
  IniSettingsStore store(file, files_);
  store.Save("Settings", "Zoom", "True");
  ASSERT_TRUE(store.Flush());
  EXPECT_TRUE(fs::is_regular_file(file));
  IniSettingsStore again(file, files_);
  EXPECT_EQ(again.Get("Settings", "Zoom"), "True");
  EXPECT_EQ(again.Path(), file);
}

TEST_F(IniSettingsStoreTest, ACarriageReturnAloneEndsALine) {
  WriteFile("[Settings]\rZoom=True\r\r[Colors]\rConverter= 5\r\n");
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
  EXPECT_EQ(store.Get("Colors", "Converter"), " 5");
}

TEST_F(IniSettingsStoreTest, CommentsAndUnknownKeysAreKept) {
  WriteFile(
      "; mine\nStray line\n[Settings]\n# about zoom\nZoom=False\n"
      "Mine=1\nnonsense\n[Other]\nA = b \n");
  IniSettingsStore store(path_, files_);
  store.Save("Settings", "Zoom", "True");
  store.Save("Settings", "MDITop", "99");
  ASSERT_TRUE(store.Flush());
  EXPECT_EQ(ReadFile(),
            "; mine\nStray line\n\n[Settings]\n# about zoom\nZoom=True\n"
            "Mine=1\nnonsense\nMDITop=99\n\n[Other]\nA= b \n");
}

// The keys the program writes, with values as it writes them.
const std::vector<std::pair<std::string, std::string>>& ProgramKeys() {
  static const std::vector<std::pair<std::string, std::string>> keys = {
      {"Colors", " 8421376"}, {"Settings", "6305"},  {"Settings", "-30"},
      {"Settings", "True"},   {"Settings", "False"}, {"Colors", " 0"}};
  return keys;
}

// Saves the program's keys over whatever `text` held, writes, reads back.
void ExpectProgramKeysReadBack(const fs::path& path, FileOps& files,
                               const std::string& text) {
  {
    std::ofstream out(path, std::ios::binary);
    out << text;
  }
  const std::vector<std::string> names = {"CalcBackground", "CalcTop",
                                          "CalcLeft",       "Zoom",
                                          "ShowTape",       "ConvResult"};
  {
    IniSettingsStore store(path, files);
    for (std::size_t i = 0; i < names.size(); ++i) {
      store.Save(ProgramKeys()[i].first, names[i], ProgramKeys()[i].second);
    }
    ASSERT_TRUE(store.Flush());
  }
  IniSettingsStore again(path, files);
  for (std::size_t i = 0; i < names.size(); ++i) {
    ASSERT_EQ(again.Get(ProgramKeys()[i].first, names[i]),
              ProgramKeys()[i].second)
        << names[i] << " after " << testing::PrintToString(text);
  }
  // What was kept is kept the same way at the next write.
  std::ifstream in(path, std::ios::binary);
  const std::string written(std::istreambuf_iterator<char>(in), {});
  ASSERT_EQ(again.Text(), written) << testing::PrintToString(text);
}

TEST_F(IniSettingsStoreTest, WrittenKeysReadBackWhateverTheFileHeld) {
  fs::create_directories(path_.parent_path());
  for (const std::string& text :
       {std::string("junk\r[Junk]\nCalcTop=1\r\n"),
        std::string("[Settings]\nOld=x\r\r\n[Colors\r]\n"),
        std::string("[]\nZoom=1\n[ settings ]\nzoom=0\n"),
        std::string("[Settings]\n[x=]\n;c\n=v\n[Colors]]\n"),
        std::string("Zoom=True\n\xEF\xBB\xBF[Settings]\n"),
        std::string("\xEF\xBB\xBF\xEF\xBB\xBF[Settings]\nShowKeys=True\n")}) {
    ExpectProgramKeysReadBack(path_, files_, text);
  }
  std::mt19937 random(7);
  const std::string alphabet = "[]=;# \t\r\nSsZzX1";
  for (int round = 0; round < 400; ++round) {
    std::string text;
    const int length = static_cast<int>(random() % 60);
    for (int i = 0; i < length; ++i)
      text += alphabet[random() % alphabet.size()];
    // Now and then a name the program uses.
    if (random() % 2 == 0) text.insert(random() % (text.size() + 1), "zoom=");
    if (random() % 2 == 0)
      text.insert(random() % (text.size() + 1), "[settings]");
    ExpectProgramKeysReadBack(path_, files_, text);
  }
}

TEST_F(IniSettingsStoreTest, ANulByteSetsTheFileAsideOnce) {
  const std::string old("[Settings]\nZoom=True\n\0", 22);
  WriteFile(old);
  {
    IniSettingsStore store(path_, files_);
    EXPECT_EQ(store.Get("Settings", "Zoom"), std::nullopt);
    EXPECT_EQ(store.ReadProblem(),
              "The settings could not be read (it is not a text file). The "
              "program starts with its defaults; the old file was kept as " +
                  store.BadPath().string() + ".");
    store.Save("Settings", "Zoom", "False");
    ASSERT_TRUE(store.Flush());
  }
  std::ifstream bad(fs::path(path_.string() + ".bad"), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(bad), {}), old);
  EXPECT_EQ(ReadFile(), "[Settings]\nZoom=False\n");
  IniSettingsStore again(path_, files_);
  EXPECT_EQ(again.ReadProblem(), "");
}

TEST_F(IniSettingsStoreTest, ANewBadFileReplacesAnOlderOne) {
  WriteFile("older\x01");
  { IniSettingsStore store(path_, files_); }
  WriteFile("newer\x02");
  IniSettingsStore store(path_, files_);
  std::ifstream bad(fs::path(path_.string() + ".bad"), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(bad), {}), "newer\x02");
}

TEST_F(IniSettingsStoreTest, AFileOverAMegabyteIsNotRead) {
  std::string text = "[Settings]\nZoom=True\n";
  text += std::string(kMostSettingsBytes, ';');
  WriteFile(text);
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), std::nullopt);
  EXPECT_NE(store.ReadProblem().find("(the file is too large)"),
            std::string::npos);
  EXPECT_TRUE(fs::exists(store.BadPath()));
}

TEST_F(IniSettingsStoreTest, AFileOfExactlyAMegabyteIsRead) {
  std::string text = "[Settings]\nZoom=True\n";
  text += std::string(kMostSettingsBytes - text.size(), ';');
  WriteFile(text);
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
  EXPECT_EQ(store.ReadProblem(), "");
}

// The file is read in pieces of 64 KiB; a line across the joins reads whole.
TEST_F(IniSettingsStoreTest, KeysAcrossTheReadingPiecesReadWhole) {
  std::string text = "[Settings]\n";
  text += std::string(64 * 1024 - text.size() - 4, ';') + "\n";
  text += "Zoom=True\n";  // begins 3 bytes before the first join
  text += std::string(64 * 1024, ';') + "\n[Colors]\nConvResult=12";
  WriteFile(text);
  IniSettingsStore store(path_, files_);
  EXPECT_EQ(store.ReadProblem(), "");
  EXPECT_EQ(store.Get("Settings", "Zoom"), "True");
  EXPECT_EQ(store.Get("Colors", "ConvResult"), "12");
}

TEST_F(IniSettingsStoreTest, TheStartThatFoundABadFileSaysSo) {
  WriteFile(std::string("[Settings]\n\0", 12));
  IniSettingsStore store(path_, files_);
  testing_support::TestProgram program(store);
  program.Start();
  ASSERT_EQ(program.platform.messages.size(), 1u);
  EXPECT_EQ(program.platform.messages[0].text, store.ReadProblem());
  EXPECT_EQ(program.platform.messages[0].title, "Error");
}

TEST_F(IniSettingsStoreTest, AGoodFileStartsWithoutAWord) {
  WriteFile("[Settings]\nZoom=True\n");
  IniSettingsStore store(path_, files_);
  testing_support::TestProgram program(store);
  program.Start();
  EXPECT_TRUE(program.platform.messages.empty());
}

#ifndef _WIN32
TEST_F(IniSettingsStoreTest, AnUnreadableFileIsSetAside) {
  WriteFile("[Settings]\nZoom=True\n");
  fs::permissions(path_, fs::perms::none);
  {
    std::ifstream probe(path_);
    if (probe) GTEST_SKIP() << "this user reads any file";
  }
  IniSettingsStore store(path_, files_);
  EXPECT_NE(store.ReadProblem().find("(it cannot be read)"), std::string::npos);
  EXPECT_TRUE(fs::exists(store.BadPath()));
}

TEST_F(IniSettingsStoreTest, ASymlinkedSettingsFileStaysALink) {
  fs::create_directories(path_.parent_path());
  const fs::path real = scratch_.Folder() / "dotfiles.ini";
  {
    std::ofstream out(real);
    out << "[Settings]\nZoom=False\n";
  }
  fs::permissions(real, static_cast<fs::perms>(0600));
  fs::create_symlink(real, path_);
  IniSettingsStore store(path_, files_);
  store.Save("Settings", "Zoom", "True");
  ASSERT_TRUE(store.Flush());
  EXPECT_TRUE(fs::is_symlink(path_));
  EXPECT_EQ(ReadFile(), "[Settings]\nZoom=True\n");
  EXPECT_EQ(fs::status(real).permissions() & fs::perms::mask,
            static_cast<fs::perms>(0600));
}
#endif

}  // namespace
}  // namespace brenko
