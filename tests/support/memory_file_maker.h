#pragma once
// Memory files of any number of memories, made by the program's own code:
// the memories opened one after another in a program with the scripted
// platform, each given a value, and saved as Save does. Shared by the tests
// and the benchmarks.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "core/base/settings_store.h"
#include "core/commands/app.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_file.h"
#include "core/memory/memory_file_io.h"
#include "fake/fake_platform.h"

namespace brenko::testing_support {

// The value memory `i` (counted from 0) is given.
using MemoryValue = std::function<std::string(int i)>;

// Opens `count` new memories in `app`, memory i holding value(i).
inline void FillMemories(App& app, int count, const MemoryValue& value) {
  for (int i = 0; i < count; ++i) {
    NewMemory_Click(app);
    app.memory.Forms().back()->label1.caption = value(i);
  }
}

// Writes a memory file of `count` memories, memory i holding value(i),
// straight to `path` (in a folder of the caller's own). Whether it was
// written.
inline bool WriteMemoryFile(const std::filesystem::path& path, int count,
                            const MemoryValue& value) {
  FakePlatform platform;
  MemorySettingsStore store;
  App app(platform, store);
  FillMemories(app, count, value);
  return SaveMemoryFile(platform.Files(),
                        CollectMemoryFile(app.mainFrame.geometry, app.memory),
                        path)
      .ok();
}

// Writes a memory file straight from its lines, without opening the
// memories first: the frame's place and size, the memories' common width
// and `count` memories named "MemoryN", memory i holding value(i). For
// files no session could have saved as cheaply (tens of thousands of
// memories, odd widths). Whether it was written.
inline bool WriteMemoryFileLines(const std::filesystem::path& path,
                                 const Rect& frame, std::int16_t memoryWidth,
                                 int count, const MemoryValue& value) {
  MemoryFileContent content;
  content.left = frame.left;
  content.top = frame.top;
  content.width = frame.width;
  content.height = frame.height;
  content.memoryWidth = memoryWidth;
  content.count = static_cast<std::int16_t>(count);
  for (int i = 0; i < count; ++i) {
    content.memories.push_back({"Memory" + std::to_string(i + 1), value(i)});
  }
  std::ofstream out(path, std::ios::binary);
  return WriteMemoryFile(out, content) && static_cast<bool>(out.flush());
}

}  // namespace brenko::testing_support
