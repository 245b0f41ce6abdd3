// The memory file commands as the user meets them: the open dialog, the
// question before memories are replaced, which windows a save writes, and
// what a load takes from the count and width lines.

#include <gtest/gtest.h>

#include <filesystem>

#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_file.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

namespace brenko {
namespace {

namespace fs = std::filesystem;
using testing_support::TestProgram;

class MemoryFileDialogTest : public ::testing::Test, public TestProgram {
 protected:
  std::string Path(const std::string& name) const {
    return scratch_.Path(name).string();
  }
  void Write(const std::string& name, const std::string& content) const {
    scratch_.Write(name, content);
  }
  std::string Read(const std::string& name) const {
    return scratch_.Read(name);
  }
  void AnswerFile(const std::string& name) {
    Queue(QueuedAnswer::Kind::kFile, Path(name));
  }

  testing_support::ScratchFolder scratch_{"brenko-memdialog-"};
};

TEST_F(MemoryFileDialogTest,
       DialogsStartInTheDocumentsNeverInTheProgramFolder) {
  app.shell.helpFile = "/opt/brenko/manual.html";
  app.shell.documentsFolder = "/home/ann/Documents";
  mnuOpen_Click(app);  // cancelled
  ASSERT_EQ(platform.fileDialogs.size(), 1u);
  EXPECT_EQ(platform.fileDialogs[0].initialFolder, "/home/ann/Documents");
  EXPECT_EQ(platform.fileDialogs[0].filter,
            "Memory (*.mem)|*.mem|all files (*.*)|*.*");
  EXPECT_EQ(platform.fileDialogs[0].defaultExtension, "mem");
}

TEST_F(MemoryFileDialogTest, DialogsStartInTheFolderLastUsed) {
  store.Save("Settings", "MemoryFolder", "/srv/jobs");
  mnuOpen_Click(app);  // cancelled
  NewMemory_Click(app);
  mnuSaveAs_Click(app);  // cancelled
  ASSERT_EQ(platform.fileDialogs.size(), 2u);
  EXPECT_EQ(platform.fileDialogs[0].initialFolder, "/srv/jobs");
  EXPECT_EQ(platform.fileDialogs[1].initialFolder, "/srv/jobs");
}

TEST_F(MemoryFileDialogTest, ASavedFileMakesItsFolderTheStartAndIsRemembered) {
  app.shell.documentsFolder = "/home/ann/Documents";
  NewMemory_Click(app);
  fs::create_directories(scratch_.Folder() / "jobs");
  AnswerFile("jobs/a.mem");
  mnuSaveAs_Click(app);
  mnuSaveAs_Click(app);  // cancelled
  ASSERT_EQ(platform.fileDialogs.size(), 2u);
  EXPECT_EQ(platform.fileDialogs[0].initialFolder, "/home/ann/Documents");
  EXPECT_EQ(platform.fileDialogs[1].initialFolder,
            (scratch_.Folder() / "jobs").string());
  EXPECT_EQ(Setting("Settings", "MemoryFolder"),
            (scratch_.Folder() / "jobs").string());
}

TEST_F(MemoryFileDialogTest, AnOpenedFileMakesItsFolderTheOneRemembered) {
  Write("b.mem", " 0 \r\n 0 \r\n 9000 \r\n 6000 \r\n 0\r\n 1935\r\n");
  AnswerFile("b.mem");
  mnuOpen_Click(app);
  EXPECT_EQ(Setting("Settings", "MemoryFolder"), scratch_.Folder().string());
}

TEST_F(MemoryFileDialogTest, AFailedSaveIsNotRemembered) {
  NewMemory_Click(app);
  AnswerFile("missing-folder/c.mem");
  mnuSaveAs_Click(app);
  EXPECT_EQ(Setting("Settings", "MemoryFolder"), "<none>");
  EXPECT_EQ(platform.messages.back().text,
            "Could not save c.mem: the folder does not exist.");
}

TEST(DialogStartFolderTest, CurrentFileThenLastFolderThenDocuments) {
  EXPECT_EQ(DialogStartFolder("/a/b/c.mem", "/last", "/docs"), "/a/b");
  EXPECT_EQ(DialogStartFolder("/c.mem", "/last", "/docs"), "/");
  EXPECT_EQ(DialogStartFolder("", "/last", "/docs"), "/last");
  EXPECT_EQ(DialogStartFolder("c.mem", "/last", "/docs"), "/last");
  EXPECT_EQ(DialogStartFolder("", "", "/docs"), "/docs");
}

// The question depends on the numbering, not on the open windows: memories
// made and closed again since the last erase still make it ask.
TEST_F(MemoryFileDialogTest, OpenAsksWhenEveryMemoryWasClosedAgain) {
  NewMemory_Click(app);
  MemoryForm_Form_Unload(app, 1);
  ASSERT_TRUE(app.memory.Forms().empty());
  mnuOpen_Click(app);  // the question is cancelled
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text,
            "Existing memory and memory tapes will be erased. Are you sure "
            "you want to continue?");
  EXPECT_TRUE(platform.fileDialogs.empty());
}

TEST_F(MemoryFileDialogTest, OpenAfterEraseAllAsksNothing) {
  NewMemory_Click(app);
  EraseMemory_Click(app);
  mnuOpen_Click(app);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(platform.fileDialogs.size(), 1u);
}

TEST_F(MemoryFileDialogTest, SaveWritesOnlyTheMemoriesStillOpen) {
  NewMemory_Click(app);
  NewMemory_Click(app);
  NewMemory_Click(app);
  Memory(3).label1.caption = " 7\" ";
  MemoryForm_Form_Unload(app, 1);
  AnswerFile("open.mem");
  mnuSaveAs_Click(app);
  const std::string content = Read("open.mem");
  const std::string tail =
      " 2\r\n 1935\r\nMemory 2\r\n0.\r\nMemory 3\r\n 7\" \r\n";
  ASSERT_GE(content.size(), tail.size());
  EXPECT_EQ(content.substr(content.size() - tail.size()), tail);
}

TEST_F(MemoryFileDialogTest, SaveAfterEveryMemoryClosedWritesNothing) {
  NewMemory_Click(app);
  MemoryForm_Form_Unload(app, 1);
  app.memory.filePath = Path("none.mem");
  mnuSave_Click(app);
  EXPECT_FALSE(fs::exists(Path("none.mem")));
  EXPECT_TRUE(platform.fileDialogs.empty());
}

TEST_F(MemoryFileDialogTest, CountZeroStillTakesTheWidthLine) {
  Write("zero.mem", " 300 \r\n 400 \r\n 5000 \r\n 3000 \r\n 0\r\n 2500\r\n");
  AnswerFile("zero.mem");
  mnuOpen_Click(app);
  EXPECT_TRUE(app.memory.Forms().empty());
  EXPECT_EQ(app.memory.sharedWidth, 2500);
  EXPECT_EQ(app.mainFrame.geometry, (Rect{300, 400, 5000, 3000}));
}

TEST_F(MemoryFileDialogTest, EveryLoadedMemoryTakesTheWidthLine) {
  Write("wide.mem",
        " 0 \r\n 0 \r\n 9000 \r\n 3000 \r\n 3\r\n 2600\r\n"
        "A\r\n0.\r\nB\r\n0.\r\nC\r\n0.\r\n");
  AnswerFile("wide.mem");
  mnuOpen_Click(app);
  ASSERT_EQ(app.memory.Forms().size(), 3u);
  for (const auto& form : app.memory.Forms()) {
    EXPECT_EQ(form->geometry.width, 2600) << form->caption;
    EXPECT_EQ(form->label1.rect.width, 2600 - kMemoryLabelMargin);
  }
  EXPECT_EQ(app.memory.sharedWidth, 2600);
  EXPECT_EQ(app.memory.Names()[3], "C");
  EXPECT_EQ(app.tapes.TapeNames()[2], "B");
}

// A number line may carry more than its number: reading stops at the first
// character that cannot continue it, and blanks before it are skipped.
TEST_F(MemoryFileDialogTest, NumberLinesAreReadByTheirLeadingNumber) {
  Write("loose.mem",
        "   250 twips\r\n 260x\r\n 5000.5\r\n 3001.5\r\n 1 memory\r\n"
        " 2100.5 wide\r\nA\r\n0.\r\n");
  AnswerFile("loose.mem");
  mnuOpen_Click(app);
  EXPECT_EQ(app.mainFrame.geometry, (Rect{250, 260, 5000, 3002}));
  ASSERT_EQ(app.memory.Forms().size(), 1u);
  EXPECT_EQ(Memory(1).geometry.width, 2100);
}

TEST_F(MemoryFileDialogTest, OpenedFileBecomesTheCurrentFileForSave) {
  Write("job.mem",
        " 0 \r\n 0 \r\n 4000 \r\n 2000 \r\n 1\r\n 1935\r\nA\r\n0.\r\n");
  AnswerFile("job.mem");
  mnuOpen_Click(app);
  Memory(1).label1.caption = " 9\" ";
  mnuSave_Click(app);
  EXPECT_EQ(platform.fileDialogs.size(), 1u);  // only the open dialog
  const std::string content = Read("job.mem");
  EXPECT_NE(content.find("A\r\n 9\" \r\n"), std::string::npos) << content;
}

}  // namespace
}  // namespace brenko
