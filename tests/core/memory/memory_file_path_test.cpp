// Opening a memory file named from outside the program (the command line, a
// file manager): no dialog, no question, and a plain message when the file
// cannot be read.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/commands/memory_file_handlers.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_file.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

namespace brenko {
namespace {

namespace fs = std::filesystem;
using testing_support::TestProgram;

class MemoryFilePathTest : public ::testing::Test, public TestProgram {
 protected:
  std::string Path(const std::string& name) const {
    return scratch_.Path(name).string();
  }
  void Write(const std::string& name, const std::string& content) const {
    scratch_.Write(name, content);
  }

  testing_support::ScratchFolder scratch_{"brenko-mempath-"};
};

constexpr const char* kKitchen =
    " 300 \r\n 450 \r\n 7000 \r\n 4200 \r\n 2\r\n 2400\r\n"
    "Kitchen floor\r\n 12'- 7 3/16\" \r\nHall\r\n 3'- 0\" sq. \r\n";

TEST_F(MemoryFilePathTest, OpensWithoutDialogOrQuestion) {
  Write("kitchen.mem", kKitchen);
  EXPECT_TRUE(OpenMemoryFilePath(app, Path("kitchen.mem")));
  EXPECT_TRUE(platform.fileDialogs.empty());
  EXPECT_TRUE(platform.messages.empty());
  ASSERT_EQ(app.memory.Forms().size(), 2u);
  EXPECT_EQ(Memory(1).caption, "Kitchen floor");
  EXPECT_EQ(Memory(1).label1.caption, " 12'- 7 3/16\" ");
  EXPECT_EQ(Memory(2).caption, "Hall");
  EXPECT_EQ(Memory(2).label1.caption, " 3'- 0\" sq. ");
  EXPECT_EQ(Memory(2).geometry.width, 2400);
  EXPECT_EQ(app.mainFrame.caption, "kitchen");
  EXPECT_TRUE(app.mainFrame.visible);
}

TEST_F(MemoryFilePathTest, TheFileBecomesTheCurrentFile) {
  Write("kitchen.mem", kKitchen);
  OpenMemoryFilePath(app, Path("kitchen.mem"));
  EXPECT_EQ(app.memory.filePath, Path("kitchen.mem"));
  // Save writes back to it without asking where.
  Memory(2).label1.caption = " 4'- 0\" sq. ";
  mnuSave_Click(app);
  EXPECT_TRUE(platform.fileDialogs.empty());
  std::ifstream in(Path("kitchen.mem"), std::ios::binary);
  const std::string saved(std::istreambuf_iterator<char>(in), {});
  EXPECT_NE(saved.find("Hall\r\n 4'- 0\" sq. \r\n"), std::string::npos);
}

TEST_F(MemoryFilePathTest, MissingFileIsReportedAndChangesNothing) {
  EXPECT_FALSE(OpenMemoryFilePath(app, Path("gone.mem")));
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text,
            "Could not open gone.mem: the file does not exist.");
  EXPECT_EQ(platform.messages[0].title, "Error");
  EXPECT_EQ(platform.messages[0].buttons, MsgButtons::kOk);
  EXPECT_TRUE(app.memory.filePath.empty());
  EXPECT_TRUE(app.memory.Forms().empty());
  EXPECT_FALSE(app.mainFrame.visible);
  EXPECT_EQ(app.mainFrame.caption, "Brenko Calculator");
}

TEST_F(MemoryFilePathTest, FileInAMissingFolderDoesNotExist) {
  EXPECT_EQ(MemoryFileOpenProblem(Path("no/such/folder/a.mem")),
            "the file does not exist");
}

TEST_F(MemoryFilePathTest, AFileUsedAsAFolderDoesNotExist) {
  Write("plain.mem", kKitchen);
  EXPECT_EQ(MemoryFileOpenProblem(Path("plain.mem/inner.mem")),
            "the file does not exist");
}

TEST_F(MemoryFilePathTest, FolderIsReportedAsAFolder) {
  fs::create_directories(Path("jobs.mem"));
  EXPECT_FALSE(OpenMemoryFilePath(app, Path("jobs.mem")));
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text,
            "Could not open jobs.mem: it is a folder.");
}

TEST_F(MemoryFilePathTest, UnreadableFileIsPermissionDenied) {
  Write("locked.mem", kKitchen);
  fs::permissions(Path("locked.mem"), fs::perms::none);
  // The super-user (and a system without Unix permissions) reads the file
  // anyway, so the refusal cannot be met there.
  if (std::ifstream(Path("locked.mem"))) {
    GTEST_SKIP() << "this user can read a file without read permission";
  }
  EXPECT_FALSE(OpenMemoryFilePath(app, Path("locked.mem")));
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text,
            "Could not open locked.mem: permission denied.");
}

TEST_F(MemoryFilePathTest, ReadableFileHasNoProblem) {
  Write("ok.mem", kKitchen);
  EXPECT_EQ(MemoryFileOpenProblem(Path("ok.mem")), std::nullopt);
}

TEST_F(MemoryFilePathTest, AShortFileOpensQuietlyAsFileOpenDoes) {
  Write("short.mem", " 300 \r\n 450 \r\n 7000 \r\n");
  EXPECT_TRUE(OpenMemoryFilePath(app, Path("short.mem")));
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(app.memory.filePath, Path("short.mem"));
  EXPECT_TRUE(app.memory.Forms().empty());
}

TEST(OpenFailureWordsTest, SystemErrorsInPlainWords) {
  const auto words = [](std::errc code) {
    return OpenFailureReason(std::make_error_code(code));
  };
  EXPECT_EQ(words(std::errc::no_such_file_or_directory),
            "the file does not exist");
  EXPECT_EQ(words(std::errc::not_a_directory), "the file does not exist");
  EXPECT_EQ(words(std::errc::permission_denied), "permission denied");
  EXPECT_EQ(words(std::errc::operation_not_permitted), "permission denied");
  EXPECT_EQ(words(std::errc::is_a_directory), "it is a folder");
  // Anything else in the system's own words, starting small as the end of
  // a sentence does.
  EXPECT_EQ(words(std::errc::io_error), "input/output error");
}

TEST(OpenFailureWordsTest, MessageNamesTheFileWithoutItsFolder) {
  EXPECT_EQ(OpenFailureMessage("/home/ann/jobs/deck.mem", "permission denied"),
            "Could not open deck.mem: permission denied.");
  EXPECT_EQ(OpenFailureMessage("deck.mem", "the file does not exist"),
            "Could not open deck.mem: the file does not exist.");
}

}  // namespace
}  // namespace brenko
