#include "core/memory/memory_file_io.h"

#include <gtest/gtest.h>

#include <sstream>
#include <streambuf>
#include <string>

namespace brenko {
namespace {

// A stream buffer that takes `limit` bytes and then refuses every byte, as
// a full disk does.
class FailingAfter : public std::streambuf {
 public:
  explicit FailingAfter(std::size_t limit) : limit_(limit) {}
  const std::string& written() const { return written_; }

 protected:
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof())) return 0;
    if (written_.size() >= limit_) return traits_type::eof();
    written_.push_back(traits_type::to_char_type(c));
    return c;
  }

 private:
  std::size_t limit_;
  std::string written_;
};

MemoryFileContent TwoMemories() {
  MemoryFileContent content;
  content.left = 1575;
  content.top = 1635;
  content.width = 4005;
  content.height = 1620;
  content.count = 2;
  content.memoryWidth = 1935;
  content.memories = {{"Memory 1", " 5'- 0\" "}, {"Deck  north", "0."}};
  return content;
}

TEST(MemoryFileWriteTest, WritesTheExactLinesWithCrLf) {
  std::ostringstream out;
  ASSERT_TRUE(WriteMemoryFile(out, TwoMemories()));
  EXPECT_EQ(out.str(),
            " 1575 \r\n 1635 \r\n 4005 \r\n 1620 \r\n 2\r\n 1935\r\n"
            "Memory 1\r\n 5'- 0\" \r\nDeck  north\r\n0.\r\n");
}

TEST(MemoryFileWriteTest, NegativeAndFractionalFrameNumbers) {
  EXPECT_EQ(FrameNumberLine(-30), "-30 ");
  EXPECT_EQ(FrameNumberLine(1200.5f), " 1200.5 ");
  EXPECT_EQ(FrameNumberLine(0), " 0 ");
  EXPECT_EQ(FrameNumberLine(0.1f), " .1 ");
}

TEST(MemoryFileWriteTest, StreamFailingPartWayIsReported) {
  for (std::size_t limit : {0u, 5u, 30u, 60u}) {
    FailingAfter buffer(limit);
    std::ostream out(&buffer);
    EXPECT_FALSE(WriteMemoryFile(out, TwoMemories())) << limit;
    EXPECT_EQ(buffer.written().size(), limit);
  }
}

TEST(MemoryFileReadTest, ReadsBackWhatWasWritten) {
  std::ostringstream out;
  WriteMemoryFile(out, TwoMemories());
  std::istringstream in(out.str());
  MemoryFileReader reader(in);
  MemoryFileHeader header;
  ASSERT_TRUE(reader.ReadHeader(header));
  EXPECT_EQ(header.left, 1575);
  EXPECT_EQ(header.top, 1635);
  EXPECT_EQ(header.width, 4005);
  EXPECT_EQ(header.height, 1620);
  EXPECT_EQ(header.count, 2);
  EXPECT_EQ(header.memoryWidth, 1935);
  MemoryFileRecord record;
  ASSERT_TRUE(reader.ReadMemory(record));
  EXPECT_EQ(record.name, "Memory 1");
  EXPECT_EQ(record.value, " 5'- 0\" ");
  ASSERT_TRUE(reader.ReadMemory(record));
  EXPECT_EQ(record.name, "Deck  north");
  EXPECT_EQ(record.value, "0.");
  EXPECT_FALSE(reader.ReadMemory(record));
}

TEST(MemoryFileReadTest, HeaderNumbersRoundHalfToEven) {
  std::istringstream in(
      "1200.5\r\n1201.5\r\n-2.5\r\n 99.49 \r\n3.5\r\n1934.5\r\n");
  MemoryFileReader reader(in);
  MemoryFileHeader header;
  ASSERT_TRUE(reader.ReadHeader(header));
  EXPECT_EQ(header.left, 1200);
  EXPECT_EQ(header.top, 1202);
  EXPECT_EQ(header.width, -2);
  EXPECT_EQ(header.height, 99);
  EXPECT_EQ(header.count, 4);
  EXPECT_EQ(header.memoryWidth, 1934);
}

TEST(MemoryFileReadTest, EmptyAndNonNumericLinesReadAsZero) {
  std::istringstream in("\r\nabc\r\n  \r\n-\r\nx5\r\n\r\n");
  MemoryFileReader reader(in);
  MemoryFileHeader header;
  header.left = 7;
  ASSERT_TRUE(reader.ReadHeader(header));
  EXPECT_EQ(header.left, 0);
  EXPECT_EQ(header.top, 0);
  EXPECT_EQ(header.count, 0);
  EXPECT_EQ(header.memoryWidth, 0);
}

TEST(MemoryFileReadTest, LoneCrAndLoneLfEndALineToo) {
  std::istringstream in("a\rb\nc\r\n\r\nlast");
  MemoryFileReader reader(in);
  std::string line;
  ASSERT_TRUE(reader.ReadLine(line));
  EXPECT_EQ(line, "a");
  ASSERT_TRUE(reader.ReadLine(line));
  EXPECT_EQ(line, "b");
  ASSERT_TRUE(reader.ReadLine(line));
  EXPECT_EQ(line, "c");
  ASSERT_TRUE(reader.ReadLine(line));
  EXPECT_EQ(line, "");
  ASSERT_TRUE(reader.ReadLine(line));
  EXPECT_EQ(line, "last");
  EXPECT_FALSE(reader.ReadLine(line));
  EXPECT_FALSE(reader.ReadLine(line));
}

TEST(MemoryFileReadTest, EmptyFileHasNoHeader) {
  std::istringstream in("");
  MemoryFileReader reader(in);
  MemoryFileHeader header;
  EXPECT_FALSE(reader.ReadHeader(header));
}

TEST(MemoryFileReadTest, ShortHeaderFails) {
  std::istringstream in(" 1575 \r\n 1635 \r\n 4005 \r\n");
  MemoryFileReader reader(in);
  MemoryFileHeader header;
  EXPECT_FALSE(reader.ReadHeader(header));
}

TEST(MemoryFileReadTest, CountBeyond16BitsFails) {
  std::istringstream in("0\r\n0\r\n0\r\n0\r\n40000\r\n1935\r\n");
  MemoryFileReader reader(in);
  MemoryFileHeader header;
  EXPECT_FALSE(reader.ReadHeader(header));
}

TEST(MemoryFileReadTest, FrameNumberBeyond32BitsFails) {
  std::istringstream in("1E+20\r\n0\r\n0\r\n0\r\n1\r\n1935\r\n");
  MemoryFileReader reader(in);
  MemoryFileHeader header;
  EXPECT_FALSE(reader.ReadHeader(header));
}

TEST(MemoryFileReadTest, NameWithoutValueLineFails) {
  std::istringstream in("Memory 1\r\n");
  MemoryFileReader reader(in);
  MemoryFileRecord record;
  EXPECT_FALSE(reader.ReadMemory(record));
}

TEST(MemoryFileReadTest, BinaryBytesAndLinesOf64KiBAreKeptWhole) {
  std::string binary("\x00\x01\xff\x7f", 4);
  std::string big(kMostMemoryLineBytes, 'z');
  std::istringstream in(binary + "\r\n" + big + "\r\n");
  MemoryFileReader reader(in);
  MemoryFileRecord record;
  ASSERT_TRUE(reader.ReadMemory(record));
  EXPECT_EQ(record.name, binary);
  EXPECT_EQ(record.value, big);
  EXPECT_FALSE(reader.LineTooLong());
}

TEST(MemoryFileReadTest, ALineLongerThan64KiBIsAFailedRead) {
  std::istringstream in("Memory 1\r\n" +
                        std::string(kMostMemoryLineBytes + 1, 'z') + "\r\n");
  MemoryFileReader reader(in);
  MemoryFileRecord record;
  EXPECT_FALSE(reader.ReadMemory(record));
  EXPECT_TRUE(reader.LineTooLong());
  EXPECT_EQ(record.value, "");
}

TEST(MemoryFileReadTest, OverlongLinesAreFoundWhateverEndsTheLines) {
  const std::string most(kMostMemoryLineBytes, 'z');
  for (const char* end : {"\r\n", "\r", "\n"}) {
    std::istringstream fits(most + end + most + end);
    EXPECT_FALSE(HasOverlongLine(fits)) << end;
    std::istringstream over(most + end + most + "z" + end);
    EXPECT_TRUE(HasOverlongLine(over)) << end;
  }
  std::istringstream unended(most + "z");
  EXPECT_TRUE(HasOverlongLine(unended));
}

}  // namespace
}  // namespace brenko
