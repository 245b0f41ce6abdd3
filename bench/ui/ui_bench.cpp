// The real windows under a real event loop, timed from the event that starts
// a change to the end of the paint that shows it: a typed key, a whole
// calculation, New Memory, opening a memory file, Erase All and stepping the
// tape, each with few and with many memories. Run it from a Release build,
// under QT_QPA_PLATFORM=offscreen or an X server:
//
//     QT_QPA_PLATFORM=offscreen build-rel/bench/ui/ui_bench [--quick] [GROUP]
//
// Each line gives the median and the 90th percentile of its samples in
// microseconds. Nothing here is a test: the figures are read, compared
// between builds and with other programs, never asserted.

#include <QApplication>
#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/commands/app.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/startup.h"
#include "core/commands/tape_handlers.h"
#include "core/memory/memory_file.h"
#include "fake/fake_platform.h"
#include "os/stack_room.h"
#include "support/memory_file_maker.h"
#include "ui/app_windows.h"
#include "ui/calculator_window.h"
#include "ui/main_frame_window.h"
#include "ui/paths.h"
#include "ui/qt_platform.h"

namespace brenko::ui {
namespace {

using Clock = std::chrono::steady_clock;

// The Qt platform without its modal dialogs: a question is answered Yes at
// once, so that nothing waits for a hand on the mouse.
class QuietPlatform : public QtPlatform {
 public:
  void ShowPopupMenu(const std::string&) override {}
  MsgAnswer MessageBox(const std::string&, const std::string&, MsgButtons,
                       MsgIcon) override {
    return MsgAnswer::kYes;
  }
  void Beep() override {}
};

// The program as it starts, with its windows on screen.
struct Program {
  QuietPlatform platform;
  MemorySettingsStore store;
  App app{platform, store};
  AppWindows windows{app, platform};

  Program() {
    windows.Run([](App& a) { Form_Load(a); });
    Settle();
  }
  ~Program() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Delivers what is pending, the paints included.
  static void Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }

  // One key as the keyboard gives it: press and release on the calculator.
  void Key(Qt::Key key, const QString& text) {
    QWidget* target = windows.Calculator()->Client();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(target, &release);
  }
  void Type(const std::string& keys) {
    for (char c : keys) {
      if (c == '\x1b') {
        Key(Qt::Key_Escape, QString(QChar(0x1b)));
      } else if (c == '=') {
        Key(Qt::Key_Return, QStringLiteral("\r"));
      } else {
        Key(static_cast<Qt::Key>(c), QString(QLatin1Char(c)));
      }
    }
  }

  void Open(const std::string& path) {
    windows.Run([&path](App& a) { OpenMemoryFilePath(a, path); });
    Settle();
  }
};

// Writes a memory file of `count` memories, each with a value, to `path`;
// whether it was written.
bool WriteMemoryFileOf(const std::filesystem::path& path, int count) {
  return testing_support::WriteMemoryFile(path, count, [](int i) {
    return " " + std::to_string(i) + "'- 7 3/16\" ";
  });
}

struct Figures {
  double median;
  double p90;
};

Figures Summary(std::vector<double> us) {
  std::sort(us.begin(), us.end());
  const auto at = [&](double q) {
    return us[std::min(us.size() - 1, static_cast<std::size_t>(
                                          q * static_cast<double>(us.size())))];
  };
  return {at(0.5), at(0.9)};
}

double Microseconds(const std::function<void()>& step) {
  const auto start = Clock::now();
  step();
  Program::Settle();
  return std::chrono::duration<double, std::micro>(Clock::now() - start)
      .count();
}

void Report(const std::string& name, const std::vector<double>& samples) {
  const Figures f = Summary(samples);
  std::printf("%-34s median %10.1f us   p90 %10.1f us   (n=%zu)\n",
              name.c_str(), f.median, f.p90, samples.size());
  std::fflush(stdout);
}

// Typed keys, one at a time, each with its paint: digits, then Escape.
void KeyToPaint(Program& p, const std::string& name, int samples) {
  const std::string keys = "123456789\x1b";
  for (int i = 0; i < 20; ++i) p.Type(std::string(1, keys[i % keys.size()]));
  Program::Settle();
  std::vector<double> us;
  for (int i = 0; i < samples; ++i) {
    const char c = keys[static_cast<std::size_t>(i) % keys.size()];
    us.push_back(Microseconds([&] { p.Type(std::string(1, c)); }));
  }
  Report(name, us);
}

// A whole calculation on the calculator's tape: 12 + 3 =, then Escape.
void Calculation(Program& p, const std::string& name, int samples) {
  std::vector<double> us;
  for (int i = 0; i < samples; ++i) {
    us.push_back(Microseconds([&] { p.Type("12+3=\x1b"); }));
  }
  Report(name, us);
}

void NewMemory(const std::string& file, int count, int samples) {
  Program p;
  if (count > 0) p.Open(file);
  std::vector<double> us;
  for (int i = 0; i < samples; ++i) {
    us.push_back(Microseconds([&] { p.windows.Run(NewMemory_Click); }));
  }
  Report("new memory at " + std::to_string(count), us);
}

void OpenFile(const std::string& file, int count, int samples) {
  std::vector<double> us;
  for (int i = 0; i < samples; ++i) {
    Program p;
    us.push_back(Microseconds([&] { p.Open(file); }));
  }
  Report("open file of " + std::to_string(count), us);
}

// Runs `step` and the event loop until `done`: the time it took; the
// longest the event loop was away, as the largest gap between two beats of
// a zero timer (a processEvents call may run many steps, timers fire
// between them), and the gaps longer than a tenth of a second.
void Watched(const std::string& name, const std::function<void()>& step,
             const std::function<bool()>& done) {
  const auto start = Clock::now();
  auto beat = start;
  double longest = 0;
  std::vector<double> longWaits;
  QTimer heartbeat;
  heartbeat.setInterval(0);
  QObject::connect(&heartbeat, &QTimer::timeout, [&] {
    const auto now = Clock::now();
    const double wait =
        std::chrono::duration<double, std::micro>(now - beat).count();
    longest = std::max(longest, wait);
    if (wait > 100000) longWaits.push_back(wait);
    beat = now;
  });
  heartbeat.start();
  step();
  while (!done()) QCoreApplication::processEvents();
  Program::Settle();
  heartbeat.stop();
  Report(name, {std::chrono::duration<double, std::micro>(Clock::now() - start)
                    .count()});
  Report("  longest wait for the event loop", {longest});
  if (!longWaits.empty()) Report("  waits over 0.1 s", longWaits);
}

// A file whose windows come a step at a time, until all are shown and the
// last step is done; then Erase All of them, until all are deleted.
void HugeFile(const std::string& file, int count) {
  Program p;
  Watched(
      "open file of " + std::to_string(count),
      [&] { p.windows.Run([&file](App& a) { OpenMemoryFilePath(a, file); }); },
      [&] {
        const MainFrameWindow* frame = p.windows.MainFrame();
        return frame->MemoryCount() >= count && !frame->Stepping();
      });
  Watched(
      "erase all of " + std::to_string(count),
      [&] { p.windows.Run(EraseMemory_Click); },
      [&] { return !p.windows.MainFrame()->TakingAway(); });
}

void EraseAll(const std::string& file, int count, int samples) {
  std::vector<double> us;
  for (int i = 0; i < samples; ++i) {
    Program p;
    p.Open(file);
    us.push_back(Microseconds([&] { p.windows.Run(EraseMemory_Click); }));
  }
  Report("erase all of " + std::to_string(count), us);
}

void StepTape(Program& p, const std::string& name, int samples) {
  std::vector<double> us;
  for (int i = 0; i < samples; ++i) {
    us.push_back(Microseconds(
        [&] { p.windows.Run([](App& a) { cmdScrollTape_Click(a, 1); }); }));
  }
  Report(name, us);
}

int Main(bool quick, const std::string& only) {
  const int keys = quick ? 60 : 300;
  const int big = 1000;
  // The memory files in a folder of this run's own, removed at the end.
  QTemporaryDir folder;
  if (!folder.isValid()) {
    std::fprintf(stderr, "ui_bench: no temporary folder\n");
    return 1;
  }
  const auto memoryFileOf = [&folder](int count) {
    const std::filesystem::path path = ToPath(
        folder.filePath(QString::number(count) + QStringLiteral(".mem")));
    if (!WriteMemoryFileOf(path, count)) {
      std::fprintf(stderr, "ui_bench: could not write %s\n",
                   path.string().c_str());
      std::exit(1);
    }
    return path.string();
  };
  const std::string file10 = memoryFileOf(10);
  const std::string file100 = memoryFileOf(100);
  const std::string file1000 = memoryFileOf(big);
  // Runs a group of cases unless a filter names another.
  const auto group = [&only](const char* name,
                             const std::function<void()>& run) {
    if (only.empty() || only == name) run();
  };
  group("small", [&] {
    Program p;
    KeyToPaint(p, "key to paint, no memories", keys);
    Calculation(p, "calculation, no memories", keys / 5);
    StepTape(p, "step tape, 1 column", keys / 3);
  });
  group("large", [&] {
    Program p;
    p.Open(file1000);
    KeyToPaint(p, "key to paint, 1000 memories", keys);
    Calculation(p, "calculation, 1000 memories", keys / 5);
    StepTape(p, "step tape, 1001 columns", keys / 3);
  });
  // The calculation alone, with none and with 1,000 memory tapes, side by
  // side and with more samples: the pair the flat-cost target compares.
  group("calc", [&] {
    Program none;
    Program many;
    many.Open(file1000);
    for (int round = 0; round < 3; ++round) {
      Calculation(none, "calculation, no memories", keys);
      Calculation(many, "calculation, 1000 memories", keys);
    }
  });
  group("new", [&] {
    NewMemory(file10, 10, quick ? 5 : 20);
    NewMemory(file100, 100, quick ? 5 : 20);
    NewMemory(file1000, big, quick ? 5 : 20);
  });
  group("new1000", [&] { NewMemory(file1000, big, 60); });
  group("open", [&] {
    OpenFile(file100, 100, quick ? 2 : 5);
    OpenFile(file1000, big, quick ? 1 : 3);
  });
  group("erase", [&] { EraseAll(file1000, big, quick ? 1 : 3); });
  // The largest file the format allows, opened once (not in the default
  // run: it takes seconds).
  if (only == "huge") HugeFile(memoryFileOf(32767), 32767);
  return 0;
}

}  // namespace
}  // namespace brenko::ui

int main(int argc, char** argv) {
  // --quick takes fewer samples; a group's name (small, large, calc, new,
  // new1000, open, erase, huge) runs that group alone.
  // --memory-file N PATH writes a memory file of N memories and ends
  // (bench/key_latency opens one in the program itself).
  bool quick = false;
  std::string only;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--memory-file" && i + 2 < argc) {
      // Straight to PATH: no file made elsewhere and moved there.
      return brenko::ui::WriteMemoryFileOf(argv[i + 2], std::atoi(argv[i + 1]))
                 ? 0
                 : 1;
    }
    if (arg == "--quick") {
      quick = true;
    } else if (arg.rfind("--", 0) != 0) {
      only = arg;
    }
  }
  brenko::os::MakeStackRoom();
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return brenko::ui::Main(quick, only);
}
