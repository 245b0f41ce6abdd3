// The keyboard and the clipboard on the real windows: Copy and Paste on
// the calculator, a memory and the tape; text dragged in and out; the
// memory windows' context menu and Ctrl+Tab; the menu commands' keys and
// access keys; and no key that works as a shortcut is typed as well.
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>
#include <string>

#include "core/commands/app.h"
#include "core/commands/calc_handlers.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/memory_commands.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/measure/blanks.h"
#include "program.h"
#include "ui/calculator_window.h"
#include "ui/converter_window.h"
#include "ui/drag_controller.h"
#include "ui/main_frame_window.h"
#include "ui/memory_window.h"
#include "ui/tape_window.h"

using namespace brenko;
using namespace brenko::ui;

namespace {

struct Rig : testing::Program {
  Rig() {
    calc()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(calc()));
  }
  QAction* CalcAction(const char* name) {
    return calc()->findChild<QAction*>(QString::fromLatin1(name));
  }
  MemoryWindow* Memory(int number) {
    return windows.MainFrame()->Memory(number);
  }
  QString Clipboard() { return QGuiApplication::clipboard()->text(); }
  void SetClipboard(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
  }
  // Keys pressed on the calculator as the user presses them.
  void Press(QKeyCombination key) {
    QTest::keyClick(calc()->Client(), key.key(), key.keyboardModifiers());
  }
  void ActivateFrame(int memory) {
    MainFrameWindow* frame = windows.MainFrame();
    frame->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(frame));
    frame->Area()->setActiveSubWindow(Memory(memory));
  }
  void PressOnFrame(QKeyCombination key) {
    QWidget* focus = QApplication::focusWidget();
    QWidget* target = focus != nullptr && focus->window() == windows.MainFrame()
                          ? focus
                          : windows.MainFrame();
    QTest::keyClick(target, key.key(), key.keyboardModifiers());
  }
};

std::unique_ptr<QMimeData> TextMime(const QString& text) {
  auto mime = std::make_unique<QMimeData>();
  mime->setText(text);
  return mime;
}

}  // namespace

class ClipboardKeysTest : public QObject {
  Q_OBJECT

 private slots:
  void ctrlCCopiesTheReadoutAndDoesNotClear() {
    Rig rig;
    rig.Type("18'\r+1 3/16\"\r");
    QCOMPARE(rig.Readout(), std::string(" 18'- 1 3/16\""));
    rig.SetClipboard(QStringLiteral("nothing yet"));
    // "c" typed alone clears all; with Ctrl it is Copy and only Copy.
    rig.Press(Qt::CTRL | Qt::Key_C);
    QCOMPARE(rig.Clipboard(), QStringLiteral("18'- 1 3/16\""));
    QCOMPARE(rig.Readout(), std::string(" 18'- 1 3/16\""));
    rig.SetClipboard(QString());
    rig.Press(Qt::CTRL | Qt::Key_Insert);
    QCOMPARE(rig.Clipboard(), QStringLiteral("18'- 1 3/16\""));
  }

  void ctrlVPastesAnEntry() {
    Rig rig;
    rig.Type("2'\r+");
    rig.SetClipboard(QStringLiteral(" 1'- 6\"\n"));
    rig.Press(Qt::CTRL | Qt::Key_V);
    QCOMPARE(rig.ShownReadout(), QStringLiteral("1'- 6\""));
    rig.Type("\r");
    QCOMPARE(rig.Readout(), std::string(" 3'- 6\""));
    rig.SetClipboard(QStringLiteral("7"));
    rig.Press(Qt::SHIFT | Qt::Key_Insert);
    QCOMPARE(rig.Readout(), std::string("7"));
    QCOMPARE(rig.platform.beeps, 0);
  }

  void aRefusedPasteBeepsOnce() {
    Rig rig;
    rig.Type("12");
    for (const QString& text :
         {QString(), QStringLiteral("abc"), QStringLiteral("1 2 3"),
          QString(10000, QLatin1Char('1')), QStringLiteral("1\x01"),
          QStringLiteral("4\n5")}) {
      const int beeps = rig.platform.beeps;
      rig.SetClipboard(text);
      rig.Press(Qt::CTRL | Qt::Key_V);
      QCOMPARE(rig.platform.beeps, beeps + 1);
      QCOMPARE(rig.Readout(), std::string("12"));
    }
  }

  void aMemoryCopiesItsValue() {
    Rig rig;
    rig.NewMemories(2);
    rig.Type("3'\r");
    QAction* copy = rig.windows.MainFrame()->findChild<QAction*>(
        QStringLiteral("CopyMemory"));
    QVERIFY(copy != nullptr);
    rig.ActivateFrame(1);
    QMenu* menu = nullptr;
    rig.PressOnFrame(Qt::SHIFT | Qt::Key_F10);
    menu = rig.Memory(1)->findChild<QMenu*>(QStringLiteral("mnuMemoryPopup"));
    QVERIFY(menu != nullptr);
    QAction* add = menu->findChild<QAction*>(QStringLiteral("mnuMemoryAdd"));
    QVERIFY(add != nullptr);
    QCOMPARE(menu->actions().size(), 5);
    QCOMPARE(add->text(), QStringLiteral("&Add Readout"));
    add->trigger();
    menu->close();
    QCOMPARE(rig.Memory(1)->ValueLabel()->text(), QStringLiteral(" 3'- 0\" "));
    QCOMPARE(rig.Tape(1), std::string(" + 3'- \n---------------- \n 3'- 0\" "));
    rig.SetClipboard(QString());
    rig.ActivateFrame(1);
    rig.PressOnFrame(Qt::CTRL | Qt::Key_C);
    QCOMPARE(rig.Clipboard(), QStringLiteral("3'- 0\""));
  }

  void ctrlTabMovesBetweenMemoriesAndMarksTheActiveOne() {
    Rig rig;
    rig.NewMemories(3);
    rig.ActivateFrame(1);
    QMdiArea* area = rig.windows.MainFrame()->Area();
    QCOMPARE(area->activeSubWindow(), rig.Memory(1));
    QVERIFY(rig.Memory(1)->ValueLabel()->property("activeMemory").toBool());
    rig.PressOnFrame(Qt::CTRL | Qt::Key_Tab);
    QMdiSubWindow* second = area->activeSubWindow();
    QVERIFY(second != rig.Memory(1));
    QVERIFY(!rig.Memory(1)->ValueLabel()->property("activeMemory").toBool());
    QVERIFY(qobject_cast<MemoryWindow*>(second)
                ->ValueLabel()
                ->property("activeMemory")
                .toBool());
    // The activation is the memory's own: its tape is the one shown.
    QCOMPARE(static_cast<int>(rig.app.tapes.ShownTape),
             qobject_cast<MemoryWindow*>(second)->Number());
    rig.PressOnFrame(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab);
    QCOMPARE(area->activeSubWindow(), rig.Memory(1));
  }

  void theTapeCopiesItsLines() {
    Rig rig;
    rig.Type("5\r+3\r");
    QVERIFY(TapeLines(rig.app.tapes, 0).size() >= 3);
    QTableView* grid = rig.tape()->Grid();
    std::string whole;
    for (const std::string& line : TapeLines(rig.app.tapes, 0)) {
      whole +=
          (whole.empty() ? "" : "\n") + std::string(TrimTrailingBlanks(line));
    }
    QVERIFY(!whole.empty());
    rig.tape()->show();
    rig.tape()->activateWindow();
    // The tape is the calculator's tool window, which Qt counts as active
    // with the calculator: wait for the tape's own activation.
    QTRY_COMPARE(QApplication::activeWindow(), rig.tape());
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(rig.Clipboard(), QString::fromStdString(whole));
    grid->selectRow(2);
    QTest::keyClick(grid, Qt::Key_C, Qt::ControlModifier);
    const std::string second(
        TrimTrailingBlanks(TapeLines(rig.app.tapes, 0)[1]));
    QCOMPARE(rig.Clipboard(), QString::fromStdString(second));
  }

  void aDragCarriesTheValueAsText() {
    Rig rig;
    rig.NewMemories(1);
    rig.Type("4'\r+6\"\r");
    DragController& drags = DragController::For(rig.windows);
    std::unique_ptr<QMimeData> mime = drags.MimeFor(DragSource{});
    QCOMPARE(mime->text(), QStringLiteral("4'- 6\""));
    QVERIFY(DragSourceOf(mime.get()).has_value());
    DragSource memory;
    memory.kind = DragSource::kMemory;
    memory.memoryNumber = 1;
    QCOMPARE(drags.MimeFor(memory)->text(), QStringLiteral("0."));
  }

  void textDroppedOnTheReadoutIsPasted() {
    Rig rig;
    QLabel* readout = rig.calc()->Readout();
    std::unique_ptr<QMimeData> good = TextMime(QStringLiteral(" 7 3/16\"\n"));
    QVERIFY(testing::Program::Drop(readout, good.get(), QPoint(5, 5)));
    QCOMPARE(rig.Readout(), std::string("7 3/16\""));
    std::unique_ptr<QMimeData> bad = TextMime(QStringLiteral("seven"));
    QVERIFY(!testing::Program::Drop(readout, bad.get(), QPoint(5, 5)));
    QCOMPARE(rig.Readout(), std::string("7 3/16\""));
    QCOMPARE(rig.platform.beeps, 0);
  }

  void textDroppedOnAMemoryAddsOrSubtracts() {
    Rig rig;
    rig.NewMemories(1);
    QLabel* value = rig.Memory(1)->ValueLabel();
    std::unique_ptr<QMimeData> three = TextMime(QStringLiteral("3'"));
    QVERIFY(testing::Program::Drop(value, three.get(),
                                   QPoint(value->width() * 3 / 4, 5)));
    QCOMPARE(value->text(), QStringLiteral(" 3'- 0\" "));
    QCOMPARE(rig.Tape(1), std::string(" + 3' \n---------------- \n 3'- 0\" "));
    std::unique_ptr<QMimeData> one = TextMime(QStringLiteral("1'"));
    QVERIFY(testing::Program::Drop(value, one.get(), QPoint(2, 5)));
    QCOMPARE(value->text(), QStringLiteral(" 2'- 0\" "));
    std::unique_ptr<QMimeData> words = TextMime(QStringLiteral("two feet"));
    QVERIFY(!testing::Program::Drop(value, words.get(), QPoint(2, 5)));
    QCOMPARE(value->text(), QStringLiteral(" 2'- 0\" "));
    QCOMPARE(TapeLines(rig.app.tapes, 1).size(), std::size_t{6});
  }

  void menuCommandsHaveTheirKeys() {
    Rig rig;
    const struct {
      const char* action;
      QKeySequence key;
    } keys[] = {
        {"mnuOpen", QKeySequence(Qt::CTRL | Qt::Key_O)},
        {"mnuSave", QKeySequence(Qt::CTRL | Qt::Key_S)},
        {"mnuSaveAs", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
        {"mnuPrint", QKeySequence(Qt::CTRL | Qt::Key_P)},
        {"Exit", QKeySequence(Qt::CTRL | Qt::Key_Q)},
        {"mnuHelpContents", QKeySequence(Qt::Key_F1)},
    };
    for (const auto& k : keys) {
      QAction* action = rig.CalcAction(k.action);
      QVERIFY2(action != nullptr, k.action);
      QCOMPARE(action->shortcut(), k.key);
    }
    const struct {
      const char* action;
      QString caption;
    } captions[] = {
        {"Circumference", QStringLiteral("&Circumference...")},
        {"Sixteen", QStringLiteral("1/&16\"")},
        {"ZoomSmall", QStringLiteral("&75%")},
    };
    for (const auto& c : captions) {
      QAction* action = rig.CalcAction(c.action);
      QVERIFY2(action != nullptr, c.action);
      QCOMPARE(action->text(), c.caption);
    }
    // The model's captions stay as they are.
    QCOMPARE(rig.app.menus.At("Sixteen").caption, std::string("1/16\""));
  }

  void f1OpensTheHelpAndShiftF10TheContextMenu() {
    Rig rig;
    rig.Type("12");
    const auto helpShown = [] {
      for (QWidget* w : QApplication::topLevelWidgets()) {
        if (w->objectName() == QStringLiteral("HelpWindow") && w->isVisible()) {
          return true;
        }
      }
      return false;
    };
    QVERIFY(!helpShown());
    rig.Press(QKeyCombination(Qt::Key_F1));
    QVERIFY(helpShown());
    rig.calc()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(rig.calc()));
    rig.Press(Qt::SHIFT | Qt::Key_F10);
    QCOMPARE(rig.platform.popups, std::vector<std::string>{"mnuPopup1"});
    rig.Press(QKeyCombination(Qt::Key_Menu));
    QCOMPARE(rig.platform.popups.size(), std::size_t{2});
    // None of them typed anything.
    QCOMPARE(rig.Readout(), std::string("12"));
  }

  // A key that types into the calculator is claimed before Qt looks for
  // it among the shortcuts: typed, never a shortcut's (the program has
  // none such); keys with Ctrl or without a character still are.
  void aTypedKeyIsNotLookedUpAmongTheShortcuts() {
    Rig rig;
    auto* typed = new QAction(rig.calc());
    typed->setShortcut(QKeySequence(Qt::Key_5));
    typed->setShortcutContext(Qt::ApplicationShortcut);
    rig.calc()->addAction(typed);
    QSignalSpy typedSpy(typed, &QAction::triggered);
    auto* withCtrl = new QAction(rig.calc());
    withCtrl->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_5));
    withCtrl->setShortcutContext(Qt::ApplicationShortcut);
    rig.calc()->addAction(withCtrl);
    QSignalSpy ctrlSpy(withCtrl, &QAction::triggered);
    auto* noCharacter = new QAction(rig.calc());
    noCharacter->setShortcut(QKeySequence(Qt::Key_F7));
    noCharacter->setShortcutContext(Qt::ApplicationShortcut);
    rig.calc()->addAction(noCharacter);
    QSignalSpy noCharacterSpy(noCharacter, &QAction::triggered);

    rig.Type("15");
    QCOMPARE(rig.Readout(), std::string("15"));
    QCOMPARE(typedSpy.count(), 0);
    rig.Press(Qt::CTRL | Qt::Key_5);
    QCOMPARE(ctrlSpy.count(), 1);
    rig.Press(QKeyCombination(Qt::Key_F7));
    QCOMPARE(noCharacterSpy.count(), 1);
    QCOMPARE(rig.Readout(), std::string("15"));
    // Typed in the tape window, the same.
    rig.tape()->show();
    rig.tape()->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), rig.tape());
    QTest::keyClicks(rig.tape()->Grid(), QStringLiteral("5"));
    QCOMPARE(rig.Readout(), std::string("155"));
    QCOMPARE(typedSpy.count(), 0);
  }

  void controlsAreNamedInWords() {
    Rig rig;
    QCOMPARE(rig.calc()->Key("Backspace")->accessibleName(),
             QStringLiteral("Backspace"));
    QCOMPARE(rig.calc()->Key("Spacebar")->accessibleName(),
             QStringLiteral("Space"));
    QCOMPARE(rig.calc()->Key("CylVolume")->accessibleName(),
             QStringLiteral("Volume of Cylinder"));
    QCOMPARE(rig.calc()->Key("Number", 7)->accessibleName(),
             QStringLiteral("7"));
    QCOMPARE(rig.calc()->Readout()->accessibleName(),
             QStringLiteral("Readout"));
    rig.Type("12'\r+6\"\r");
    QCOMPARE(rig.calc()->Readout()->accessibleDescription(),
             QStringLiteral("12'- 6\""));
    QCOMPARE(rig.tape()->Grid()->accessibleName(),
             QStringLiteral("Tape: Calculator"));
    QAccessibleInterface* tape =
        QAccessible::queryAccessibleInterface(rig.tape());
    QVERIFY(tape != nullptr);
    QCOMPARE(tape->role(), QAccessible::Window);
    // A memory file's named memory, made the current one.
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QString file =
        QDir(folder.path()).filePath(QStringLiteral("kitchen.mem"));
    {
      QFile out(file);
      QVERIFY(out.open(QIODevice::WriteOnly));
      out.write(
          " 0 \r\n 0 \r\n 6000 \r\n 3000 \r\n 1\r\n 1935\r\n"
          "Kitchen wall\r\n 12'- 6\" \r\n");
    }
    const std::string path = file.toStdString();
    rig.windows.Run([&path](App& app) { LoadMemoryFile(app, path); });
    MemoryWindow* memory = rig.Memory(1);
    QVERIFY(memory != nullptr);
    QCOMPARE(memory->accessibleName(), QStringLiteral("Kitchen wall"));
    QCOMPARE(memory->accessibleDescription(),
             QStringLiteral("Kitchen wall: 12'- 6\""));
    rig.windows.Run([](App& app) { MemoryForm_Form_Activate(app, 1); });
    QCOMPARE(rig.tape()->Grid()->accessibleName(),
             QStringLiteral("Tape: Kitchen wall"));
  }

  void aRightClickOnAMemorysValueOpensItsCommands() {
    Rig rig;
    rig.NewMemories(1);
    rig.Type("2'\r");
    QLabel* value = rig.Memory(1)->ValueLabel();
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(5, 5),
                            value->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(value, &click);
    auto* menu = value->findChild<QMenu*>(QStringLiteral("mnuMemoryPopup"));
    QVERIFY(menu != nullptr);
    QStringList captions;
    for (QAction* a : menu->actions()) captions << a->text();
    QCOMPARE(captions, (QStringList{"&Add Readout", "&Subtract Readout",
                                    "&Recall to Readout", "Show in &Converter",
                                    "C&lear"}));
    QAction* subtract =
        menu->findChild<QAction*>(QStringLiteral("mnuMemorySubtract"));
    QVERIFY(subtract != nullptr);
    subtract->trigger();
    menu->close();
    QCOMPARE(value->text(), QStringLiteral("- 2'- 0\" "));
    QCOMPARE(rig.app.tapeWindow.title.caption, std::string("Memory 1"));
  }

  void converterResultsCarryTheirUnits() {
    Rig rig;
    rig.windows.Run(mnuConverter_Click);
    rig.NewMemories(1);
    rig.windows.Run([](App& app) {
      app.memory.Find(1)->label1.caption = " 3'- 0\" ";
      RunMemoryCommand(app, 1, MemoryCommand::kShowInConverter);
    });
    ConverterWindow* converter = rig.windows.Converter();
    QCOMPARE(converter->Result(3)->text(), QStringLiteral(" 36\" "));
    QCOMPARE(converter->Result(3)->accessibleName(),
             QStringLiteral("Result in inches"));
    QCOMPARE(converter->Result(4)->accessibleName(),
             QStringLiteral("Result in feet"));
    QCOMPARE(converter->Result(5)->accessibleName(),
             QStringLiteral("Result in yards"));
    QCOMPARE(converter->Result(6)->accessibleName(),
             QStringLiteral("Result in miles"));
    rig.windows.Run([](App& app) {
      app.memory.Find(1)->label1.caption = " 3'- 0\" sq. ";
      RunMemoryCommand(app, 1, MemoryCommand::kShowInConverter);
    });
    QCOMPARE(converter->Result(4)->accessibleName(),
             QStringLiteral("Result in square feet"));
    QCOMPARE(converter->Result(6)->accessibleName(),
             QStringLiteral("Result in acres"));
    // A volume's kind comes from the value shown, not from a result's own
    // text: its inches are cubic, and it has no miles or acres.
    rig.windows.Run([](App& app) {
      app.memory.Find(1)->label1.caption = " 1'- 0\" cu. ";
      RunMemoryCommand(app, 1, MemoryCommand::kShowInConverter);
    });
    QCOMPARE(converter->Result(6)->text(), QString());
    QCOMPARE(converter->Result(3)->accessibleName(),
             QStringLiteral("Result in cubic inches"));
    QCOMPARE(converter->Result(6)->accessibleName(),
             QStringLiteral("Result in miles or acres, none for a volume"));
  }

  void ctrlQEndsTheProgramWithoutTypingQ() {
    Rig rig;
    rig.Type("5");
    rig.Press(Qt::CTRL | Qt::Key_Q);
    QVERIFY(rig.app.shell.quitRequested);
  }
};

QTEST_MAIN(ClipboardKeysTest)
#include "clipboard_keys_test.moc"
