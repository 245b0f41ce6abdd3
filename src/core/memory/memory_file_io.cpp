#include "core/memory/memory_file_io.h"

#include <charconv>
#include <system_error>

#include "core/measure/number_text.h"

namespace brenko {

namespace {

constexpr const char* kLineEnd = "\r\n";

void PutLine(std::ostream& out, const std::string& line) {
  out.write(line.data(), static_cast<std::streamsize>(line.size()));
  out.write(kLineEnd, 2);
}

bool ReadNumber32(MemoryFileReader& reader, std::int32_t& out) {
  std::string line;
  return reader.ReadLine(line) && ToInt32(LeadingNumber(line), out);
}

bool ReadNumber16(MemoryFileReader& reader, std::int16_t& out) {
  std::string line;
  return reader.ReadLine(line) && ToInt16(LeadingNumber(line), out);
}

}  // namespace

std::string FrameNumberLine(float value) {
  // The shortest text that reads back to the same single-precision number.
  char buffer[64];
  const auto [end, error] =
      std::to_chars(buffer, buffer + sizeof buffer, value);
  double shown = value;
  if (error == std::errc()) {
    double parsed = 0;
    const auto result = std::from_chars(buffer, end, parsed);
    if (result.ec == std::errc()) shown = parsed;
  }
  return NumberToText(shown) + " ";
}

bool WriteMemoryFile(std::ostream& out, const MemoryFileContent& content) {
  PutLine(out, FrameNumberLine(content.left));
  PutLine(out, FrameNumberLine(content.top));
  PutLine(out, FrameNumberLine(content.width));
  PutLine(out, FrameNumberLine(content.height));
  PutLine(out, NumberToText(content.count));
  PutLine(out, NumberToText(content.memoryWidth));
  for (const MemoryFileRecord& memory : content.memories) {
    PutLine(out, memory.name);
    PutLine(out, memory.value);
  }
  out.flush();
  return static_cast<bool>(out);
}

bool MemoryFileReader::ReadLine(std::string& line) {
  line.clear();
  std::streambuf* buffer = in_.rdbuf();
  if (buffer == nullptr || !in_.good()) return false;
  constexpr auto kEnd = std::char_traits<char>::eof();
  bool any = false;
  for (;;) {
    const auto c = buffer->sbumpc();
    if (c == kEnd) {
      in_.setstate(std::ios::eofbit);
      return any;
    }
    any = true;
    if (c == '\r') {
      if (buffer->sgetc() == '\n') buffer->sbumpc();
      return true;
    }
    if (c == '\n') return true;
    if (line.size() == kMostMemoryLineBytes) {
      tooLong_ = true;
      line.clear();
      return false;
    }
    line.push_back(std::char_traits<char>::to_char_type(c));
  }
}

bool HasOverlongLine(std::istream& in) {
  std::streambuf* buffer = in.rdbuf();
  if (buffer == nullptr) return false;
  constexpr auto kEnd = std::char_traits<char>::eof();
  std::size_t length = 0;
  for (auto c = buffer->sbumpc(); c != kEnd; c = buffer->sbumpc()) {
    if (c == '\r' || c == '\n') {
      length = 0;
    } else if (++length > kMostMemoryLineBytes) {
      return true;
    }
  }
  return false;
}

bool MemoryFileReader::ReadHeader(MemoryFileHeader& header) {
  return ReadNumber32(*this, header.left) && ReadNumber32(*this, header.top) &&
         ReadNumber32(*this, header.width) &&
         ReadNumber32(*this, header.height) &&
         ReadNumber16(*this, header.count) &&
         ReadNumber16(*this, header.memoryWidth);
}

bool MemoryFileReader::ReadMemory(MemoryFileRecord& record) {
  return ReadLine(record.name) && ReadLine(record.value);
}

}  // namespace brenko
