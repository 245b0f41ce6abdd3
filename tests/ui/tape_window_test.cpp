// The tape window over the core's tape store: it follows every new line,
// shows one tape at a time, steps between tapes and opens its context menu.

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include "core/commands/memory_file_handlers.h"
#include "core/commands/menus.h"
#include "program.h"
#include "support/memory_file_maker.h"
#include "ui/paths.h"
#include "ui/tape_table_model.h"
#include "ui/twips.h"

using brenko::ui::testing::Program;

namespace {

// Shows the tape window if the start-up left it hidden.
void ShowTape(Program& p) {
  if (!p.app.tapeWindow.visible) {
    p.windows.Run([](brenko::App& a) { brenko::RunMenuCommand(a, "mnuTape"); });
  }
}

int VisibleColumns(QTableView* grid) {
  int shown = 0;
  for (int c = 0; c < grid->model()->columnCount(); ++c) {
    if (!grid->isColumnHidden(c)) ++shown;
  }
  return shown;
}

}  // namespace

class TapeWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void isNamedAndTitledAfterTheCalculator() {
    Program p;
    ShowTape(p);
    QVERIFY(p.tape()->isVisible());
    QCOMPARE(p.tape()->objectName(), QStringLiteral("frmTape"));
    QCOMPARE(p.tape()->Grid()->objectName(), QStringLiteral("Grid1"));
    QCOMPARE(p.tape()->Title()->text(), QStringLiteral("Calculator"));
    QCOMPARE(p.tape()->ScrollButton(0)->objectName(),
             QStringLiteral("cmdScrollTape0"));
    QCOMPARE(p.tape()->ScrollButton(1)->objectName(),
             QStringLiteral("cmdScrollTape1"));
    QCOMPARE(p.tape()->ScrollButton(0)->text(), QStringLiteral("\u25C0"));
    QCOMPARE(p.tape()->ScrollButton(1)->text(), QStringLiteral("\u25B6"));
    for (QWidget* w : p.tape()->findChildren<QWidget*>()) {
      QVERIFY2(!w->objectName().isEmpty(), w->metaObject()->className());
    }
  }

  void showsEveryNewLineAsItIsWritten() {
    Program p;
    ShowTape(p);
    QAbstractItemModel* model = p.tape()->Grid()->model();
    p.Type(QStringLiteral("5'0\"\r"));
    QCOMPARE(model->rowCount(), p.app.tapes.Rows());
    QCOMPARE(model->data(model->index(1, 0)).toString(),
             QStringLiteral("5'- 0\" "));
    p.Type(QStringLiteral("+3'6\"\r"));
    QCOMPARE(model->rowCount(), p.app.tapes.Rows());
    QCOMPARE(model->data(model->index(4, 0)).toString(),
             QStringLiteral(" 8'- 6\" "));
    QCOMPARE(model->data(model->index(4, 0), Qt::TextAlignmentRole)
                 .value<Qt::Alignment>(),
             Qt::AlignRight | Qt::AlignVCenter);
  }

  void keepsTheLastLineInView() {
    Program p;
    ShowTape(p);
    for (int i = 0; i < 30; ++i) p.Type(QStringLiteral("1\r"));
    QTableView* grid = p.tape()->Grid();
    QCOMPARE(grid->verticalScrollBar()->value(), p.app.tapes.topRow);
    const int last = p.app.tapes.TapeLineCount()[0];
    const QRect lastRow = grid->visualRect(grid->model()->index(last, 0));
    QVERIFY(lastRow.isValid());
    QVERIFY(grid->viewport()->rect().contains(lastRow));
    QCOMPARE(grid->rowHeight(last), 16);  // 240 twips at 15 twips a pixel
  }

  void onlyTheShownTapeIsInView() {
    Program p;
    ShowTape(p);
    p.windows.Run(
        [](brenko::App& a) { brenko::RunMenuCommand(a, "NewMemory"); });
    QTableView* grid = p.tape()->Grid();
    QCOMPARE(grid->model()->columnCount(), p.app.tapes.Cols());
    QVERIFY(p.app.tapes.Cols() >= 2);
    QCOMPARE(VisibleColumns(grid), 1);
    QVERIFY(!grid->isColumnHidden(p.app.tapes.ShownTape));
  }

  // A memory file brings its tapes all at once: they come hidden, the
  // shown tape alone in view and as wide as the grid, and the header is
  // painted again afterwards.
  void tapesOfAMemoryFileComeHidden() {
    Program p;
    ShowTape(p);
    QTemporaryDir folder;
    const std::filesystem::path path =
        brenko::ui::ToPath(folder.filePath(QStringLiteral("fifty.mem")));
    QVERIFY(brenko::testing_support::WriteMemoryFile(
        path, 50, [](int i) { return " " + std::to_string(i + 1) + "\" "; }));
    p.windows.Run(
        [&path](brenko::App& a) { brenko::OpenMemoryFilePath(a, path); });
    QTableView* grid = p.tape()->Grid();
    QCOMPARE(grid->model()->columnCount(), 51);
    QCOMPARE(p.app.tapes.Cols(), 51);
    QCOMPARE(VisibleColumns(grid), 1);
    QVERIFY(!grid->isColumnHidden(p.app.tapes.ShownTape));
    QCOMPARE(grid->columnWidth(p.app.tapes.ShownTape),
             grid->viewport()->width());
    QVERIFY(grid->horizontalHeader()->updatesEnabled());
    QTest::keyClick(grid, Qt::Key_Right);
    QCOMPARE(VisibleColumns(grid), 1);
    QVERIFY(!grid->isColumnHidden(p.app.tapes.ShownTape));
    QCOMPARE(grid->columnWidth(p.app.tapes.ShownTape),
             grid->viewport()->width());
  }

  void arrowKeysAndScrollButtonsStepBetweenTapes() {
    Program p;
    ShowTape(p);
    p.windows.Run(
        [](brenko::App& a) { brenko::RunMenuCommand(a, "NewMemory"); });
    QTableView* grid = p.tape()->Grid();
    const int before = p.app.tapes.ShownTape;
    QTest::keyClick(grid, Qt::Key_Right);
    QVERIFY(p.app.tapes.ShownTape != before);
    QVERIFY(!grid->isColumnHidden(p.app.tapes.ShownTape));
    QCOMPARE(VisibleColumns(grid), 1);
    QCOMPARE(p.tape()->Title()->text(),
             QString::fromStdString(p.app.tapes.TapeNames()[static_cast<size_t>(
                 p.app.tapes.ShownTape)]));
    QTest::mouseClick(p.tape()->ScrollButton(0), Qt::LeftButton);
    QCOMPARE(static_cast<int>(p.app.tapes.ShownTape), before);
    QCOMPARE(p.tape()->Title()->text(), QStringLiteral("Calculator"));
    QTest::mouseClick(p.tape()->ScrollButton(1), Qt::LeftButton);
    QVERIFY(p.app.tapes.ShownTape != before);
    QTest::keyClick(grid, Qt::Key_Left);
    QCOMPARE(static_cast<int>(p.app.tapes.ShownTape), before);
  }

  void rightClickOnTheGridOpensItsContextMenu() {
    Program p;
    ShowTape(p);
    QTest::mouseClick(p.tape()->Grid()->viewport(), Qt::RightButton);
    QCOMPARE(p.platform.popups, std::vector<std::string>{"mnuPopup2"});
    QMenu* popup = p.tape()->Popup();
    QVERIFY(popup);
    QCOMPARE(popup->objectName(), QStringLiteral("mnuPopup2"));
    QStringList captions;
    for (QAction* a : popup->actions()) captions << a->text();
    QCOMPARE(captions, (QStringList{"Print Tape", "Print All Tapes"}));
  }

  void sitsWhereTheModelPutsIt() {
    Program p;
    ShowTape(p);
    const brenko::ScreenInfo s = p.platform.Screen();
    const brenko::Rect& g = p.app.tapeWindow.geometry;
    QCOMPARE(p.tape()->geometry(),
             brenko::ui::TwipsToPixels(g, s.twipsPerPixelX, s.twipsPerPixelY));
    const brenko::Rect& grid = p.app.tapeWindow.grid;
    QCOMPARE(p.tape()->Grid()->width(),
             brenko::ui::TwipsToPixels(grid.width, s.twipsPerPixelX));
  }

  void hidingFromTheMenuHidesTheWindow() {
    Program p;
    ShowTape(p);
    p.windows.Run([](brenko::App& a) { brenko::RunMenuCommand(a, "mnuTape"); });
    QVERIFY(!p.tape()->isVisible());
    QVERIFY(!p.app.menus.IsChecked(brenko::MenuId::mnuTape));
    QVERIFY(!p.app.menus.IsChecked(brenko::MenuId::mnuPopup1ShowTape));
  }
};

QTEST_MAIN(TapeWindowTest)
#include "tape_window_test.moc"
