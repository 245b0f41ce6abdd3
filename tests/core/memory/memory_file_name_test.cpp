// Memory files whose names have letters beyond ASCII: the names come in as
// UTF-8 text and must reach the file system letter for letter, on Windows
// (UTF-16 names) as much as on Linux (UTF-8 bytes).
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "core/base/path_text.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_file.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

namespace brenko {
namespace {

namespace fs = std::filesystem;
using testing_support::TestProgram;

// "Küche.mem" and "Ярд.mem" written as UTF-8 bytes, so the test means the
// same names whatever the compiler takes its source text to be.
constexpr const char* kKueche =
    "K\xC3\xBC"
    "che.mem";
constexpr const char* kYard = "\xD0\xAF\xD1\x80\xD0\xB4.mem";

class MemoryFileNameTest : public ::testing::Test, public TestProgram {
 protected:
  fs::path In(const char* name) const {
    return scratch_.Path(PathFromText(name));
  }
  // What the folder holds, each name as UTF-8 text.
  std::vector<std::string> Names() const { return scratch_.Names(); }
  void AnswerFile(const char* name) {
    Queue(QueuedAnswer::Kind::kFile, PathText(In(name)));
  }

  // Saves one memory as `name` through Save As, erases it, and opens the
  // file again through Open.
  void RoundTrip(const char* name) {
    SCOPED_TRACE(name);
    NewMemory_Click(app);
    Memory(1).label1.caption = " 12'- 7 3/16\" ";
    AnswerFile(name);
    mnuSaveAs_Click(app);
    EXPECT_EQ(app.memory.filePath, In(name));
    ASSERT_TRUE(fs::is_regular_file(In(name)));

    EraseMemory_Click(app);
    app.memory.filePath.clear();
    if (app.memory.nextNumber > 1) Queue(QueuedAnswer::Kind::kOk);
    AnswerFile(name);
    mnuOpen_Click(app);
    EXPECT_EQ(app.memory.filePath, In(name));
    ASSERT_NE(app.memory.Find(1), nullptr);
    EXPECT_EQ(Memory(1).label1.caption, " 12'- 7 3/16\" ");
    const std::string text = name;
    EXPECT_EQ(app.mainFrame.caption, text.substr(0, text.find('.')));
    EraseMemory_Click(app);
  }

  testing_support::ScratchFolder scratch_{"brenko-memname-"};
};

TEST(PathTextTest, TextIsReadAsUtf8) {
  // The UTF-16 letters prove the bytes were not taken in a code page.
  EXPECT_EQ(PathFromText(kKueche).u16string(), u"K\u00FCche.mem");
  EXPECT_EQ(PathFromText(kYard).u16string(), u"\u042F\u0440\u0434.mem");
  EXPECT_EQ(PathText(PathFromText(kKueche)), kKueche);
  EXPECT_EQ(PathText(PathFromText(kYard)), kYard);
  EXPECT_EQ(PathText(fs::path(u"\u042F\u0440\u0434.mem")), kYard);
}

TEST_F(MemoryFileNameTest, SaveAsAndOpenKeepTheLetters) {
  for (const char* name : {kKueche, kYard}) RoundTrip(name);
  std::vector<std::string> names = Names();
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{kKueche, kYard}));
}

TEST_F(MemoryFileNameTest, OpeningByNameReadsTheFile) {
  {
    std::ofstream out(In(kYard), std::ios::binary);
    out << " 300 \r\n 450 \r\n 7000 \r\n 4200 \r\n 1\r\n 2400\r\n"
           "Deck\r\n 3'- 0\" sq. \r\n";
  }
  EXPECT_EQ(MemoryFileOpenProblem(In(kYard)), std::nullopt);
  ASSERT_TRUE(OpenMemoryFilePath(app, In(kYard)));
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Memory(1).caption, "Deck");
  EXPECT_EQ(Memory(1).label1.caption, " 3'- 0\" sq. ");
  EXPECT_EQ(app.mainFrame.caption, "\xD0\xAF\xD1\x80\xD0\xB4");
}

TEST_F(MemoryFileNameTest, AMissingFileIsNamedInItsOwnLetters) {
  EXPECT_FALSE(OpenMemoryFilePath(app, In(kKueche)));
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(
      platform.messages[0].text,
      std::string("Could not open ") + kKueche + ": the file does not exist.");
}

TEST_F(MemoryFileNameTest, TheWriterTakesThePathAsGiven) {
  MemoryFileContent content;
  content.width = 6000;
  content.height = 4000;
  ASSERT_TRUE(SaveMemoryFile(platform.Files(), content, In(kKueche)).ok());
  EXPECT_EQ(Names(), std::vector<std::string>{kKueche});
  std::ifstream in(In(kKueche), std::ios::binary);
  const std::string saved(std::istreambuf_iterator<char>(in), {});
  EXPECT_EQ(saved, " 0 \r\n 0 \r\n 6000 \r\n 4000 \r\n 0\r\n 0\r\n");
}

}  // namespace
}  // namespace brenko
