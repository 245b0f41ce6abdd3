#include "core/base/safe_write.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "os/system_file_ops.h"
#include "support/scratch_folder.h"

#ifndef _WIN32
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace brenko {
namespace {

namespace fs = std::filesystem;

// The real file system, failing where a test asks it to.
class FailingFileOps : public os::SystemFileOps {
 public:
  // Write fails once this many bytes in all have gone to the file.
  std::size_t failAfterBytes = SIZE_MAX;
  std::error_code writeError =
      std::make_error_code(std::errc::no_space_on_device);
  std::error_code createError;
  bool failSync = false;
  bool failRename = false;
  // The first names tried for the new file are taken by links to this.
  int plantLinks = 0;
  fs::path linkVictim;
  std::vector<fs::path> created;

  std::error_code CreateExclusive(const fs::path& path, unsigned mode,
                                  FileHandle& handle) override {
    if (createError) return createError;
    if (plantLinks > 0) {
      --plantLinks;
      fs::create_symlink(linkVictim, path);
    }
    created.push_back(path);
    return SystemFileOps::CreateExclusive(path, mode, handle);
  }
  std::error_code Write(FileHandle handle, const char* data,
                        std::size_t size) override {
    const std::size_t room = failAfterBytes - written_;
    if (size > room) {
      if (room > 0) SystemFileOps::Write(handle, data, room);
      written_ += room;
      return writeError;
    }
    written_ += size;
    return SystemFileOps::Write(handle, data, size);
  }
  std::error_code Sync(FileHandle handle) override {
    if (failSync) return std::make_error_code(std::errc::io_error);
    return SystemFileOps::Sync(handle);
  }
  std::error_code Rename(const fs::path& from, const fs::path& to) override {
    if (failRename) return std::make_error_code(std::errc::permission_denied);
    return SystemFileOps::Rename(from, to);
  }

 private:
  std::size_t written_ = 0;
};

class SafeWriteTest : public ::testing::Test {
 protected:
  fs::path Path(const std::string& name) const { return scratch_.Path(name); }
  static void Put(const fs::path& path, const std::string& content) {
    std::ofstream out(path, std::ios::binary);
    out << content;
  }
  static std::string Read(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }
  // The names in the folder, sorted.
  std::vector<std::string> Names() const { return scratch_.Names(); }
  static std::string Big(char fill) { return std::string(100000, fill); }

  os::SystemFileOps system_;
  testing_support::ScratchFolder scratch_{"brenko-safe-"};
};

TEST_F(SafeWriteTest, WritesANewFileAndLeavesNothingElse) {
  const WriteOutcome outcome = SafeWrite(system_, Path("jobs.mem"), "abc\r\n");
  ASSERT_TRUE(outcome.ok()) << outcome.reason;
  EXPECT_EQ(Read(Path("jobs.mem")), "abc\r\n");
  EXPECT_EQ(Names(), std::vector<std::string>{"jobs.mem"});
}

TEST_F(SafeWriteTest, ReplacesTheOldFile) {
  Put(Path("jobs.mem"), "old");
  ASSERT_TRUE(SafeWrite(system_, Path("jobs.mem"), "new").ok());
  EXPECT_EQ(Read(Path("jobs.mem")), "new");
  EXPECT_EQ(Names(), std::vector<std::string>{"jobs.mem"});
}

TEST_F(SafeWriteTest, FailingWriteAfterAnyNumberOfBytesKeepsTheOldFile) {
  const std::string data = Big('n');
  for (std::size_t n :
       {std::size_t{0}, std::size_t{1}, std::size_t{4096}, data.size() - 1}) {
    Put(Path("jobs.mem"), "old");
    FailingFileOps files;
    files.failAfterBytes = n;
    const WriteOutcome outcome = SafeWrite(files, Path("jobs.mem"), data);
    EXPECT_FALSE(outcome.ok()) << n;
    EXPECT_EQ(outcome.reason, "the disk is full") << n;
    EXPECT_EQ(Read(Path("jobs.mem")), "old") << n;
    EXPECT_EQ(Names(), std::vector<std::string>{"jobs.mem"}) << n;
  }
}

TEST_F(SafeWriteTest, FailingSyncKeepsTheOldFile) {
  Put(Path("jobs.mem"), "old");
  FailingFileOps files;
  files.failSync = true;
  const WriteOutcome outcome = SafeWrite(files, Path("jobs.mem"), "new");
  EXPECT_EQ(outcome.reason, "the disk could not be written");
  EXPECT_EQ(Read(Path("jobs.mem")), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"jobs.mem"});
}

TEST_F(SafeWriteTest, FailingRenameKeepsTheOldFile) {
  Put(Path("jobs.mem"), "old");
  FailingFileOps files;
  files.failRename = true;
  const WriteOutcome outcome = SafeWrite(files, Path("jobs.mem"), "new");
  EXPECT_EQ(outcome.reason, "permission denied");
  EXPECT_EQ(Read(Path("jobs.mem")), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"jobs.mem"});
}

TEST_F(SafeWriteTest, AFolderThatRefusesNewFilesIsReadOnly) {
  Put(Path("jobs.mem"), "old");
  FailingFileOps files;
  files.createError = std::make_error_code(std::errc::permission_denied);
  const WriteOutcome outcome = SafeWrite(files, Path("jobs.mem"), "new");
  EXPECT_EQ(outcome.reason, "the folder is read-only");
  EXPECT_EQ(Read(Path("jobs.mem")), "old");
}

TEST_F(SafeWriteTest, AMissingFolderIsNamed) {
  const WriteOutcome outcome =
      SafeWrite(system_, Path("gone") / "jobs.mem", "new");
  EXPECT_EQ(outcome.reason, "the folder does not exist");
}

// Symlinks need privileges on Windows.
#ifndef _WIN32
TEST_F(SafeWriteTest, PlantedLinksAtTheNewFilesNamesAreNeverFollowed) {
  Put(Path("victim"), "mine");
  FailingFileOps files;
  files.plantLinks = 5;
  files.linkVictim = Path("victim");
  ASSERT_TRUE(SafeWrite(files, Path("jobs.mem"), "new").ok());
  EXPECT_EQ(Read(Path("victim")), "mine");
  EXPECT_EQ(Read(Path("jobs.mem")), "new");
  // Every name was tried once, each a new one, in the target's folder.
  ASSERT_EQ(files.created.size(), 6u);
  for (const fs::path& name : files.created) {
    EXPECT_EQ(name.parent_path(), scratch_.Folder());
    EXPECT_EQ(std::count(files.created.begin(), files.created.end(), name), 1);
  }
  // The planted links are the planter's; the new file's name is gone.
  EXPECT_EQ(Names().size(), 2u + 5u);
}
#endif

#ifndef _WIN32

unsigned Mode(const fs::path& path) {
  return static_cast<unsigned>(fs::status(path).permissions() &
                               fs::perms::mask);
}

TEST_F(SafeWriteTest, KeepsTheOldFilesPermissions) {
  for (unsigned mode : {0600u, 0640u, 0664u}) {
    Put(Path("jobs.mem"), "old");
    fs::permissions(Path("jobs.mem"), static_cast<fs::perms>(mode));
    ASSERT_TRUE(SafeWrite(system_, Path("jobs.mem"), "new").ok());
    EXPECT_EQ(Mode(Path("jobs.mem")), mode);
    EXPECT_EQ(Read(Path("jobs.mem")), "new");
  }
}

TEST_F(SafeWriteTest, ARead_OnlyFileIsNotReplaced) {
  Put(Path("jobs.mem"), "old");
  fs::permissions(Path("jobs.mem"), static_cast<fs::perms>(0444));
  const WriteOutcome outcome = SafeWrite(system_, Path("jobs.mem"), "new");
  EXPECT_EQ(outcome.reason, "the file is read-only");
  EXPECT_EQ(Read(Path("jobs.mem")), "old");
  EXPECT_EQ(Mode(Path("jobs.mem")), 0444u);
  EXPECT_EQ(Names(), std::vector<std::string>{"jobs.mem"});
}

TEST_F(SafeWriteTest, ARead_OnlyFolderIsNamed) {
  if (geteuid() == 0) GTEST_SKIP() << "root writes in any folder";
  Put(Path("jobs.mem"), "old");
  fs::permissions(scratch_.Folder(), static_cast<fs::perms>(0555));
  const WriteOutcome outcome = SafeWrite(system_, Path("jobs.mem"), "new");
  EXPECT_EQ(outcome.reason, "the folder is read-only");
  EXPECT_EQ(Read(Path("jobs.mem")), "old");
}

TEST_F(SafeWriteTest, ALinkIsWrittenThroughAndStaysALink) {
  fs::create_directory(Path("real"));
  Put(Path("real") / "jobs.mem", "old");
  fs::permissions(Path("real") / "jobs.mem", static_cast<fs::perms>(0640));
  fs::create_symlink(fs::path("real") / "jobs.mem", Path("link.mem"));
  fs::create_symlink("link.mem", Path("link2.mem"));
  ASSERT_TRUE(SafeWrite(system_, Path("link2.mem"), "new").ok());
  EXPECT_TRUE(fs::is_symlink(Path("link.mem")));
  EXPECT_TRUE(fs::is_symlink(Path("link2.mem")));
  EXPECT_EQ(Read(Path("real") / "jobs.mem"), "new");
  EXPECT_EQ(Mode(Path("real") / "jobs.mem"), 0640u);
  EXPECT_EQ(Names(),
            (std::vector<std::string>{"link.mem", "link2.mem", "real"}));
}

TEST_F(SafeWriteTest, ADanglingLinkGetsItsFile) {
  fs::create_symlink("missing.mem", Path("link.mem"));
  ASSERT_TRUE(SafeWrite(system_, Path("link.mem"), "new").ok());
  EXPECT_TRUE(fs::is_symlink(Path("link.mem")));
  EXPECT_EQ(Read(Path("missing.mem")), "new");
}

TEST_F(SafeWriteTest, ALoopOfLinksIsRefused) {
  fs::create_symlink("b.mem", Path("a.mem"));
  fs::create_symlink("a.mem", Path("b.mem"));
  EXPECT_FALSE(SafeWrite(system_, Path("a.mem"), "new").ok());
}

// A file system that is full at a given size: the system's file size limit
// in a child process.
TEST_F(SafeWriteTest, AFullFileSystemKeepsTheOldFile) {
  Put(Path("jobs.mem"), "old");
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    limit.rlim_cur = limit.rlim_max = 10000;
    setrlimit(RLIMIT_FSIZE, &limit);
    os::SystemFileOps files;
    const WriteOutcome outcome = SafeWrite(
        files, scratch_.Folder() / "jobs.mem", std::string(50000, 'x'));
    _exit(outcome.reason == "the file is too large" ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_EQ(Read(Path("jobs.mem")), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"jobs.mem"});
}

// Save number `n`: its number at both ends around a body that tells it too.
std::string Generation(int n) {
  const std::string mark = "save " + std::to_string(n) + "\n";
  std::string text = mark;
  for (int i = 0; i < 2000; ++i) text += mark;
  return text;
}

bool IsAWholeGeneration(const std::string& text) {
  if (text.rfind("save ", 0) != 0) return false;
  const int n = std::atoi(text.c_str() + 5);
  return text == Generation(n);
}

// Saves generations from..from+count-1, then ends.
[[noreturn]] void SaveInARow(const fs::path& path, int from, int count) {
  os::SystemFileOps files;
  for (int n = from; n < from + count; ++n) {
    if (!SafeWrite(files, path, Generation(n)).ok()) _exit(1);
  }
  _exit(0);
}

TEST_F(SafeWriteTest, AKilledSaveLeavesTheOldOrTheNewFileWhole) {
  const fs::path path = Path("jobs.mem");
  ASSERT_TRUE(SafeWrite(system_, path, Generation(0)).ok());
  std::mt19937 random(12345);
  int from = 1;
  for (int round = 0; round < 25; ++round) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) SaveInARow(path, from, 1000);
    usleep(static_cast<useconds_t>(random() % 60000));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    const std::string text = Read(path);
    ASSERT_TRUE(IsAWholeGeneration(text))
        << "round " << round << ": " << text.substr(0, 20);
    from += 1000;
  }
  // The children did save: the file is no longer the first one.
  EXPECT_NE(Read(path), Generation(0));
}

TEST_F(SafeWriteTest, TwoCopiesSavingAtOnceEachLeaveAWholeFile) {
  const fs::path path = Path("jobs.mem");
  const pid_t first = fork();
  ASSERT_GE(first, 0);
  if (first == 0) SaveInARow(path, 1, 200);
  const pid_t second = fork();
  ASSERT_GE(second, 0);
  if (second == 0) SaveInARow(path, 100001, 200);
  int status = 0;
  waitpid(first, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  waitpid(second, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  const std::string text = Read(path);
  EXPECT_TRUE(text == Generation(200) || text == Generation(100200))
      << text.substr(0, 20);
  EXPECT_EQ(Names(), std::vector<std::string>{"jobs.mem"});
}

#endif  // _WIN32

}  // namespace
}  // namespace brenko
