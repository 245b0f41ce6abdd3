// Printing a tape through the Qt printer, to a PDF file: one document per
// tape, in a fixed-pitch "Courier" at the size the program asks for, every
// line ending in the same column.

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "core/commands/menus.h"
#include "program.h"
#include "ui/tape_printer.h"

using brenko::ui::testing::Program;

class PrintTapeTest : public QObject {
  Q_OBJECT

 private slots:
  void filterOfTheMemoryFileBecomesQtsFilter() {
    QCOMPARE(brenko::ui::ToQtFilter("Memory (*.mem)|*.mem|all files (*.*)|*.*"),
             QStringLiteral("Memory (*.mem);;all files (*.*)"));
    QCOMPARE(brenko::ui::ToQtFilter("Text|*.txt"),
             QStringLiteral("Text (*.txt)"));
  }

  void printTapeFromTheTapeMenuWritesAPdf() {
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString pdf = dir.filePath(QStringLiteral("tape.pdf"));
    Program p;
    p.platform.SetPrintToFile(pdf);
    p.Type(QStringLiteral("5'0\"\r+3'6\"\r"));
    QMenu* popup = p.tape()->Popup();
    popup->findChild<QAction*>(QStringLiteral("mnuPopup2PrintTape"))->trigger();
    QCOMPARE(p.platform.Printer().DocumentsPrinted(), 1);
    QVERIFY(QFileInfo(pdf).size() > 0);
    const brenko::ui::TapePrinter::Document& doc =
        p.platform.Printer().LastDocument();
    QCOMPARE(doc.fontFamily, QStringLiteral("Courier"));
    QCOMPARE(doc.pointSize, 5.0);
    QVERIFY2(doc.fixedPitch, qPrintable(doc.paintedFamily));
    QCOMPARE(doc.pages, 1);
    // The name centred over the column, then row 0 and the four lines.
    QCOMPARE(doc.lines.size(), std::size_t{6});
    QCOMPARE(doc.lines[0].text.trimmed(), QStringLiteral("Calculator"));
    QCOMPARE(doc.lines[5].text.trimmed(), QStringLiteral("8'- 6\""));
    // Right-aligned: every tape line ends at the same place on the page.
    const double right = doc.lines[1].right;
    for (std::size_t i = 1; i < doc.lines.size(); ++i) {
      QVERIFY(std::abs(doc.lines[i].right - right) < 0.01);
      QVERIFY(doc.lines[i].baseline > doc.lines[i - 1].baseline);
    }
    QVERIFY(doc.lines[0].right <= right + 0.01);
  }

  void printAllTapesPrintsOneDocumentPerTape() {
    QTemporaryDir dir;
    Program p;
    p.platform.SetPrintToFile(dir.filePath(QStringLiteral("all.pdf")));
    p.windows.Run(
        [](brenko::App& a) { brenko::RunMenuCommand(a, "NewMemory"); });
    p.windows.Run(
        [](brenko::App& a) { brenko::RunMenuCommand(a, "NewMemory"); });
    p.calc()->findChild<QAction*>(QStringLiteral("mnuPrintAll"))->trigger();
    QCOMPARE(p.platform.Printer().DocumentsPrinted(), 3);
    QCOMPARE(p.platform.Printer().LastDocument().lines.front().text.trimmed(),
             QStringLiteral("Memory 2"));
  }

  void aLongTapeRunsOverPages() {
    QTemporaryDir dir;
    brenko::ui::TapePrinter printer;
    printer.SetOutputFile(dir.filePath(QStringLiteral("long.pdf")));
    printer.SetFont(QStringLiteral("Courier"), 5);
    for (int i = 0; i < 400; ++i) printer.AddLine(QStringLiteral("  1 "));
    QVERIFY(printer.EndDoc());
    QVERIFY(printer.LastDocument().pages > 1);
    QCOMPARE(printer.LastDocument().lines.size(), std::size_t{400});
  }

  void anUnusableFontSizeKeepsThePreviousOne() {
    QTemporaryDir dir;
    brenko::ui::TapePrinter printer;
    printer.SetOutputFile(dir.filePath(QStringLiteral("size.pdf")));
    printer.SetFont(QStringLiteral("Courier"), 5);
    printer.SetFont(QStringLiteral("Courier"), std::nan(""));
    printer.SetFont(QStringLiteral("Courier"), -3);
    printer.AddLine(QStringLiteral("x"));
    QVERIFY(printer.EndDoc());
    QCOMPARE(printer.LastDocument().pointSize, 5.0);
  }
};

QTEST_MAIN(PrintTapeTest)
#include "print_tape_test.moc"
