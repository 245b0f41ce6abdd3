// Opening a memory file lays the frame out again for every memory it makes,
// as New Memory does, but places the windows once, at the end. These tests
// hold the program to the models it would have if every layout had been
// carried out in turn: they open the same file both ways, the memories one
// by one with a full arrangement each (the way New Memory still goes), and
// through File, Open's own reading, and compare everything the two leave.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "core/commands/frame_handlers.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_file.h"
#include "core/memory/memory_file_io.h"
#include "support/memory_file_maker.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::ScratchFolder;
using testing_support::TestProgram;

std::string ValueOf(int i) { return " " + std::to_string(i) + "\" "; }

// The file read as File, Open read it while every new memory arranged the
// windows in full: line for line the open command's reading, with no
// deferred placing.
void OpenOneByOne(App& app, const std::filesystem::path& path) {
  EraseMemory_Click(app);
  std::ifstream in(path, std::ios::binary);
  if (!in) return;
  MemoryFileReader reader(in);
  MemoryFileHeader header;
  if (!reader.ReadHeader(header)) return;
  app.mainFrame.caption = MemoryFileTitle(path);
  if (header.width < 0 || header.height < 0) return;
  const ScreenInfo screen = app.platform.Screen();
  MoveMainFrame(
      app,
      KeepFrameOnScreen(
          {static_cast<float>(header.left), static_cast<float>(header.top),
           static_cast<float>(header.width), static_cast<float>(header.height)},
          screen.WidthTwips(), screen.HeightTwips()));
  MemoryState& memory = app.memory;
  memory.sharedWidth = header.memoryWidth;
  for (std::int16_t k = 1; k <= header.count; ++k) {
    MemoryFileRecord record;
    if (!reader.ReadMemory(record)) return;
    memory.sharedWidth = header.memoryWidth;
    MemoryForm* form = CreateMemory(app, record.name);
    if (form == nullptr) return;
    form->label1.caption = record.value;
    memory.sharedWidth = header.memoryWidth;
    SetMemoryWidth(*form, memory.sharedWidth);
    if (k == INT16_MAX) break;
  }
}

std::string Text(const Rect& r) {
  std::ostringstream out;
  out << "{" << r.left << ", " << r.top << ", " << r.width << ", " << r.height
      << "}";
  return out.str();
}

// The first difference between the two programs' models, or "" when there
// is none: every memory window, the memory counters and names, the frame,
// the tapes and the tape window, the calculator, the converter, the menus
// and every call on the platform.
std::string FirstDifference(const App& a, const App& b) {
  const MemoryState& ma = a.memory;
  const MemoryState& mb = b.memory;
  if (ma.Forms().size() != mb.Forms().size()) {
    return "window count " + std::to_string(ma.Forms().size()) + " vs " +
           std::to_string(mb.Forms().size());
  }
  for (std::size_t i = 0; i < ma.Forms().size(); ++i) {
    const MemoryForm& fa = *ma.Forms()[i];
    const MemoryForm& fb = *mb.Forms()[i];
    if (!(fa == fb)) {
      return "memory window " + std::to_string(i + 1) + ": " +
             Text(fa.geometry) + " vs " + Text(fb.geometry);
    }
  }
  if (ma.nextNumber != mb.nextNumber || ma.windowCounter != mb.windowCounter ||
      ma.sharedWidth != mb.sharedWidth || ma.current != mb.current ||
      ma.resizing != mb.resizing || ma.filePath != mb.filePath ||
      ma.Names() != mb.Names() || ma.Revision() != mb.Revision()) {
    return "memory counters or names";
  }
  const MainFrameForm& fa = a.mainFrame;
  const MainFrameForm& fb = b.mainFrame;
  if (!(fa.geometry == fb.geometry)) {
    return "frame " + Text(fa.geometry) + " vs " + Text(fb.geometry);
  }
  if (fa.state != fb.state || fa.visible != fb.visible ||
      fa.caption != fb.caption || fa.arranging != fb.arranging ||
      fa.resizeToggle != fb.resizeToggle || fa.closing != fb.closing) {
    return "frame state, caption or toggles";
  }
  if (a.tapes.Revision() != b.tapes.Revision() ||
      a.tapes.Rows() != b.tapes.Rows() || a.tapes.Cols() != b.tapes.Cols() ||
      a.tapes.TapeLineCount() != b.tapes.TapeLineCount() ||
      a.tapes.TapeNames() != b.tapes.TapeNames() ||
      a.tapes.ShownTape != b.tapes.ShownTape ||
      a.tapes.leftCol != b.tapes.leftCol || a.tapes.topRow != b.tapes.topRow) {
    return "tapes";
  }
  if (!(a.tapeWindow == b.tapeWindow)) return "tape window";
  if (a.calculator.controls != b.calculator.controls ||
      a.calculator.focus != b.calculator.focus) {
    return "calculator";
  }
  if (!(a.converter == b.converter)) return "converter";
  if (a.menus.Revision() != b.menus.Revision()) return "menus";
  return "";
}

std::string PlatformDifference(const FakePlatform& a, const FakePlatform& b) {
  if (a.topmostCalls != b.topmostCalls) {
    return "topmost calls " + std::to_string(a.topmostCalls.size()) + " vs " +
           std::to_string(b.topmostCalls.size());
  }
  if (a.beeps != b.beeps || a.messages.size() != b.messages.size()) {
    return "beeps or messages";
  }
  return "";
}

// How the program stands when the file is opened.
struct Setting {
  ScreenInfo screen;
  WindowState state = WindowState::kNormal;
  bool tapeVisible = true;
  bool converterVisible = false;
  bool resizeToggle = false;
  // Memories made with New Memory before the open (they are erased first).
  int memoriesBefore = 0;
};

std::string Describe(const Rect& frame, std::int16_t width, int count,
                     const Setting& s) {
  std::ostringstream out;
  out << "frame " << Text(frame) << ", memory width " << width << ", " << count
      << " memories, screen " << s.screen.widthPixels << "x"
      << s.screen.heightPixels << " at " << s.screen.twipsPerPixelX << "/"
      << s.screen.twipsPerPixelY << " twips, state "
      << static_cast<int>(s.state) << ", tape " << s.tapeVisible
      << ", converter " << s.converterVisible << ", toggle " << s.resizeToggle
      << ", " << s.memoriesBefore << " memories before";
  return out.str();
}

void Prepare(TestProgram& program, const Setting& s) {
  program.platform.screen = s.screen;
  App& app = program.app;
  for (int i = 0; i < s.memoriesBefore; ++i) NewMemory_Click(app);
  app.mainFrame.state = s.state;
  app.tapeWindow.visible = s.tapeVisible;
  app.converter.visible = s.converterVisible;
  app.mainFrame.resizeToggle = s.resizeToggle;
  // Only a resize of the frame gives the calculator the focus back.
  app.calculator.focus = "Number 7";
  program.platform.topmostCalls.clear();
}

// Opens `path` both ways under `setting`; the first difference, or "".
std::string CompareOpens(const std::filesystem::path& path,
                         const Setting& setting) {
  TestProgram oneByOne;
  TestProgram opened;
  Prepare(oneByOne, setting);
  Prepare(opened, setting);
  OpenOneByOne(oneByOne.app, path);
  LoadMemoryFile(opened.app, path);
  std::string difference = FirstDifference(oneByOne.app, opened.app);
  if (difference.empty()) {
    difference = PlatformDifference(oneByOne.platform, opened.platform);
  }
  return difference;
}

ScreenInfo Screen(int width, int height, double twips = 15) {
  ScreenInfo screen;
  screen.widthPixels = width;
  screen.heightPixels = height;
  screen.twipsPerPixelX = twips;
  screen.twipsPerPixelY = twips;
  return screen;
}

const Rect kDefaultFrame{1575, 1635, 6000, 4000};

class MemoryFileArrangeTest : public ::testing::Test {
 protected:
  std::filesystem::path Write(const Rect& frame, std::int16_t width,
                              int count) {
    const std::filesystem::path path = scratch_.Folder() / "jobs.mem";
    EXPECT_TRUE(testing_support::WriteMemoryFileLines(path, frame, width, count,
                                                      ValueOf));
    return path;
  }

  // Counts 1 to `most` under one setting.
  void EveryCount(const Rect& frame, std::int16_t width, int most,
                  const Setting& setting) {
    for (int count = 1; count <= most; ++count) {
      const std::string difference =
          CompareOpens(Write(frame, width, count), setting);
      ASSERT_EQ(difference, "") << Describe(frame, width, count, setting);
    }
  }

  ScratchFolder scratch_;
};

TEST_F(MemoryFileArrangeTest, EveryCountUpTo300OnACommonScreen) {
  EveryCount(kDefaultFrame, 1935, 300, {});
}

TEST_F(MemoryFileArrangeTest, EveryCountUpTo300FromAMaximisedFrame) {
  // The erasing that comes first makes the frame normal again.
  Setting setting;
  setting.state = WindowState::kMaximized;
  setting.tapeVisible = false;
  EveryCount(kDefaultFrame, 1935, 300, setting);
}

TEST_F(MemoryFileArrangeTest, EveryCountUpTo300OnALowScreen) {
  // Rows cannot grow: the frame grows column by column until its width
  // overflows, and the layouts after that stop where they are.
  Setting setting;
  setting.screen = Screen(1280, 100);
  EveryCount({0, 0, 2055, 1040}, 1935, 300, setting);
}

TEST_F(MemoryFileArrangeTest, EveryCountUpTo300OnATallScreen) {
  // A screen taller than a 16-bit field: the rows grow until their
  // allowance overflows.
  Setting setting;
  setting.screen = Screen(800, 2600);
  setting.converterVisible = true;
  setting.resizeToggle = true;
  EveryCount({0, 0, 3000, 3000}, 2500, 300, setting);
}

TEST_F(MemoryFileArrangeTest, EveryCountUpTo300WithWideMemories) {
  // Two columns of 12,000 twips already overflow the next column's span.
  Setting setting;
  setting.memoriesBefore = 3;
  EveryCount(kDefaultFrame, 12000, 300, setting);
}

TEST_F(MemoryFileArrangeTest, EveryCountUpTo300WithNarrowMemories) {
  // A few twips wide: the frame's own grid is thousands of columns, whose
  // cells overflow.
  EveryCount(kDefaultFrame, 1, 300, {});
  EveryCount({0, 0, 20000, 6000}, 3, 300, {});
}

TEST_F(MemoryFileArrangeTest, EveryCountUpTo300FromAFrameOffTheScreen) {
  // The frame's size is its border alone.
  EveryCount({-20000, 500, 120, 450}, 1935, 300, {});
}

TEST_F(MemoryFileArrangeTest, FramesWidthsAndScreensAcross) {
  const std::vector<Rect> frames = {kDefaultFrame,
                                    {0, 0, 2055, 1035},
                                    {100, 100, 0, 0},
                                    {0, 0, 32767, 32767},
                                    {0, 0, 32767, 1500},
                                    {200, 300, 9795, 2205},
                                    {50000, 50000, 7000, 800}};
  const std::vector<std::int16_t> widths = {1935, 1,     100,   2047, 3000,
                                            8000, 16384, 32767, 0,    -5};
  const std::vector<int> counts = {1, 2, 3, 4, 5, 6, 9, 17, 40, 97, 250};
  const std::vector<ScreenInfo> screens = {
      Screen(1920, 1080), Screen(640, 100), Screen(100, 600),
      Screen(3840, 2400, 20), Screen(1366, 768, 10)};
  for (const Rect& frame : frames) {
    for (const std::int16_t width : widths) {
      for (const int count : counts) {
        const std::filesystem::path path = Write(frame, width, count);
        for (const ScreenInfo& screen : screens) {
          Setting setting;
          setting.screen = screen;
          setting.converterVisible = count % 2 == 0;
          setting.resizeToggle = count % 3 == 0;
          setting.memoriesBefore = count % 4;
          ASSERT_EQ(CompareOpens(path, setting), "")
              << Describe(frame, width, count, setting);
        }
      }
    }
  }
}

TEST_F(MemoryFileArrangeTest, AFileThatEndsEarlyLeavesTheSameWindows) {
  // The count promises 120 memories; the file ends inside the 77th.
  const std::filesystem::path whole = Write(kDefaultFrame, 1935, 120);
  std::ifstream in(whole, std::ios::binary);
  std::string bytes((std::istreambuf_iterator<char>(in)),
                    std::istreambuf_iterator<char>());
  in.close();
  std::size_t cut = 0;
  for (int line = 0; line < 6 + 2 * 76 + 1; ++line) {
    cut = bytes.find("\r\n", cut) + 2;
  }
  const std::filesystem::path part = scratch_.Folder() / "part.mem";
  std::ofstream(part, std::ios::binary) << bytes.substr(0, cut);
  ASSERT_EQ(CompareOpens(part, {}), "");
  TestProgram program;
  LoadMemoryFile(program.app, part);
  EXPECT_EQ(program.app.memory.Forms().size(), 76u);
}

TEST_F(MemoryFileArrangeTest, TheLastArrangementPlacesTheWindows) {
  // Not only equal to the old way: the places are those of one column
  // layout of all 40 memories in the frame the last layout made.
  TestProgram program;
  LoadMemoryFile(program.app, Write(kDefaultFrame, 1935, 40));
  const App& app = program.app;
  ASSERT_EQ(app.memory.Forms().size(), 40u);
  const int columns = static_cast<int>(
      (app.mainFrame.geometry.width - kFrameBorderWidth) / 1935);
  const int rows = static_cast<int>(
      (app.mainFrame.geometry.height - kFrameBorderHeight) / 585);
  ASSERT_GE(columns * rows, 40);
  ASSERT_LT((columns - 1) * rows, 40);
  for (int i = 0; i < 40; ++i) {
    const Rect& place =
        app.memory.Forms()[static_cast<std::size_t>(i)]->geometry;
    EXPECT_EQ(place.left, 1935.0f * static_cast<float>(i / rows)) << i;
    EXPECT_EQ(place.top, 585.0f * static_cast<float>(i % rows)) << i;
  }
}

// Whether the sanitizers watch this build: they make the quadratic
// one-by-one reference too slow for 32,767 memories.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool kSanitized = true;
#else
constexpr bool kSanitized = false;
#endif
#else
constexpr bool kSanitized = false;
#endif

TEST_F(MemoryFileArrangeTest, AsManyMemoriesAsTheFileCanCount) {
  // 32,767 memories in the default frame on a common screen: the layouts
  // stop at their 16-bit edge after some hundreds, so the later windows
  // stay where they were made, and the window counter stops one short.
  const std::filesystem::path path = Write(kDefaultFrame, 1935, 32767);
  TestProgram program;
  LoadMemoryFile(program.app, path);
  const MemoryState& memory = program.app.memory;
  ASSERT_EQ(memory.Forms().size(), 32767u);
  EXPECT_EQ(memory.windowCounter, 32767);
  EXPECT_EQ(memory.nextNumber, 32767);
  EXPECT_EQ(memory.Forms().back()->caption, "Memory32767");
  EXPECT_EQ(program.app.tapes.TapeNames().size(), 32768u);
  EXPECT_EQ(program.Memory(2).geometry, (Rect{0, 585, 1935, 585}));
  EXPECT_EQ(program.Memory(32767).geometry, (Rect{0, 0, 1935, 585}));
  if (kSanitized) return;
  ASSERT_EQ(CompareOpens(path, {}), "");
}

// The deferring in general, beyond what a memory file can reach (a file's
// erasing leaves the frame normal): memories made with New Memory inside a
// DeferredArrangement end as those made without one, in a maximised or
// minimised frame too.
void MakeMemories(TestProgram& program, const Setting& setting,
                  const Rect& frame, std::int16_t width, int count,
                  bool deferred) {
  App& app = program.app;
  Prepare(program, setting);
  app.mainFrame.geometry = frame;
  std::optional<DeferredArrangement> arrangement;
  if (deferred) arrangement.emplace(app);
  for (int k = 1; k <= count; ++k) {
    NewMemory_Click(app);
    if (k == 1) {
      app.memory.sharedWidth = width;
      SetMemoryWidth(*app.memory.Forms().front(), width);
    }
  }
}

std::string CompareMade(const Setting& setting, const Rect& frame,
                        std::int16_t width, int count) {
  TestProgram oneByOne;
  TestProgram deferred;
  MakeMemories(oneByOne, setting, frame, width, count, false);
  MakeMemories(deferred, setting, frame, width, count, true);
  std::string difference = FirstDifference(oneByOne.app, deferred.app);
  if (difference.empty()) {
    difference = PlatformDifference(oneByOne.platform, deferred.platform);
  }
  return difference;
}

void EveryCountMade(const Setting& setting, const Rect& frame,
                    std::int16_t width) {
  for (int count = 1; count <= 300; ++count) {
    ASSERT_EQ(CompareMade(setting, frame, width, count), "")
        << Describe(frame, width, count, setting);
  }
}

TEST(DeferredArrangementTest, PlacingTheWindowsCountsAsAChangeOfTheirForms) {
  // The frame looks at its windows only when their forms may have changed.
  TestProgram program;
  App& app = program.app;
  const MemoryState& memory = app.memory;
  std::uint64_t made = 0;
  {
    DeferredArrangement arrangement(app);
    for (int k = 0; k < 5; ++k) NewMemory_Click(app);
    EXPECT_EQ(memory.Forms()[4]->geometry.top, 0);
    made = memory.FormsRevision();
  }
  EXPECT_GT(memory.FormsRevision(), made);
  EXPECT_EQ(memory.Forms()[4]->geometry.top, 4 * 585);
}

TEST(DeferredArrangementTest, NewMemoriesInANormalFrame) {
  EveryCountMade({}, kDefaultFrame, 1935);
}

TEST(DeferredArrangementTest, NewMemoriesInAMaximisedFrame) {
  Setting setting;
  setting.state = WindowState::kMaximized;
  EveryCountMade(setting, kDefaultFrame, 1935);
  EveryCountMade(setting, {0, 0, 20000, 6000}, 3);
}

TEST(DeferredArrangementTest, NewMemoriesInAMinimisedFrame) {
  Setting setting;
  setting.state = WindowState::kMinimized;
  setting.tapeVisible = false;
  EveryCountMade(setting, {-20000, 500, 120, 450}, 1935);
}

TEST(DeferredArrangementTest, AColumnBeyondTheSixteenBitEdgeIsNeverReached) {
  // A maximised frame does not move, so nothing checks the grid's width
  // before the column loop: two columns of 16,384 twips fit, the low screen
  // turns the next row into a third column, whose left edge overflows.
  // Its windows stay where they were made.
  Setting setting;
  setting.state = WindowState::kMaximized;
  setting.screen = Screen(640, 100);
  EveryCountMade(setting, {0, 0, 32767, 1500}, 16384);
  TestProgram program;
  MakeMemories(program, setting, {0, 0, 32767, 1500}, 16384, 6, true);
  EXPECT_EQ(program.Memory(4).geometry, (Rect{16384, 585, 16384, 585}));
  EXPECT_EQ(program.Memory(5).geometry, (Rect{0, 0, 16384, 585}));
  EXPECT_EQ(program.Memory(6).geometry, (Rect{0, 0, 16384, 585}));
}

TEST(DeferredArrangementTest, FramesWidthsScreensAndStatesAcross) {
  const std::vector<Rect> frames = {kDefaultFrame,
                                    {0, 0, 32767, 1500},
                                    {0, 0, 32767, 32767},
                                    {100, 100, 0, 0}};
  const std::vector<std::int16_t> widths = {1935, 1, 3000, 9000, 16384, 0};
  const std::vector<int> counts = {3, 4, 5, 6, 7, 9, 17, 40, 97};
  const std::vector<ScreenInfo> screens = {Screen(1920, 1080), Screen(640, 100),
                                           Screen(3840, 2400, 20)};
  const std::vector<WindowState> states = {
      WindowState::kNormal, WindowState::kMaximized, WindowState::kMinimized};
  for (const Rect& frame : frames) {
    for (const std::int16_t width : widths) {
      for (const int count : counts) {
        for (const ScreenInfo& screen : screens) {
          for (const WindowState state : states) {
            Setting setting;
            setting.screen = screen;
            setting.state = state;
            setting.resizeToggle = count % 2 == 0;
            ASSERT_EQ(CompareMade(setting, frame, width, count), "")
                << Describe(frame, width, count, setting);
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace brenko
