// The converter window as the user sees it: made when first shown, its
// captions after a drop exactly as the conversion writes them, its two
// heights, its double clicks, colours and close.
#include "ui/converter_window.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QtTest>
#include <memory>
#include <string>

#include "core/base/settings_store.h"
#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/startup.h"
#include "core/converter/converter.h"
#include "core/memory/memory_cells.h"
#include "program.h"
#include "ui/app_windows.h"
#include "ui/drag_mime.h"
#include "ui/qt_platform.h"
#include "ui/twips.h"

using namespace brenko;
using namespace brenko::ui;

namespace {

struct Rig : testing::Program {
  ConverterWindow* Open() {
    windows.Run(mnuConverter_Click);
    return windows.Converter();
  }
  QString Caption(int index) {
    return windows.Converter()->Result(index)->text();
  }
  int ClientHeight(float outer) {
    return TwipsToPixels(outer - kConverterNonClientHeight,
                         platform.Screen().twipsPerPixelY);
  }
};

DragSource Memory(int number) {
  DragSource source;
  source.kind = DragSource::kMemory;
  source.memoryNumber = number;
  return source;
}

}  // namespace

class ConverterWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void notMadeUntilFirstShown() {
    Rig rig;
    QVERIFY(rig.windows.Existing({WindowKind::kConverter, 0}) == nullptr);
  }

  void opensCollapsedWithTheIdleCaption() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    QCOMPARE(window->objectName(), QStringLiteral("Converter"));
    QVERIFY(window->isVisible());
    QCOMPARE(window->Label1()->objectName(), QStringLiteral("Label1"));
    QCOMPARE(window->Label1()->text(), QStringLiteral("Drop Here     "));
    QCOMPARE(window->height(), rig.ClientHeight(770));
    for (int i = 0; i <= 6; ++i) {
      QCOMPARE(window->Result(i)->objectName(),
               QStringLiteral("lblLabel%1").arg(i));
    }
  }

  void readoutOf144InchesShowsEveryUnit() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    rig.Type("144");
    QVERIFY(rig.Drop(window->Label1(), DragSource{}, QPoint(20, 5)));
    QCOMPARE(window->Label1()->text(), QStringLiteral("144 "));
    QCOMPARE(rig.Caption(2), QStringLiteral(" 12'- 0\" "));
    QCOMPARE(rig.Caption(3), QStringLiteral(" 144\" "));
    QCOMPARE(rig.Caption(4), QStringLiteral(" 12' "));
    QCOMPARE(rig.Caption(5), QStringLiteral(" 4 yds "));
    QCOMPARE(rig.Caption(6), QStringLiteral(" .0023 miles "));
    // A drop always expands the window.
    QCOMPARE(window->height(), rig.ClientHeight(2310));
  }

  void oneSquareFootShowsSquareUnits() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    rig.windows.Run(NewMemory_Click);
    rig.app.memory.Find(1)->label1.caption = " 144 sq ";
    QVERIFY(rig.Drop(window->Label1(), Memory(1), QPoint(20, 5)));
    QCOMPARE(window->Label1()->text(), QStringLiteral("144 sq "));
    QCOMPARE(rig.Caption(3), QStringLiteral(" 144\"sq "));
    QCOMPARE(rig.Caption(4), QStringLiteral(" 1'sq "));
    QCOMPARE(rig.Caption(5), QStringLiteral(" .1111 sy "));
    QCOMPARE(rig.Caption(6), QStringLiteral(" 0 acres "));
  }

  void aVolumeLeavesLabel6EmptyAfterALength() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    rig.Type("144");
    rig.Drop(window->Label1(), DragSource{}, QPoint(20, 5));
    QCOMPARE(rig.Caption(6), QStringLiteral(" .0023 miles "));
    rig.windows.Run(NewMemory_Click);
    rig.app.memory.Find(1)->label1.caption = " 1728 cu ";
    rig.Drop(window->Label1(), Memory(1), QPoint(20, 5));
    QCOMPARE(rig.Caption(3), QStringLiteral(" 1728\"cu "));
    QCOMPARE(rig.Caption(4), QStringLiteral(" 1'cu "));
    QCOMPARE(rig.Caption(6), QString());
  }

  void aDropOnTheWindowConvertsToo() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    rig.Type("36");
    QVERIFY(rig.Drop(window, DragSource{}, QPoint(2, window->height() - 2)));
    QCOMPARE(rig.Caption(5), QStringLiteral(" 1 yds "));
  }

  void dragOverTheWindowShowsTheDropHerePicture() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    std::unique_ptr<QMimeData> mime = MakeDragMime(DragSource{});
    QDragEnterEvent enter(QPoint(20, 5), Qt::CopyAction, mime.get(),
                          Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window->Label1(), &enter);
    QVERIFY(enter.isAccepted());
    QCOMPARE(rig.app.calculator.readoutDragIcon, std::string("DropHere"));
  }

  void windowDoubleClickTogglesTheHeight() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    QTest::mouseDClick(window, Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(rig.app.converter.geometry.height, 2310.0f);
    QCOMPARE(window->height(), rig.ClientHeight(2310));
    QTest::mouseDClick(window, Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(window->height(), rig.ClientHeight(770));
  }

  void label1DoubleClickResetsAndCollapses() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    rig.Type("144");
    rig.Drop(window->Label1(), DragSource{}, QPoint(20, 5));
    QTest::mouseDClick(window->Label1(), Qt::LeftButton);
    QCOMPARE(window->Label1()->text(), QStringLiteral("Drop Here     "));
    for (int i = 2; i <= 6; ++i) QCOMPARE(rig.Caption(i), QString());
    QCOMPARE(window->height(), rig.ClientHeight(770));
  }

  void resultLabelDoubleClickDoesNothing() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    QTest::mouseDClick(window->Result(3), Qt::LeftButton);
    QCOMPARE(rig.app.converter.geometry.height, 770.0f);
  }

  void userResizeSnapsToAnAllowedHeight() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    window->resize(window->width(), 120);
    const float height = rig.app.converter.geometry.height;
    QVERIFY(height == 770.0f || height == 2310.0f);
    QCOMPARE(window->height(), rig.ClientHeight(height));
  }

  void colorsComeFromTheModel() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    rig.app.converter.backColor = 255;
    rig.app.converter.label1.backColor = 65280;
    rig.app.converter.lblLabel[4].backColor = 16711680;
    rig.windows.Refresh();
    QCOMPARE(window->palette().color(QPalette::Window), QColor(255, 0, 0));
    QCOMPARE(window->Label1()->palette().color(QPalette::Window),
             QColor(0, 255, 0));
    QCOMPARE(window->Result(4)->palette().color(QPalette::Window),
             QColor(0, 0, 255));
  }

  void closingUnloadsAndHides() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    window->close();
    QVERIFY(!window->isVisible());
    QVERIFY(!rig.app.converter.visible);
    QVERIFY(!rig.app.converter.loaded);
  }

  void menuTogglesTheWindow() {
    Rig rig;
    ConverterWindow* window = rig.Open();
    rig.windows.Run(mnuConverter_Click);
    QVERIFY(!window->isVisible());
    rig.windows.Run(mnuConverter_Click);
    QVERIFY(window->isVisible());
  }
};

QTEST_MAIN(ConverterWindowTest)
#include "converter_window_test.moc"
