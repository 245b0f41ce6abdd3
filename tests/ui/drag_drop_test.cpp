// Drag and drop on the real widgets: drops sent to the calculator's readout
// and to the memories' value labels, the halves rule as the pointer sees it,
// the pictures chosen while dragging, and what a drag carries.
#include <QCoreApplication>
#include <QDropEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QtTest>
#include <memory>
#include <string>

#include "core/base/settings_store.h"
#include "core/calc/calc_engine.h"
#include "core/commands/app.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/startup.h"
#include "core/memory/memory_cells.h"
#include "program.h"
#include "ui/app_windows.h"
#include "ui/calculator_window.h"
#include "ui/drag_controller.h"
#include "ui/drag_mime.h"
#include "ui/drag_pictures.h"
#include "ui/main_frame_window.h"
#include "ui/qt_platform.h"

using namespace brenko;
using namespace brenko::ui;

namespace {

struct Rig : testing::Program {
  QLabel* Readout() { return windows.Calculator()->Readout(); }
  QLabel* Value(int number) {
    auto* sub = windows.MainFrame()->findChild<QMdiSubWindow*>(
        QStringLiteral("memory%1").arg(number));
    return sub ? sub->findChild<QLabel*>(QStringLiteral("Label1")) : nullptr;
  }
  QString TapeLine(int tape, int line) {
    return QString::fromStdString(app.tapes.Cell(line, tape));
  }
};

DragSource Memory(int number) {
  DragSource source;
  source.kind = DragSource::kMemory;
  source.memoryNumber = number;
  return source;
}

QPoint RightHalf(QWidget* w) { return QPoint(w->width() * 3 / 4, 5); }
QPoint LeftHalf(QWidget* w) { return QPoint(w->width() / 4, 5); }

}  // namespace

class DragDropTest : public QObject {
  Q_OBJECT

 private slots:
  void dropOnRightHalfOfAMemoryAdds() {
    Rig rig;
    rig.NewMemories(1);
    rig.Type("3'");
    QVERIFY(rig.Drop(rig.Value(1), DragSource{}, RightHalf(rig.Value(1))));
    QCOMPARE(rig.Value(1)->text(), QStringLiteral(" 3'- 0\" "));
    QCOMPARE(rig.Readout()->text(), QStringLiteral("3'- "));
    QCOMPARE(rig.TapeLine(1, 1), QStringLiteral(" + 3'- "));
    QCOMPARE(rig.TapeLine(1, 2), QStringLiteral("---------------- "));
    QCOMPARE(rig.TapeLine(1, 3), QStringLiteral(" 3'- 0\" "));
  }

  void dropOnLeftHalfOfAMemorySubtracts() {
    Rig rig;
    rig.NewMemories(1);
    rig.Type("3'");
    QVERIFY(rig.Drop(rig.Value(1), DragSource{}, LeftHalf(rig.Value(1))));
    QCOMPARE(rig.Value(1)->text(), QStringLiteral("- 3'- 0\" "));
    QCOMPARE(rig.TapeLine(1, 1), QStringLiteral(" - 3'- "));
    QCOMPARE(rig.TapeLine(1, 3), QStringLiteral("- 3'- 0\" "));
  }

  void dropExactlyOnTheMidpointAdds() {
    Rig rig;
    rig.NewMemories(1);
    rig.Type("2\"");
    const Label& label = rig.app.memory.Find(1)->label1;
    const double tpp = rig.platform.Screen().twipsPerPixelX;
    // The point whose twips are the midpoint Top + Width / 2 exactly.
    const double local =
        (label.rect.top + label.rect.width / 2 - label.rect.left) / tpp;
    DragController::For(rig.windows)
        .DropAt({DropTarget::kMemoryLabel, 1}, DragSource{}, QPointF(local, 5));
    QCOMPARE(rig.TapeLine(1, 1), QStringLiteral(" + 2\" "));
  }

  void memoryDroppedOnItselfIsCleared() {
    Rig rig;
    rig.NewMemories(1);
    rig.Type("3'");
    rig.Drop(rig.Value(1), DragSource{}, RightHalf(rig.Value(1)));
    rig.Drop(rig.Value(1), Memory(1), RightHalf(rig.Value(1)));
    QCOMPARE(rig.Value(1)->text(), QStringLiteral("0."));
  }

  void squareDroppedOnALengthLeavesTheMemory() {
    Rig rig;
    rig.NewMemories(2);
    rig.Type("3'");
    rig.Drop(rig.Value(1), DragSource{}, RightHalf(rig.Value(1)));
    rig.app.memory.Find(2)->label1.caption = "12 sq";
    rig.Drop(rig.Value(1), Memory(2), RightHalf(rig.Value(1)));
    QCOMPARE(rig.Value(1)->text(), QStringLiteral(" 3'- 0\" "));
    QCOMPARE(rig.app.tapes.TapeLineCount()[1], std::int16_t{3});
  }

  void memoryDroppedOnTheReadoutEntersItsValue() {
    Rig rig;
    rig.NewMemories(1);
    rig.Type("5'");
    rig.Drop(rig.Value(1), DragSource{}, RightHalf(rig.Value(1)));
    rig.Type("\x1b");  // Escape clears the calculator
    QVERIFY(rig.Drop(rig.Readout(), Memory(1), RightHalf(rig.Readout())));
    QCOMPARE(rig.app.engine.PendingValue.value_or(0), 60.0);
    QCOMPARE(rig.TapeLine(0, rig.app.tapes.TapeLineCount()[0]),
             QStringLiteral(" + 5'- 0\" "));
  }

  void memoryDroppedOnTheReadoutsLeftHalfIsNegated() {
    Rig rig;
    rig.NewMemories(1);
    rig.Type("5'");
    rig.Drop(rig.Value(1), DragSource{}, RightHalf(rig.Value(1)));
    rig.Type("\x1b");
    rig.Drop(rig.Readout(), Memory(1), LeftHalf(rig.Readout()));
    QCOMPARE(rig.app.engine.PendingValue.value_or(0), -60.0);
    QCOMPARE(rig.Readout()->text(), QStringLiteral("- 5'- 0\" "));
  }

  void aForeignDropIsRefused() {
    Rig rig;
    rig.NewMemories(1);
    // Text from another program is taken only when it is a measurement.
    QMimeData text;
    text.setText(QStringLiteral("twelve feet"));
    QVERIFY(!Rig::Drop(rig.Value(1), &text, QPoint(10, 5)));
    QCOMPARE(rig.Value(1)->text(), QStringLiteral("0."));
  }

  void aDropFromAClosedMemoryIsRefused() {
    Rig rig;
    rig.NewMemories(2);
    rig.windows.Run([](App& a) { MemoryForm_Form_Unload(a, 2); });
    QVERIFY(!rig.Drop(rig.Value(1), Memory(2), RightHalf(rig.Value(1))));
    QCOMPARE(rig.Value(1)->text(), QStringLiteral("0."));
  }

  void pictureFollowsTheMemorysHalves() {
    Rig rig;
    rig.NewMemories(1);
    DragController& drags = DragController::For(rig.windows);
    const DropTarget target{DropTarget::kMemoryLabel, 1};
    drags.OverAt(target, DragSource{}, RightHalf(rig.Value(1)));
    QCOMPARE(drags.SourcePicture(DragSource{}), std::string("Image1"));
    drags.OverAt(target, DragSource{}, LeftHalf(rig.Value(1)));
    QCOMPARE(drags.SourcePicture(DragSource{}), std::string("Image2"));
  }

  void pictureOverTheReadoutShowsAPendingMultiply() {
    Rig rig;
    rig.NewMemories(1);
    rig.Type("3'\r*");
    QCOMPARE(rig.windows.Calculator()->ActionLabel()->text(),
             QStringLiteral("x"));
    DragController& drags = DragController::For(rig.windows);
    drags.OverAt({DropTarget::kReadout, 0}, Memory(1), LeftHalf(rig.Readout()));
    QCOMPARE(drags.SourcePicture(Memory(1)), std::string("Image4"));
  }

  void dropPointIsInTheContainersTwips() {
    Rig rig;
    const Label& readout = rig.app.calculator.Readout();
    const double tpp = rig.platform.Screen().twipsPerPixelX;
    const QPointF at =
        DragController::For(rig.windows)
            .TargetTwips({DropTarget::kReadout, 0}, QPointF(10, 2));
    QCOMPARE(at.x(), static_cast<double>(
                         static_cast<float>(readout.rect.left + 10 * tpp)));
    QCOMPARE(at.y(), static_cast<double>(
                         static_cast<float>(readout.rect.top + 2 * tpp)));
  }

  void dragCarriesOnlyTheSourcesName() {
    QCOMPARE(DragSourceText(DragSource{}), QStringLiteral("readout"));
    QCOMPARE(DragSourceText(Memory(12)), QStringLiteral("memory 12"));
    std::unique_ptr<QMimeData> mime = MakeDragMime(Memory(3));
    QCOMPARE(mime->formats(),
             QStringList{QString::fromLatin1(kDragSourceMimeType)});
    const std::optional<DragSource> back = DragSourceOf(mime.get());
    QVERIFY(back.has_value());
    QCOMPARE(back->kind, DragSource::kMemory);
    QCOMPARE(back->memoryNumber, 3);
  }

  void badSourceNamesAreRefused_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("memory zero") << QStringLiteral("memory 0");
    QTest::newRow("memory negative") << QStringLiteral("memory -1");
    QTest::newRow("memory beyond 16 bits") << QStringLiteral("memory 32768");
    QTest::newRow("memory letters") << QStringLiteral("memory x");
    QTest::newRow("memory without number") << QStringLiteral("memory");
    QTest::newRow("capital readout") << QStringLiteral("Readout");
    QTest::newRow("trailing words") << QStringLiteral("memory 1 2");
  }
  void badSourceNamesAreRefused() {
    QFETCH(QString, text);
    QVERIFY(!ParseDragSource(text).has_value());
  }

  void dropTwipsSurvivesABrokenScreenMetric() {
    QCOMPARE(DropTwips(60, 10, 15), 210.0f);
    QCOMPARE(DropTwips(60, 10, std::numeric_limits<double>::infinity()), 60.0f);
    QCOMPARE(DropTwips(60, std::numeric_limits<double>::quiet_NaN(), 15),
             60.0f);
  }

  void picturesCarryTheirMarks_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("mark");
    QTest::newRow("add") << "Image1"
                         << "+";
    QTest::newRow("subtract") << "Image2" << QString(QChar(0x2212));
    QTest::newRow("plain") << "Image3" << QString();
    QTest::newRow("multiply") << "Image4" << QString(QChar(0x00d7));
    QTest::newRow("divide") << "Image5" << QString(QChar(0x00f7));
    QTest::newRow("drop here") << "DropHere" << QString(QChar(0x2193));
  }
  void picturesCarryTheirMarks() {
    QFETCH(QString, name);
    QFETCH(QString, mark);
    QCOMPARE(DragPictures::Mark(name.toStdString()), mark);
    DragPictures pictures;
    const QPixmap& picture = pictures.Picture(name.toStdString());
    QCOMPARE(picture.size(), QSize(DragPictures::kSize, DragPictures::kSize));
  }

  void anUnknownPictureIsThePlainOne() {
    DragPictures pictures;
    QCOMPARE(pictures.Picture("Image9").cacheKey(),
             pictures.Picture("Image3").cacheKey());
  }
};

QTEST_MAIN(DragDropTest)
#include "drag_drop_test.moc"
