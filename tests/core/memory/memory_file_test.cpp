#include "core/memory/memory_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "core/commands/drag_handlers.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_drag.h"
#include "os/system_file_ops.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

namespace brenko {
namespace {

namespace fs = std::filesystem;
using testing_support::TestProgram;

// The real file system, except that no new file can be made.
class FailingCreate : public os::SystemFileOps {
 public:
  explicit FailingCreate(std::errc error) : error_(error) {}
  std::error_code CreateExclusive(const fs::path&, unsigned,
                                  FileHandle&) override {
    return std::make_error_code(error_);
  }

 private:
  std::errc error_;
};

class MemoryFileTest : public ::testing::Test, public TestProgram {
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
  void AnswerOk() { Queue(QueuedAnswer::Kind::kOk); }
  void AnswerFile(const std::string& name) {
    Queue(QueuedAnswer::Kind::kFile, Path(name));
  }
  void Open(const std::string& name) {
    if (app.memory.nextNumber > 1) AnswerOk();
    AnswerFile(name);
    mnuOpen_Click(app);
  }

  testing_support::ScratchFolder scratch_{"brenko-memfile-"};
};

TEST_F(MemoryFileTest, SaveAsAsksWithTitleFilterAndExtension) {
  NewMemory_Click(app);
  AnswerFile("a.mem");
  mnuSaveAs_Click(app);
  ASSERT_EQ(platform.fileDialogs.size(), 1u);
  EXPECT_EQ(platform.fileDialogs[0].title, "Save As");
  EXPECT_EQ(platform.fileDialogs[0].filter,
            "Memory (*.mem)|*.mem|all files (*.*)|*.*");
  EXPECT_EQ(platform.fileDialogs[0].defaultExtension, "mem");
  EXPECT_EQ(app.memory.filePath, Path("a.mem"));
  EXPECT_EQ(Read("a.mem"),
            " 1575 \r\n 1635 \r\n 6000 \r\n 4000 \r\n 1\r\n 1935\r\n"
            "Memory 1\r\n0.\r\n");
}

TEST_F(MemoryFileTest, SaveAsCancelledWritesNothing) {
  NewMemory_Click(app);
  mnuSaveAs_Click(app);
  EXPECT_TRUE(app.memory.filePath.empty());
  EXPECT_TRUE(fs::is_empty(scratch_.Folder()));
}

TEST_F(MemoryFileTest, SaveWithNoMemoriesKeepsTheOldFileUntouched) {
  Write("old.mem", "keep me");
  app.memory.filePath = Path("old.mem");
  mnuSave_Click(app);
  EXPECT_EQ(Read("old.mem"), "keep me");
  EXPECT_TRUE(platform.fileDialogs.empty());
}

TEST_F(MemoryFileTest, SaveWithoutAPathBehavesAsSaveAs) {
  NewMemory_Click(app);
  AnswerFile("b.mem");
  mnuSave_Click(app);
  ASSERT_EQ(platform.fileDialogs.size(), 1u);
  EXPECT_TRUE(fs::exists(Path("b.mem")));
}

TEST_F(MemoryFileTest, SaveWithAPathWritesThereWithoutAsking) {
  NewMemory_Click(app);
  app.memory.filePath = Path("c.mem");
  mnuSave_Click(app);
  EXPECT_TRUE(platform.fileDialogs.empty());
  EXPECT_TRUE(fs::exists(Path("c.mem")));
  EXPECT_FALSE(fs::exists(Path("c.mem.saving")));
}

TEST_F(MemoryFileTest, FailedSaveSaysWhyAndLeavesThePreviousFileWhole) {
  NewMemory_Click(app);
  Write("d.mem", "previous");
  app.memory.filePath = Path("d.mem");
  // The new file cannot be made: the disk is full.
  FailingCreate full(std::errc::no_space_on_device);
  platform.files = &full;
  mnuSave_Click(app);
  EXPECT_EQ(Read("d.mem"), "previous");
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text,
            "Could not save d.mem: the disk is full.");
  EXPECT_EQ(platform.messages[0].title, "Error");
  // File, Save tries again, and says so again.
  mnuSave_Click(app);
  EXPECT_EQ(platform.messages.size(), 2u);
  EXPECT_EQ(app.memory.filePath, Path("d.mem"));
}

TEST_F(MemoryFileTest, FailedSaveAsDoesNotBecomeTheCurrentFile) {
  NewMemory_Click(app);
  AnswerFile("a.mem");
  mnuSaveAs_Click(app);
  ASSERT_EQ(app.memory.filePath, Path("a.mem"));
  FailingCreate readOnly(std::errc::permission_denied);
  platform.files = &readOnly;
  AnswerFile("b.mem");
  mnuSaveAs_Click(app);
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text,
            "Could not save b.mem: the folder is read-only.");
  EXPECT_EQ(app.memory.filePath, Path("a.mem"));
  EXPECT_FALSE(fs::exists(Path("b.mem")));
  // Once the folder takes files again, File, Save writes the current file.
  platform.files = nullptr;
  Memory(1).label1.caption = " 5 ";
  mnuSave_Click(app);
  EXPECT_NE(Read("a.mem").find(" 5 \r\n"), std::string::npos);
  EXPECT_FALSE(fs::exists(Path("b.mem")));
}

TEST_F(MemoryFileTest, ARead_OnlyMemoryFileIsNotReplaced) {
  NewMemory_Click(app);
  Write("r.mem", "previous");
  fs::permissions(Path("r.mem"), fs::perms::owner_read | fs::perms::group_read |
                                     fs::perms::others_read);
  app.memory.filePath = Path("r.mem");
  mnuSave_Click(app);
  EXPECT_EQ(Read("r.mem"), "previous");
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text,
            "Could not save r.mem: the file is read-only.");
}

TEST_F(MemoryFileTest, AnOpenThatCannotReadSaysWhyAndErasesNothing) {
  NewMemory_Click(app);
  Memory(1).label1.caption = " 7 ";
  fs::create_directory(Path("folder.mem"));
  Open("folder.mem");
  ASSERT_EQ(platform.messages.size(), 2u);  // the question, then the failure
  EXPECT_EQ(platform.messages[1].text,
            "Could not open folder.mem: it is a folder.");
  EXPECT_EQ(platform.messages[1].title, "Error");
  EXPECT_EQ(Memory(1).label1.caption, " 7 ");
  EXPECT_TRUE(app.memory.filePath.empty());
}

TEST_F(MemoryFileTest, AnOpenOfAMissingFileStopsWithoutAWord) {
  NewMemory_Click(app);
  Open("missing.mem");
  EXPECT_EQ(platform.messages.size(), 1u);  // the question only
  EXPECT_EQ(app.memory.filePath, Path("missing.mem"));
  EXPECT_NE(app.memory.Find(1), nullptr);
}

TEST_F(MemoryFileTest, AFileWithAnOverlongLineIsRefusedBeforeAnythingIsErased) {
  NewMemory_Click(app);
  Write("long.mem", " 0 \r\n 0 \r\n 9000 \r\n 6000 \r\n 1\r\n 1935\r\nA\r\n" +
                        std::string(kMostMemoryLineBytes + 1, '7') + "\r\n");
  Open("long.mem");
  ASSERT_EQ(platform.messages.size(), 2u);
  EXPECT_EQ(platform.messages[1].text,
            "Could not open long.mem: a line is too long.");
  EXPECT_NE(app.memory.Find(1), nullptr);
}

TEST_F(MemoryFileTest, AFileOver64MiBIsRefusedUnread) {
  Write("huge.mem", "");
  // A sparse file: no disk is spent, no byte of it is read.
  fs::resize_file(Path("huge.mem"), kMostMemoryFileBytes + 1);
  Open("huge.mem");
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text,
            "Could not open huge.mem: the file is too large.");
  EXPECT_TRUE(app.memory.filePath.empty());
}

TEST_F(MemoryFileTest, RoundTripKeepsNamesAndValuesByteForByte) {
  QueueText("North  wall ");
  NamedMemory_Click(app);
  NewMemory_Click(app);
  NewMemory_Click(app);
  app.calculator.Readout().caption = " 12'- 7 3/16\"";
  MemoryForm_Label1_DragDrop(app, 1, {DragSource::kReadout, 0},
                             MemoryMidpoint(Memory(1).label1) + 10, 0);
  Memory(3).label1.caption = " 2'- 100 1/2\" sq. ";
  ASSERT_EQ(Memory(1).label1.caption, " 12'- 7 3/16\" ");
  AnswerFile("round.mem");
  mnuSaveAs_Click(app);
  const std::string saved = Read("round.mem");

  EraseMemory_Click(app);
  Open("round.mem");
  ASSERT_EQ(app.memory.Forms().size(), 3u);
  EXPECT_EQ(Memory(1).caption, "North  wall ");
  EXPECT_EQ(Memory(1).label1.caption, " 12'- 7 3/16\" ");
  EXPECT_EQ(Memory(2).caption, "Memory 2");
  EXPECT_EQ(Memory(2).label1.caption, "0.");
  EXPECT_EQ(Memory(3).label1.caption, " 2'- 100 1/2\" sq. ");
  EXPECT_EQ(Memory(3).label1.tag, "memory 3");
  EXPECT_EQ(app.memory.Names()[1], "North  wall ");

  AnswerFile("again.mem");
  mnuSaveAs_Click(app);
  EXPECT_EQ(Read("again.mem"), saved);
}

// What the program writes is the same bytes on every system: CR LF ends every
// line, however the system ends lines in its own text files.
TEST_F(MemoryFileTest, SavedLinesEndInCrLfAndNothingElse) {
  QueueText("Deck");
  NamedMemory_Click(app);
  NewMemory_Click(app);
  AnswerFile("ends.mem");
  mnuSaveAs_Click(app);
  const std::string saved = Read("ends.mem");
  std::size_t crlf = 0;
  for (std::size_t at = saved.find("\r\n"); at != std::string::npos;
       at = saved.find("\r\n", at + 2)) {
    ++crlf;
  }
  EXPECT_EQ(crlf, 10u);
  EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 10);
  EXPECT_EQ(std::count(saved.begin(), saved.end(), '\r'), 10);
  EXPECT_EQ(saved.substr(saved.size() - 4), "0.\r\n");
}

// A memory file copied through a Unix tool loses its carriage returns; it is
// still the same file, and saving it again brings the CR LF lines back.
TEST_F(MemoryFileTest, FileWithBareLineFeedsOpensAsTheSameFile) {
  QueueText("North  wall ");
  NamedMemory_Click(app);
  NewMemory_Click(app);
  Memory(1).label1.caption = " 12'- 7 3/16\" ";
  Memory(2).label1.caption = " 2'- 100 1/2\" sq. ";
  app.mainFrame.geometry = {1200, 1300, 5200, 3100};
  app.memory.sharedWidth = 2200;
  AnswerFile("windows.mem");
  mnuSaveAs_Click(app);
  const std::string saved = Read("windows.mem");
  std::string unix_copy;
  for (const char c : saved) {
    if (c != '\r') unix_copy.push_back(c);
  }
  ASSERT_EQ(unix_copy.size() + 10, saved.size());
  Write("unix.mem", unix_copy);

  Open("windows.mem");
  const Rect frame = app.mainFrame.geometry;
  EXPECT_EQ(frame.left, 1200);
  EXPECT_EQ(frame.height, 3100);
  Open("unix.mem");
  ASSERT_EQ(app.memory.Forms().size(), 2u);
  EXPECT_EQ(Memory(1).caption, "North  wall ");
  EXPECT_EQ(Memory(1).label1.caption, " 12'- 7 3/16\" ");
  EXPECT_EQ(Memory(2).caption, "Memory 2");
  EXPECT_EQ(Memory(2).label1.caption, " 2'- 100 1/2\" sq. ");
  EXPECT_EQ(app.mainFrame.geometry.left, frame.left);
  EXPECT_EQ(app.mainFrame.geometry.top, frame.top);
  EXPECT_EQ(app.mainFrame.geometry.width, frame.width);
  EXPECT_EQ(app.mainFrame.geometry.height, frame.height);
  EXPECT_EQ(app.memory.sharedWidth, 2200);
  EXPECT_EQ(app.mainFrame.caption, "unix");

  mnuSave_Click(app);
  EXPECT_EQ(Read("unix.mem"), saved);
}

TEST_F(MemoryFileTest, OpenAsksFirstWhenMemoriesWereMade) {
  Write("e.mem", "0\r\n0\r\n2000\r\n1000\r\n0\r\n1935\r\n");
  NewMemory_Click(app);
  Queue(QueuedAnswer::Kind::kCancel);
  mnuOpen_Click(app);
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text,
            "Existing memory and memory tapes will be erased. Are you sure "
            "you want to continue?");
  EXPECT_EQ(platform.messages[0].title, "Brenko Calculator");
  EXPECT_EQ(platform.messages[0].buttons, MsgButtons::kOkCancel);
  EXPECT_EQ(platform.messages[0].icon, MsgIcon::kExclamation);
  EXPECT_TRUE(platform.fileDialogs.empty());
  EXPECT_EQ(app.memory.Forms().size(), 1u);
}

TEST_F(MemoryFileTest, OpenWithNothingMadeAsksNothing) {
  Write("f.mem", "0\r\n0\r\n2000\r\n1000\r\n0\r\n1935\r\n");
  AnswerFile("f.mem");
  mnuOpen_Click(app);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(app.mainFrame.caption, "f");
}

TEST_F(MemoryFileTest, CancelledOpenDialogChangesNothing) {
  NewMemory_Click(app);
  AnswerOk();
  mnuOpen_Click(app);  // the dialog is cancelled
  EXPECT_EQ(app.memory.Forms().size(), 1u);
  EXPECT_TRUE(app.memory.filePath.empty());
}

TEST_F(MemoryFileTest, MissingFileStopsSilentlyKeepingTheMemories) {
  NewMemory_Click(app);
  Open("missing.mem");
  EXPECT_EQ(app.memory.Forms().size(), 1u);
  EXPECT_EQ(app.memory.filePath, Path("missing.mem"));
}

TEST_F(MemoryFileTest, CountZeroRestoresFrameAndWidthOnly) {
  Write("zero.mem", " 300 \r\n 400 \r\n 5000 \r\n 3000 \r\n 0\r\n 2500\r\n");
  NewMemory_Click(app);
  Open("zero.mem");
  EXPECT_TRUE(app.memory.Forms().empty());
  EXPECT_EQ(app.mainFrame.geometry, (Rect{300, 400, 5000, 3000}));
  EXPECT_EQ(app.mainFrame.caption, "zero");
}

TEST_F(MemoryFileTest, FrameLinesRoundHalfToEven) {
  Write("half.mem",
        "1200.5\r\n1201.5\r\n5000.5\r\n3000.5\r\n1\r\n2000\r\n"
        "A\r\n 1\" \r\n");
  Open("half.mem");
  EXPECT_EQ(app.mainFrame.geometry.left, 1200);
  EXPECT_EQ(app.mainFrame.geometry.top, 1202);
  EXPECT_EQ(Memory(1).geometry.width, 2000);
  EXPECT_EQ(app.memory.sharedWidth, 2000);
}

TEST_F(MemoryFileTest, CaptionIsTheNameUpToItsFirstDot) {
  EXPECT_EQ(MemoryFileTitle("/home/x/job.v2.mem"), "job");
  EXPECT_EQ(MemoryFileTitle("C:\\jobs\\deck.mem"), "deck");
  EXPECT_EQ(MemoryFileTitle("plain"), "plain");
  EXPECT_EQ(MemoryFileTitle("/x/.hidden.mem"), "");
}

TEST_F(MemoryFileTest, LoadedTapesAreEmptyEvenWhenTheyWereNot) {
  NewMemory_Click(app);
  ClearTape(app.tapes, 1);
  Write("g.mem", "0\r\n0\r\n2000\r\n1000\r\n1\r\n1935\r\nA\r\n0.\r\n");
  Open("g.mem");
  EXPECT_EQ(app.tapes.TapeLineCount()[1], 0);
  EXPECT_EQ(app.tapes.Cell(2, 1), "");
}

TEST_F(MemoryFileTest, LoadedMemoriesAdvanceTheNumbering) {
  Write("h.mem",
        "0\r\n0\r\n2000\r\n1000\r\n2\r\n1935\r\nA\r\n0.\r\nB\r\n0.\r\n");
  Open("h.mem");
  NewMemory_Click(app);
  EXPECT_EQ(app.memory.Forms().back()->caption, "Memory 3");
  EXPECT_EQ(app.memory.windowCounter, 4);
}

TEST_F(MemoryFileTest, LoadedMemoriesTakeTheKeptColours) {
  app.colors.memoryBackground = 12;
  app.colors.memoryReadout = 34;
  Write("k.mem", "0\r\n0\r\n2000\r\n1000\r\n1\r\n1935\r\nA\r\n0.\r\n");
  Open("k.mem");
  EXPECT_EQ(Memory(1).backColor, 12);
  EXPECT_EQ(Memory(1).label1.backColor, 34);
}

// Broken files: none crashes, none makes more memories than it has lines.
struct BrokenCase {
  const char* name;
  std::string content;
  std::size_t memories;
};

class BrokenMemoryFileTest : public MemoryFileTest,
                             public ::testing::WithParamInterface<BrokenCase> {
};

TEST_P(BrokenMemoryFileTest, EndsQuietlyWithWhatWasRead) {
  const BrokenCase& c = GetParam();
  Write("broken.mem", c.content);
  Open("broken.mem");
  EXPECT_EQ(app.memory.Forms().size(), c.memories);
  EXPECT_TRUE(platform.messages.empty());
}

const std::string kHeader = "0\r\n0\r\n2000\r\n1000\r\n";
constexpr char kGarbage[] = "\x00\xff\x80\r\n\x01\x02\r\n\x7f\r\n";

template <std::size_t N>
std::string Bytes(const char (&bytes)[N]) {
  return std::string(bytes, N - 1);
}

INSTANTIATE_TEST_SUITE_P(
    Files, BrokenMemoryFileTest,
    ::testing::Values(
        BrokenCase{"Empty", "", 0},
        BrokenCase{"ThreeLines", "1\r\n2\r\n3\r\n", 0},
        BrokenCase{"CountWithoutMemories", kHeader + "3\r\n1935\r\n", 0},
        BrokenCase{"ShortFileKeepsWhatWasRead",
                   kHeader + "3\r\n1935\r\nA\r\n1\"\r\nB\r\n", 1},
        BrokenCase{"Count32767WithTwoLines",
                   kHeader + "32767\r\n1935\r\nA\r\n0.\r\n", 1},
        BrokenCase{"NegativeCount", kHeader + "-5\r\n1935\r\nA\r\n0.\r\n", 0},
        BrokenCase{"CountTooBig", kHeader + "99999\r\n1935\r\nA\r\n0.\r\n", 0},
        BrokenCase{"Binary", Bytes(kGarbage), 0},
        BrokenCase{"BinaryNameAndValue",
                   kHeader + "1\r\n1935\r\n" + Bytes(kGarbage), 1},
        BrokenCase{"LongestLines",
                   kHeader + "2\r\n1935\r\n" +
                       std::string(kMostMemoryLineBytes, 'n') + "\r\n" +
                       std::string(kMostMemoryLineBytes, 'v') + "\r\n",
                   1},
        BrokenCase{"NegativeSize",
                   "0\r\n0\r\n-5\r\n1000\r\n1\r\n1935\r\nA\r\n"
                   "0.\r\n",
                   0},
        BrokenCase{"ZeroWidth",
                   kHeader + "3\r\n0\r\nA\r\n0.\r\nB\r\n0.\r\nC"
                             "\r\n0.\r\n",
                   3}),
    [](const ::testing::TestParamInfo<BrokenCase>& info) {
      return std::string(info.param.name);
    });

}  // namespace
}  // namespace brenko
