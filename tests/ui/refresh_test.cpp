// The windows redraw only what changed since they last looked; these tests
// make sure that what they skip was really unchanged. Each changes the
// models through one kind of event (a typed key, an operator key, a menu
// command, a drop, a memory file, Erase All, stepping the tape, the
// converter, the zoom) and then compares every shown window, widget by
// widget, with its model: no window may show a stale text.
#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdio>
#include <filesystem>
#include <string>

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/tape_handlers.h"
#include "core/memory/memory_file.h"
#include "core/tape/tape_store.h"
#include "fake/fake_platform.h"
#include "program.h"
#include "support/memory_file_maker.h"
#include "ui/app_windows.h"
#include "ui/calculator_window.h"
#include "ui/converter_window.h"
#include "ui/main_frame_window.h"
#include "ui/memory_window.h"
#include "ui/paths.h"
#include "ui/shortcuts.h"
#include "ui/tape_table_model.h"
#include "ui/tape_window.h"
#include "ui/twips.h"

using namespace brenko;
using namespace brenko::ui;

namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

struct Rig : testing::Program {
  QRect Pixels(const Rect& rect) {
    const ScreenInfo s = platform.Screen();
    return TwipsToPixels(rect, s.twipsPerPixelX, s.twipsPerPixelY);
  }

  // Every shown window against its model; the first difference is named.
  QString Stale() {
    CalculatorWindow* calc = windows.Calculator();
    const CalculatorForm& form = app.calculator;
    if (calc->Readout()->text() != Q(form.Readout().caption)) {
      return "readout " + calc->Readout()->text();
    }
    if (calc->ActionLabel()->text() != Q(form.ActionLabel().caption)) {
      return "operator " + calc->ActionLabel()->text();
    }
    if (calc->Label1()->text() != Q(form.Label1().caption)) {
      return "prompt " + calc->Label1()->text();
    }
    for (const CalcControl& c : form.controls) {
      if (!c.isKey) continue;
      QPushButton* key = calc->Key(c.name, c.index);
      if (key == nullptr) return "no key " + Q(c.name);
      if (key->text() != Q(c.label.caption)) return "key " + key->text();
      if (key->geometry() != Pixels(c.label.rect)) {
        return "key place " + Q(c.name);
      }
    }
    for (const MenuEntry& e : app.menus.Entries()) {
      if (e.caption == "-") continue;
      const QString name =
          Q(e.name) + (e.index >= 0 ? QString::number(e.index) : QString());
      // The tape's context menu is the tape window's own.
      QList<QAction*> actions = calc->findChildren<QAction*>(name);
      if (QWidget* tape = windows.Existing({WindowKind::kTape, 0})) {
        actions += tape->findChildren<QAction*>(name);
      }
      if (actions.isEmpty()) {
        // A context menu is a menu of its own, with no entry naming it.
        if (e.level == 1 && windows.PopupMenu(e.name) != nullptr) continue;
        return "no menu action " + name;
      }
      for (QAction* action : actions) {
        // The shown caption may carry an access key the model's does not.
        if (action->text() != MenuEntryCaption(e.id, e.caption)) {
          return "menu " + action->text();
        }
        if (action->isChecked() != e.checked) return "menu mark " + name;
      }
    }
    if (app.tapeWindow.visible) {
      TapeWindow* tape = windows.Tape();
      if (!tape->isVisible()) return QStringLiteral("tape hidden");
      if (tape->Title()->text() != Q(app.tapeWindow.title.caption)) {
        return "tape title " + tape->Title()->text();
      }
      const TapeStore& tapes = app.tapes;
      QTableView* grid = tape->Grid();
      if (grid->model()->columnCount() != tapes.Cols()) {
        return QStringLiteral("tape columns");
      }
      if (grid->model()->rowCount() != tapes.Rows()) {
        return QStringLiteral("tape rows");
      }
      for (int c = 0; c < tapes.Cols(); ++c) {
        if (grid->isColumnHidden(c) != (c != tapes.ShownTape)) {
          return QStringLiteral("tape column %1").arg(c);
        }
      }
      const int shown = tapes.ShownTape;
      if (grid->columnWidth(shown) != grid->viewport()->width()) {
        return QStringLiteral("tape width %1 on paper %2")
            .arg(grid->columnWidth(shown))
            .arg(grid->viewport()->width());
      }
      for (int r = 0; r < tapes.Rows(); ++r) {
        const QString cell =
            grid->model()->data(grid->model()->index(r, shown)).toString();
        if (cell != Q(tapes.Cell(r, shown))) return "tape line " + cell;
      }
    }
    if (app.mainFrame.visible) {
      MainFrameWindow* frame = windows.MainFrame();
      if (frame->Area()->subWindowList().size() !=
          static_cast<qsizetype>(app.memory.Forms().size())) {
        return QStringLiteral("memory window count");
      }
      for (const auto& m : app.memory.Forms()) {
        MemoryWindow* window = frame->Memory(m->number);
        if (window == nullptr) return QStringLiteral("no memory window");
        if (window->windowTitle() != Q(m->caption)) {
          return "memory title " + window->windowTitle();
        }
        if (window->ValueLabel()->text() != Q(m->label1.caption)) {
          return "memory value " + window->ValueLabel()->text();
        }
        if (window->isHidden() == m->visible) return "memory shown";
        if (window->geometry() != Pixels(m->geometry)) {
          return "memory place " + Q(m->caption);
        }
      }
    } else if (windows.Existing({WindowKind::kMainFrame, 0}) != nullptr &&
               windows.MainFrame()->isVisible()) {
      return QStringLiteral("frame shown");
    }
    if (app.converter.visible) {
      ConverterWindow* converter = windows.Converter();
      if (converter->Label1()->text() != Q(app.converter.label1.caption)) {
        return "converter " + converter->Label1()->text();
      }
      for (int i = 0; i < 7; ++i) {
        if (converter->Result(i)->text() !=
            Q(app.converter.lblLabel[static_cast<std::size_t>(i)].caption)) {
          return "converter result " + converter->Result(i)->text();
        }
      }
    }
    return QString();
  }

  void Menu(const char* name) {
    QAction* action =
        windows.Calculator()->findChild<QAction*>(QLatin1String(name));
    QVERIFY2(action != nullptr, name);
    action->trigger();
  }
};

// A memory file of `count` memories, memory i holding i + 1 feet.
std::filesystem::path MemoryFile(const QTemporaryDir& folder, int count) {
  const std::filesystem::path path =
      ToPath(QDir(folder.path()).filePath(QStringLiteral("memories.mem")));
  if (!testing_support::WriteMemoryFile(path, count, [](int i) {
        return " " + std::to_string(i + 1) + "'- 0\" ";
      })) {
    return {};
  }
  return path;
}

}  // namespace

class RefreshTest : public QObject {
  Q_OBJECT

 private slots:
  void typedKeysShowEverywhere() {
    Rig rig;
    rig.NewMemories(2);
    rig.Type("12'6");
    QCOMPARE(rig.ShownReadout(), QStringLiteral("12'- 6"));
    QCOMPARE(rig.Stale(), QString());
  }

  void aKeyReleaseChangingNothingLeavesEveryWindowRight() {
    Rig rig;
    rig.Type("7");
    const QString before = rig.ShownReadout();
    QTest::keyRelease(rig.calc()->Client(), Qt::Key_Shift);
    QCOMPARE(rig.ShownReadout(), before);
    QCOMPARE(rig.Stale(), QString());
  }

  void operatorKeysShowTheResultAndTheTape() {
    Rig rig;
    rig.Type("12");
    rig.calc()->Key("Plus")->click();
    QCOMPARE(rig.Stale(), QString());
    rig.Type("3");
    rig.calc()->Key("Equal")->click();
    QCOMPARE(rig.ShownReadout(), Q(rig.Readout()));
    QVERIFY(rig.app.tapes.TapeLineCount()[0] > 0);
    QCOMPARE(rig.Stale(), QString());
  }

  void aTapeLongerThanThePaperKeepsItsLinesInView() {
    Rig rig;
    QVERIFY(rig.tape()->isVisible());
    for (int line = 0; line < 12; ++line) {
      rig.Type("1\r");
      QCOMPARE(rig.Stale(), QString());
    }
    QVERIFY(rig.tape()->Grid()->verticalScrollBar()->isVisible());
  }

  void aCalculationWithManyMemoryTapesShowsOnTheCalculatorsTape() {
    Rig rig;
    rig.NewMemories(5);
    rig.Type("2+2\r");
    QCOMPARE(rig.Stale(), QString());
  }

  void menuCommandsShowTheirMarksAndWindows() {
    Rig rig;
    rig.Menu("mnuTape");
    QCOMPARE(rig.Stale(), QString());
    rig.Menu("mnuTape");
    QCOMPARE(rig.Stale(), QString());
    rig.Menu("NewMemory");
    QCOMPARE(rig.Stale(), QString());
  }

  void zoomReplacesEveryKey() {
    Rig rig;
    const QRect before = rig.calc()->Key("Plus")->geometry();
    rig.Menu("ZoomSmall");
    QVERIFY(rig.calc()->Key("Plus")->geometry() != before);
    QCOMPARE(rig.Stale(), QString());
    rig.Menu("ZoomLarge");
    QCOMPARE(rig.calc()->Key("Plus")->geometry(), before);
    QCOMPARE(rig.Stale(), QString());
  }

  void aDropOnAMemoryShowsInItsWindowAndOnItsTape() {
    Rig rig;
    rig.NewMemories(2);
    rig.Type("3'");
    MemoryWindow* window = rig.windows.MainFrame()->Memory(2);
    QLabel* value = window->ValueLabel();
    QVERIFY(rig.Drop(value, DragSource{},
                     QPoint(value->width() - 2, value->height() / 2)));
    QCOMPARE(value->text(), QStringLiteral(" 3'- 0\" "));
    QCOMPARE(rig.Stale(), QString());
    // The tape of that memory, shown by stepping to it.
    for (int step = 0; step < 3 && rig.app.tapes.ShownTape != 2; ++step) {
      rig.windows.Run([](App& app) { cmdScrollTape_Click(app, 1); });
      QCOMPARE(rig.Stale(), QString());
    }
    QCOMPARE(rig.app.tapes.ShownTape, 2);
    QCOMPARE(rig.tape()->Grid()->model()->data(
                 rig.tape()->Grid()->model()->index(1, 2)),
             QVariant(QStringLiteral(" + 3'- ")));
  }

  void steppingTheTapeShowsOneColumnAtATime() {
    Rig rig;
    rig.NewMemories(4);
    rig.Type("5\r");
    for (int step = 0; step < 7; ++step) {
      rig.tape()->ScrollButton(step % 3 == 2 ? 0 : 1)->click();
      QCOMPARE(rig.Stale(), QString());
    }
  }

  void aMemoryFileShowsEveryWindowAndAgainAfterErasing() {
    Rig rig;
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const std::filesystem::path file = MemoryFile(folder, 40);
    QVERIFY(!file.empty());
    rig.windows.Run([&](App& app) { OpenMemoryFilePath(app, file); });
    QCOMPARE(rig.app.memory.Forms().size(), std::size_t{40});
    QVERIFY(rig.windows.MainFrame()->isVisible());
    QCOMPARE(rig.Stale(), QString());
    // Every window is usable once they are all in.
    for (QMdiSubWindow* sub :
         rig.windows.MainFrame()->Area()->subWindowList()) {
      QVERIFY(sub->isEnabled());
    }
    rig.windows.Run(EraseMemory_Click);
    QCOMPARE(rig.app.memory.Forms().size(), std::size_t{0});
    QCOMPARE(rig.Stale(), QString());
    // The same file again: new windows, none left over from before.
    rig.windows.Run([&](App& app) { OpenMemoryFilePath(app, file); });
    QCOMPARE(rig.Stale(), QString());
  }

  void aValueChangedByTheCoreShowsInItsWindowOnly() {
    Rig rig;
    rig.NewMemories(3);
    rig.windows.Run([](App& app) { MemoryForm_Label1_DblClick(app, 2); });
    QCOMPARE(rig.Stale(), QString());
    rig.windows.Run([](App& app) {
      app.memory.Find(3)->label1.caption = " 9'- 0\" ";
      app.memory.Find(3)->caption = "Stock";
    });
    QCOMPARE(rig.windows.MainFrame()->Memory(3)->windowTitle(),
             QStringLiteral("Stock"));
    QCOMPARE(rig.Stale(), QString());
  }

  void theConverterShowsEachDrop() {
    Rig rig;
    rig.windows.Run(mnuConverter_Click);
    rig.Type("144");
    QVERIFY(rig.Drop(rig.windows.Converter()->Label1(), DragSource{},
                     QPoint(20, 5)));
    QCOMPARE(rig.Stale(), QString());
    rig.Type("\x1b");
    rig.Type("36");
    QVERIFY(rig.Drop(rig.windows.Converter()->Label1(), DragSource{},
                     QPoint(20, 5)));
    QCOMPARE(rig.Stale(), QString());
  }
};

QTEST_MAIN(RefreshTest)
#include "refresh_test.moc"
