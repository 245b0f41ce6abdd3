// A memory file of any bytes through the reader: the header, then as many
// memories as it claims or the file holds. No line it hands back may be
// longer than the reader's limit.

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "core/memory/memory_file_io.h"
#include "fuzz_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  {
    std::istringstream in(input);
    brenko::MemoryFileReader reader(in);
    brenko::MemoryFileHeader header;
    if (reader.ReadHeader(header)) {
      brenko::MemoryFileRecord record;
      for (int i = 0; i < header.count && reader.ReadMemory(record); ++i) {
        BRENKO_FUZZ_CHECK(record.name.size() <= brenko::kMostMemoryLineBytes);
        BRENKO_FUZZ_CHECK(record.value.size() <= brenko::kMostMemoryLineBytes);
      }
    }
  }
  {
    std::istringstream in(input);
    brenko::MemoryFileReader reader(in);
    std::string line;
    while (reader.ReadLine(line)) {
      BRENKO_FUZZ_CHECK(line.size() <= brenko::kMostMemoryLineBytes);
    }
  }
  std::istringstream in(input);
  brenko::HasOverlongLine(in);
  return 0;
}
