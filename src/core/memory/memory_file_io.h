#pragma once
// The memory file's lines, apart from the windows they come from: frame
// place and size, the number of memories, their common width, then a name
// line and a value line for each memory. Every line ends in CR LF.

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace brenko {

// The longest line and the largest file the program reads as a memory file;
// anything larger is not one of its files, and is never held whole.
inline constexpr std::size_t kMostMemoryLineBytes = 64 * 1024;
inline constexpr std::uintmax_t kMostMemoryFileBytes = 64 * 1024 * 1024;

struct MemoryFileRecord {
  std::string name;   // the memory window's caption
  std::string value;  // its value label's caption, blanks and all
};

// What the program writes: the frame's geometry as the window holds it.
struct MemoryFileContent {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  std::int16_t count = 0;
  std::int16_t memoryWidth = 0;
  std::vector<MemoryFileRecord> memories;
};

// Lines 1 to 6 as read back: each line's leading number rounded half to
// even.
struct MemoryFileHeader {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::int16_t count = 0;
  std::int16_t memoryWidth = 0;
};

// A frame number line: the number with a leading blank when not negative
// and one trailing blank (" 1575 ", "-30 ", " 1200.5 "). A window keeps its
// geometry in single precision, so the number is written with the digits
// single precision holds.
std::string FrameNumberLine(float value);

// Writes the whole file; false when the stream failed on the way.
bool WriteMemoryFile(std::ostream& out, const MemoryFileContent& content);

// Reads the file a line at a time, as the open command takes it.
class MemoryFileReader {
 public:
  explicit MemoryFileReader(std::istream& in) : in_(in) {}

  // The next line without its end (CR LF; a lone CR or LF ends a line too).
  // False at the end of the file: a missing line is a failed read. A line
  // longer than kMostMemoryLineBytes is a failed read too (LineTooLong()).
  bool ReadLine(std::string& line);
  bool LineTooLong() const { return tooLong_; }

  // Lines 1 to 6. False when a line is missing or its number does not fit
  // (32-bit for the frame, 16-bit for the count and the width).
  bool ReadHeader(MemoryFileHeader& header);

  // One memory's name and value lines; false when either is missing.
  bool ReadMemory(MemoryFileRecord& record);

 private:
  std::istream& in_;
  bool tooLong_ = false;
};

// Whether some line of the stream is longer than kMostMemoryLineBytes; reads
// to the end, holding nothing.
bool HasOverlongLine(std::istream& in);

}  // namespace brenko
