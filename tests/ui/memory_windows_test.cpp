// The main frame and the memory windows as the user sees them: real
// sub-windows made and taken away with the memories, captions, values,
// colours and places from the models, and the windows' own events.
#include <QApplication>
#include <QCoreApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProgressBar>
#include <QProgressDialog>
#include <QScreen>
#include <QSet>
#include <QStyle>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

#include "core/base/settings_store.h"
#include "core/commands/app.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/startup.h"
#include "core/memory/memory_cells.h"
#include "program.h"
#include "support/memory_file_maker.h"
#include "ui/app_windows.h"
#include "ui/calculator_window.h"
#include "ui/main_frame_window.h"
#include "ui/memory_window.h"
#include "ui/paths.h"
#include "ui/qt_platform.h"
#include "ui/twips.h"

using namespace brenko;
using namespace brenko::ui;

namespace {

// A program run with the frame and memory windows at hand.
struct Rig : testing::Program {
  MainFrameWindow* Frame() { return windows.MainFrame(); }
  QMdiSubWindow* Sub(int number) {
    return Frame()->findChild<QMdiSubWindow*>(
        QStringLiteral("memory%1").arg(number));
  }
  QLabel* Value(int number) {
    QMdiSubWindow* sub = Sub(number);
    return sub ? sub->findChild<QLabel*>(QStringLiteral("Label1")) : nullptr;
  }
  int Pixels(float twips) {
    return TwipsToPixels(twips, platform.Screen().twipsPerPixelX);
  }
};

// Counts the paints each memory window (its frame and title bar) gets.
class PaintCounter : public QObject {
 public:
  PaintCounter() { QCoreApplication::instance()->installEventFilter(this); }
  ~PaintCounter() override {
    QCoreApplication::instance()->removeEventFilter(this);
  }
  PaintCounter(const PaintCounter&) = delete;
  PaintCounter& operator=(const PaintCounter&) = delete;

  QSet<QObject*> painted;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint &&
        qobject_cast<MemoryWindow*>(watched) != nullptr) {
      painted.insert(watched);
    }
    return false;
  }
};

// A memory file of thirty memories, the value of each from its index, in
// `folder`; empty if it could not be written.
std::filesystem::path ThirtyMemories(
    const QTemporaryDir& folder, const std::function<std::string(int)>& value) {
  const std::filesystem::path path =
      ToPath(folder.filePath(QStringLiteral("large.mem")));
  if (!testing_support::WriteMemoryFile(path, 30, value)) return {};
  return path;
}

// Thirty memories each holding a foot.
std::filesystem::path ThirtyFeet(const QTemporaryDir& folder) {
  return ThirtyMemories(folder, [](int) { return std::string(" 1'- 0\" "); });
}

// Delivers what is pending, the paints included.
void Settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

}  // namespace

class MemoryWindowsTest : public QObject {
  Q_OBJECT

 private slots:
  void frameIsNotMadeAtStartUp() {
    Rig rig;
    QVERIFY(rig.windows.Existing({WindowKind::kMainFrame, 0}) == nullptr);
  }

  void newMemoriesMakeRealSubWindows() {
    Rig rig;
    rig.NewMemories(3);
    MainFrameWindow* frame = rig.Frame();
    QCOMPARE(frame->objectName(), QStringLiteral("MDIForm1"));
    QVERIFY(frame->isVisible());
    QCOMPARE(frame->Area()->subWindowList().size(), 3);
    for (int n = 1; n <= 3; ++n) {
      QMdiSubWindow* sub = rig.Sub(n);
      QVERIFY(sub != nullptr);
      QVERIFY(sub->isVisible());
      QCOMPARE(sub->windowTitle(), QStringLiteral("Memory %1").arg(n));
      QCOMPARE(rig.Value(n)->text(), QStringLiteral("0."));
    }
  }

  void firstMemoryIsCaptionedMemory1() {
    Rig rig;
    rig.NewMemories(1);
    QCOMPARE(rig.Sub(1)->windowTitle(), QStringLiteral("Memory 1"));
    QCOMPARE(rig.app.memory.Forms()[0]->label1.tag, std::string("memory 1"));
  }

  void subWindowTakesTheModelsPlaceInPixels() {
    Rig rig;
    rig.NewMemories(2);
    const Rect& g = rig.app.memory.Find(2)->geometry;
    const QRect rect = rig.Sub(2)->geometry();
    QCOMPARE(rect.x(), rig.Pixels(g.left));
    QCOMPARE(rect.y(), rig.Pixels(g.top));
    QCOMPARE(rect.width(), rig.Pixels(g.width));
    QCOMPARE(rect.height(), rig.Pixels(g.height));
  }

  void frameClientAreaIsTheModelsInnerSize() {
    Rig rig;
    rig.NewMemories(1);
    const MainFrameForm& frame = rig.app.mainFrame;
    QCOMPARE(rig.Frame()->size(), QSize(rig.Pixels(frame.InnerWidth()),
                                        rig.Pixels(frame.InnerHeight())));
    QCOMPARE(rig.Frame()->windowTitle(), QString::fromStdString(frame.caption));
  }

  void colorsComeFromTheModel() {
    Rig rig;
    rig.app.colors.memoryBackground = 255;  // red
    rig.app.colors.memoryReadout = 65280;   // green
    rig.NewMemories(1);
    QMdiSubWindow* sub = rig.Sub(1);
    QCOMPARE(sub->widget()->palette().color(QPalette::Window),
             QColor(255, 0, 0));
    QCOMPARE(rig.Value(1)->palette().color(QPalette::Window),
             QColor(0, 255, 0));
  }

  void valueLabelDoubleClickClears() {
    Rig rig;
    rig.NewMemories(1);
    rig.app.memory.Find(1)->label1.caption = " 5'- 0\" ";
    rig.windows.Refresh();
    QCOMPARE(rig.Value(1)->text(), QStringLiteral(" 5'- 0\" "));
    QTest::mouseDClick(rig.Value(1), Qt::LeftButton);
    QCOMPARE(rig.Value(1)->text(), QStringLiteral("0."));
    QCOMPARE(rig.app.memory.Find(1)->label1.caption, std::string("0."));
  }

  void closingAMemoryWindowUnloadsIt() {
    Rig rig;
    rig.NewMemories(3);
    rig.Sub(2)->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(rig.app.memory.Forms().size(), std::size_t{2});
    QVERIFY(rig.Sub(2) == nullptr);
    QCOMPARE(rig.Frame()->Area()->subWindowList().size(), 2);
    // The number is not given back.
    rig.NewMemories(1);
    QCOMPARE(rig.Sub(4)->windowTitle(), QStringLiteral("Memory 4"));
  }

  void closingTheFrameEmptiesAndHidesIt() {
    Rig rig;
    rig.NewMemories(3);
    QVERIFY(!rig.Frame()->close());  // the close is refused: it only hides
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!rig.Frame()->isVisible());
    QCOMPARE(rig.Frame()->Area()->subWindowList().size(), 0);
    QCOMPARE(rig.Frame()->windowTitle(), QStringLiteral("Memory"));
    QVERIFY(rig.app.memory.Forms().empty());
    QVERIFY(!rig.windows.ShuttingDown());
    rig.NewMemories(1);
    QCOMPARE(rig.Sub(1)->windowTitle(), QStringLiteral("Memory 1"));
    QVERIFY(rig.Frame()->isVisible());
  }

  void eraseAllTakesEveryWindowAway() {
    Rig rig;
    rig.NewMemories(4);
    rig.windows.Run(EraseMemory_Click);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(rig.Frame()->MemoryCount(), 0);
    QCOMPARE(rig.Frame()->findChildren<MemoryWindow*>().size(), 0);
  }

  void eraseAllOfManyTakesThemAwayAtOnce() {
    Rig rig;
    rig.NewMemories(12);
    rig.Frame()->Area()->setActiveSubWindow(rig.Sub(5));
    rig.windows.Run(EraseMemory_Click);
    // Gone at once, the active one too, with no event loop in between.
    QCOMPARE(rig.Frame()->findChildren<MemoryWindow*>().size(), 0);
    QCOMPARE(rig.Frame()->Area()->subWindowList().size(), 0);
    QVERIFY(rig.Frame()->Area()->activeSubWindow() == nullptr);
    QVERIFY(!rig.Frame()->isVisible());
    QVERIFY(rig.Frame()->Area()->updatesEnabled());
    // And the frame takes new ones as before.
    rig.NewMemories(2);
    QCOMPARE(rig.Frame()->MemoryCount(), 2);
    QCOMPARE(rig.Sub(1)->windowTitle(), QStringLiteral("Memory 1"));
    QVERIFY(rig.Sub(2)->isVisible());
  }

  void aMemoryChangedAfterKeysIsShown() {
    Rig rig;
    rig.NewMemories(3);
    rig.Type(QStringLiteral("12+3\r"));
    rig.windows.Run(
        [](App& app) { app.memory.Find(2)->label1.caption = " 4'- 1\" "; });
    QCOMPARE(rig.Value(2)->text(), QStringLiteral(" 4'- 1\" "));
    QCOMPARE(rig.Value(1)->text(), QStringLiteral("0."));
    rig.Type(QStringLiteral("7"));
    rig.windows.Run([](App& app) { app.memory.Find(3)->caption = "Stock"; });
    QCOMPARE(rig.Sub(3)->windowTitle(), QStringLiteral("Stock"));
  }

  void memoriesKeepTheApplicationsStyleAndPalette() {
    const QString style = QApplication::style()->name();
    const QPalette palette = QApplication::palette();
    Rig rig;
    rig.NewMemories(2);
    QCOMPARE(QApplication::style()->name(), style);
    QCOMPARE(QApplication::palette(), palette);
    // The icons every memory window asks for are read once.
    const QIcon first = QApplication::style()->standardIcon(
        QStyle::SP_TitleBarCloseButton, nullptr, rig.Sub(1));
    const QIcon again = QApplication::style()->standardIcon(
        QStyle::SP_TitleBarCloseButton, nullptr, rig.Sub(2));
    QVERIFY(!first.isNull());
    QCOMPARE(again.cacheKey(), first.cacheKey());
  }

  void userResizeOfTheFrameReachesTheModel() {
    Rig rig;
    rig.NewMemories(1);
    const double tpp = rig.platform.Screen().twipsPerPixelX;
    rig.Frame()->resize(300, 200);
    const Rect& g = rig.app.mainFrame.geometry;
    // One memory: the arrangement sizes the frame to the memory (widest +
    // 120 wide, 1040 high) and the window follows.
    QCOMPARE(g.width, rig.app.memory.sharedWidth + 120.0f);
    QCOMPARE(g.height, 1040.0f);
    QCOMPARE(rig.Frame()->width(),
             TwipsToPixels(g.width - kFrameBorderWidth, tpp));
  }

  void userResizeOfAMemoryWidensEveryMemory() {
    Rig rig;
    rig.NewMemories(2);
    QMdiSubWindow* sub = rig.Sub(1);
    sub->resize(200, sub->height());
    const double tpp = rig.platform.Screen().twipsPerPixelX;
    QCOMPARE(rig.app.memory.sharedWidth, static_cast<float>(200 * tpp));
    QCOMPARE(rig.Sub(2)->width(), 200);
  }

  void minimisingTheFrameReachesTheModel() {
    Rig rig;
    rig.NewMemories(1);
    rig.Frame()->showMinimized();
    QCOMPARE(rig.app.mainFrame.state, WindowState::kMinimized);
    rig.Frame()->showNormal();
    QCOMPARE(rig.app.mainFrame.state, WindowState::kNormal);
  }

  void movingTheFrameKeepsItsPlace() {
    Rig rig;
    rig.NewMemories(1);
    rig.Frame()->move(200, 100);
    QTRY_COMPARE(rig.app.mainFrame.geometry.left, 3000.0f);
    QCOMPARE(rig.app.mainFrame.geometry.top, 1500.0f);
  }

  void memoryWindowsKeepTheirOrderAndNumbers() {
    Rig rig;
    rig.NewMemories(3);
    rig.windows.Run([](App& a) { MemoryForm_Form_Unload(a, 1); });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(rig.Frame()->Memory(1) == nullptr);
    QCOMPARE(rig.Frame()->Memory(3)->Number(), 3);
    QCOMPARE(rig.windows.Existing({WindowKind::kMemory, 3}),
             static_cast<QWidget*>(rig.Frame()->Memory(3)));
  }

  // The area repaints the title bar of every window at each activation; a
  // new memory repaints only itself and the window that was active.
  void aNewMemoryRepaintsNoOtherMemoryWindow() {
    Rig rig;
    rig.NewMemories(8);
    Settle();
    QMdiSubWindow* was = rig.Frame()->Area()->activeSubWindow();
    if (was == nullptr) QSKIP("the offscreen platform activated no memory");
    PaintCounter counter;
    rig.NewMemories(1);
    Settle();
    QCOMPARE(rig.Frame()->Area()->activeSubWindow(), rig.Sub(9));
    QVERIFY(counter.painted.contains(rig.Sub(9)));
    QVERIFY(counter.painted.contains(was));
    QCOMPARE(counter.painted.size(), 2);
    // Every window paints as before afterwards: its caption changed shows.
    for (MemoryWindow* window : rig.Frame()->findChildren<MemoryWindow*>()) {
      QVERIFY(window->updatesEnabled());
    }
    counter.painted.clear();
    rig.windows.Run([](App& app) { app.memory.Find(4)->caption = "Stock"; });
    Settle();
    QVERIFY(counter.painted.contains(rig.Sub(4)));
    // A click on another memory: the two whose look changes, no others.
    counter.painted.clear();
    rig.Frame()->Area()->setActiveSubWindow(rig.Sub(2));
    Settle();
    QCOMPARE(counter.painted,
             (QSet<QObject*>{rig.Sub(2), static_cast<QObject*>(rig.Sub(9))}));
  }

  // The title is fitted to the title bar when the bar is painted: shown
  // whole where it fits, cut with an ellipsis where it does not, and the
  // bar shows each new caption.
  void theTitleBarShowsTheCaptionFitted() {
    Rig rig;
    rig.NewMemories(2);
    Settle();
    auto* window = qobject_cast<MemoryWindow*>(rig.Sub(1));
    QVERIFY(window != nullptr);
    QCOMPARE(window->ShownTitle(1000), QStringLiteral("Memory 1"));
    const QString cut = window->ShownTitle(
        QFontMetrics(window->TitleFont()).horizontalAdvance("Mem"));
    QVERIFY2(cut.endsWith(QChar(0x2026)), qPrintable(cut));
    QVERIFY(cut.size() < 8);
    const QRect bar(0, 0, window->width(), 12);
    const QImage before = window->grab(bar).toImage();
    rig.windows.Run([](App& app) { app.memory.Find(1)->caption = "Stock"; });
    Settle();
    QCOMPARE(window->windowTitle(), QStringLiteral("Stock"));
    QCOMPARE(window->ShownTitle(1000), QStringLiteral("Stock"));
    QVERIFY(window->grab(bar).toImage() != before);
    rig.windows.Run([](App& app) { app.memory.Find(1)->caption = "Memory 1"; });
    Settle();
    QCOMPARE(window->grab(bar).toImage(), before);
  }

  // A file of more memories than the frame makes windows for at once: the
  // windows are made a step at a time behind a progress dialog, the event
  // loop running in between, then come into sight a step at a time, the
  // topmost first, and end as if they had come at once.
  void aLargeFilesWindowsComeAStepAtATime() {
    Rig rig;
    QTemporaryDir folder;
    const std::filesystem::path path = ThirtyMemories(
        folder, [](int i) { return " " + std::to_string(i + 1) + "'- 0\" "; });
    QVERIFY(!path.empty());
    rig.Frame()->SetPace({10, 4, 8});
    rig.windows.Run([&path](App& app) { OpenMemoryFilePath(app, path); });
    QCOMPARE(rig.app.memory.Forms().size(), std::size_t{30});
    QCOMPARE(rig.Frame()->MemoryCount(), 4);
    auto* progress = rig.windows.Calculator()->findChild<QProgressDialog*>(
        QStringLiteral("MemoryProgress"));
    QVERIFY(progress != nullptr);
    QCOMPARE(progress->windowModality(), Qt::ApplicationModal);
    QCOMPARE(progress->minimumDuration(), 500);
    // A dialog's buttons: close only.
    QVERIFY(progress->windowFlags().testFlag(Qt::CustomizeWindowHint));
    QVERIFY(!progress->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    QVERIFY(!progress->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    QCOMPARE(progress->labelText(),
             QStringLiteral("Opening the memories\u2026"));
    auto* bar =
        progress->findChild<QProgressBar*>(QStringLiteral("MemoryProgressBar"));
    QVERIFY(bar != nullptr);
    // Half the bar for making the windows, half for showing them.
    QCOMPARE(bar->maximum(), 60);
    QCOMPARE(bar->value(), 4);
    QVERIFY(rig.Frame()->Area()->isHidden());
    for (int n = 1; n <= 4; ++n) {
      QVERIFY(rig.Sub(n)->isHidden());
      QVERIFY(!rig.Sub(n)->isEnabled());
      QCOMPARE(rig.Value(n)->text(),
               QString::fromStdString(rig.app.memory.Find(n)->label1.caption));
    }
    // More at the next turns of the event loop, a step at a time.
    QCoreApplication::processEvents();
    const int next = rig.Frame()->MemoryCount();
    QVERIFY(next > 4 && next < 30 && next % 4 == 0);
    QCOMPARE(bar->value(), next);
    for (int turn = 0; turn < 10 && rig.Frame()->MemoryCount() < 30; ++turn) {
      QCoreApplication::processEvents();
    }
    QCOMPARE(rig.Frame()->MemoryCount(), 30);
    // All made: the area comes back, the windows still out of sight, then
    // eight at each turn, the last made (the topmost) first.
    QVERIFY(!rig.Frame()->Area()->isHidden());
    const auto shown = [&rig] {
      int count = 0;
      for (int n = 1; n <= 30; ++n) count += rig.Sub(n)->isVisible() ? 1 : 0;
      return count;
    };
    QCOMPARE(shown(), 0);
    QCOMPARE(bar->value(), 30);
    QCoreApplication::processEvents();
    QCOMPARE(shown(), 8);
    QCOMPARE(bar->value(), 38);
    for (int n = 1; n <= 30; ++n) {
      QCOMPARE(rig.Sub(n)->isVisible(), n > 22);
      QCOMPARE(rig.Sub(n)->isEnabled(), n > 22);
    }
    QCoreApplication::processEvents();
    QCOMPARE(shown(), 16);
    QCOMPARE(bar->value(), 46);
    QVERIFY(rig.Frame()->Stepping());
    // The other fourteen in two turns, then the last made active and the
    // dialog closed at the turn after.
    for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
    QCOMPARE(shown(), 30);
    QVERIFY(rig.windows.Calculator()->findChild<QProgressDialog*>(
                QStringLiteral("MemoryProgress")) == nullptr);
    QVERIFY(!rig.Frame()->Stepping());
    Settle();
    QVERIFY(!rig.Frame()->Area()->isHidden());
    QCOMPARE(rig.Frame()->Area()->subWindowList().size(), 30);
    for (int n = 1; n <= 30; ++n) {
      QVERIFY(rig.Sub(n)->isVisible());
      QVERIFY(rig.Sub(n)->isEnabled());
      QCOMPARE(rig.Value(n)->text(),
               QString::fromStdString(rig.app.memory.Find(n)->label1.caption));
      QCOMPARE(rig.Sub(n)->geometry(),
               TwipsToPixels(rig.app.memory.Find(n)->geometry,
                             rig.platform.Screen().twipsPerPixelX,
                             rig.platform.Screen().twipsPerPixelY));
    }
    QCOMPARE(rig.Value(7)->text(), QStringLiteral(" 7'- 0\" "));
    QCOMPARE(rig.Frame()->Area()->activeSubWindow(), rig.Sub(30));
    // The frame on the screen is what it draws afresh: each window was
    // painted where it lies, none left out.
    MainFrameWindow* frame = rig.Frame();
    const QImage onScreen = frame->screen()
                                ->grabWindow(frame->winId())
                                .toImage()
                                .convertToFormat(QImage::Format_RGB32);
    const QImage drawn =
        frame->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(onScreen.size(), drawn.size());
    QCOMPARE(onScreen, drawn);
  }

  // Erase All of more windows than go at once: all go out of sight at
  // once, then are deleted a step at a time, the area shown again after the
  // last; a window made meanwhile has the rest deleted first and is shown.
  void manyWindowsGoOutOfSightAtOnceThenAStepAtATime() {
    Rig rig;
    QTemporaryDir folder;
    const std::filesystem::path path = ThirtyFeet(folder);
    QVERIFY(!path.empty());
    rig.Frame()->SetPace({10, 4, 8, 6});
    const auto open = [&rig, &path] {
      rig.windows.Run([&path](App& app) { OpenMemoryFilePath(app, path); });
      for (int turn = 0; turn < 20 && rig.Frame()->Stepping(); ++turn) {
        QCoreApplication::processEvents();
      }
    };
    const auto left = [&rig] {
      return static_cast<int>(
          rig.Frame()->findChildren<MemoryWindow*>().size());
    };
    open();
    QVERIFY(!rig.Frame()->Stepping());
    QCOMPARE(rig.Frame()->MemoryCount(), 30);
    rig.windows.Run(EraseMemory_Click);
    QCOMPARE(rig.app.memory.Forms().size(), std::size_t{0});
    QCOMPARE(rig.Frame()->MemoryCount(), 0);
    QVERIFY(rig.Frame()->TakingAway());
    QCOMPARE(left(), 30);
    // Out of sight with the area, which stays hidden while they go.
    for (MemoryWindow* window : rig.Frame()->findChildren<MemoryWindow*>()) {
      QVERIFY(!window->isVisible());
    }
    QVERIFY(rig.Frame()->Area()->isHidden());
    for (int turn = 1; turn <= 5; ++turn) {
      QCoreApplication::processEvents();
      QCOMPARE(left(), 30 - 6 * turn);
    }
    QVERIFY(!rig.Frame()->TakingAway());
    QVERIFY(!rig.Frame()->Area()->isHidden());

    open();
    QCOMPARE(rig.Frame()->MemoryCount(), 30);
    rig.windows.Run(EraseMemory_Click);
    QCoreApplication::processEvents();
    QCOMPARE(left(), 24);
    // A new memory now: the rest go first, the new window is shown.
    rig.NewMemories(1);
    QVERIFY(!rig.Frame()->TakingAway());
    QCOMPARE(left(), 1);
    QCOMPARE(rig.Frame()->MemoryCount(), 1);
    QVERIFY(!rig.Frame()->Area()->isHidden());
    QVERIFY(rig.Sub(1)->isVisible());
    QCOMPARE(rig.Value(1)->text(), QStringLiteral("0."));

    // A file of five opened over thirty shown windows: the five stay, the
    // twenty-five going are each hidden, for the area shows the five.
    open();
    QCOMPARE(left(), 30);
    std::vector<QPointer<QMdiSubWindow>> going;
    for (int n = 6; n <= 30; ++n) going.emplace_back(rig.Sub(n));
    const std::filesystem::path five = ToPath(folder.filePath("five.mem"));
    QVERIFY(testing_support::WriteMemoryFile(
        five, 5, [](int) { return std::string(" 2'- 0\" "); }));
    rig.windows.Run([&five](App& app) { OpenMemoryFilePath(app, five); });
    QVERIFY(rig.Frame()->TakingAway());
    for (const QPointer<QMdiSubWindow>& window : going) {
      QVERIFY(window);
      QVERIFY(window->isHidden());
    }
    QVERIFY(!rig.Frame()->Area()->isHidden());
    QVERIFY(rig.Sub(5)->isVisible());
    for (int turn = 0; turn < 10 && rig.Frame()->TakingAway(); ++turn) {
      QCoreApplication::processEvents();
    }
    QCOMPARE(left(), 5);
    for (const QPointer<QMdiSubWindow>& window : going) QVERIFY(!window);
  }

  // Erase All while the windows come: none are left, nor the dialog.
  void erasingWhileALargeFilesWindowsComeLeavesNone() {
    Rig rig;
    QTemporaryDir folder;
    const std::filesystem::path path = ThirtyFeet(folder);
    QVERIFY(!path.empty());
    rig.Frame()->SetPace({10, 4});
    rig.windows.Run([&path](App& app) { OpenMemoryFilePath(app, path); });
    QCOMPARE(rig.Frame()->MemoryCount(), 4);
    rig.windows.Run(EraseMemory_Click);
    Settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(rig.Frame()->MemoryCount(), 0);
    QCOMPARE(rig.Frame()->findChildren<MemoryWindow*>().size(), 0);
    QVERIFY(rig.windows.Calculator()->findChild<QProgressDialog*>(
                QStringLiteral("MemoryProgress")) == nullptr);
    QVERIFY(!rig.Frame()->Area()->isHidden());
    rig.NewMemories(1);
    QCOMPARE(rig.Frame()->MemoryCount(), 1);
    QVERIFY(rig.Sub(1)->isVisible());
  }

  void activatingAMemoryShowsItsTape() {
    Rig rig;
    rig.NewMemories(2);
    rig.Frame()->Area()->setActiveSubWindow(rig.Sub(1));
    rig.Frame()->Area()->setActiveSubWindow(rig.Sub(2));
    if (rig.Frame()->Area()->activeSubWindow() != rig.Sub(2)) {
      QSKIP("the offscreen platform did not activate the frame");
    }
    QCOMPARE(rig.app.memory.current, std::int16_t{2});
    QCOMPARE(rig.app.tapeWindow.title.caption, std::string("Memory 2"));
  }
};

QTEST_MAIN(MemoryWindowsTest)
#include "memory_windows_test.moc"
