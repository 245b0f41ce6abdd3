// The calculator's menus and sizes: the bar built from the menu table, check
// marks that follow the model, and zoom and key display moving the widgets.

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "core/base/calculator_form.h"
#include "program.h"
#include "ui/twips.h"

using brenko::ui::testing::Program;

namespace {

QAction* Action(Program& p, const char* name) {
  return p.calc()->findChild<QAction*>(QString::fromLatin1(name));
}

QRect Pixels(Program& p, const brenko::Rect& r) {
  const brenko::ScreenInfo s = p.platform.Screen();
  return brenko::ui::TwipsToPixels(r, s.twipsPerPixelX, s.twipsPerPixelY);
}

}  // namespace

class CalculatorMenusTest : public QObject {
  Q_OBJECT

 private slots:
  void barHoldsTheFourMenusInOrder() {
    Program p;
    QStringList titles;
    for (QAction* a : p.calc()->menuBar()->actions()) titles << a->text();
    QCOMPARE(titles, (QStringList{"&File", "&Memory", "&Display", "&Help"}));
  }

  void entriesKeepTheirNamesAndCaptions() {
    Program p;
    QCOMPARE(Action(p, "mnuOpen")->text(), QStringLiteral("&Open..."));
    QCOMPARE(Action(p, "mnuColor1")->text(),
             QStringLiteral("Calculator readout "));
    QCOMPARE(Action(p, "mnuColor6")->text(),
             QStringLiteral("Converter result readouts"));
    // The menu shows an access key the entry's caption lacks ("3").
    QCOMPARE(Action(p, "thirtysecond")->text(), QStringLiteral("1/&32\""));
    QCOMPARE(p.app.menus.At("thirtysecond").caption, std::string("1/32\""));
    QVERIFY(Action(p, "mnuSeperator")->isSeparator());
    QVERIFY(Action(p, "mnuSep")->isSeparator());
    QVERIFY(Action(p, "Formulas")->menu());
    QVERIFY(Action(p, "mnuColors")->menu());
    // The context menus never show in the bar.
    QVERIFY(
        !p.calc()->menuBar()->findChild<QMenu*>(QStringLiteral("mnuPopup1")));
  }

  void designCheckMarksAreShown() {
    Program p;
    QVERIFY(Action(p, "Sixteen")->isChecked());
    QVERIFY(!Action(p, "thirtysecond")->isChecked());
    QVERIFY(Action(p, "ZoomLarge")->isChecked());
    QVERIFY(Action(p, "ShowKeys")->isChecked());
    // An unchecked entry shows no mark at all.
    QVERIFY(!Action(p, "thirtysecond")->isCheckable());
  }

  void accuracyCheckMarksFollowBothMenus() {
    Program p;
    QMenu* popup = p.calc()->Popup("mnuPopup1");
    Action(p, "thirtysecond")->trigger();
    QCOMPARE(p.app.accuracy, std::int16_t{32});
    QVERIFY(Action(p, "thirtysecond")->isChecked());
    QVERIFY(!Action(p, "Sixteen")->isChecked());
    auto* popup32 =
        popup->findChild<QAction*>(QStringLiteral("mnuPopup1Accuracy32"));
    auto* popup16 =
        popup->findChild<QAction*>(QStringLiteral("mnuPopup1Accuracy16"));
    QVERIFY(popup32->isChecked());
    QVERIFY(!popup16->isChecked());
    popup16->trigger();
    QCOMPARE(p.app.accuracy, std::int16_t{16});
    QVERIFY(Action(p, "Sixteen")->isChecked());
    QVERIFY(!Action(p, "thirtysecond")->isChecked());
  }

  void tapeCheckMarkFollowsTheTapeWindow() {
    Program p;
    const bool shown = p.app.tapeWindow.visible;
    QCOMPARE(Action(p, "mnuTape")->isChecked(), shown);
    Action(p, "mnuTape")->trigger();
    QCOMPARE(p.tape()->isVisible(), !shown);
    QCOMPARE(Action(p, "mnuTape")->isChecked(), !shown);
    QMenu* popup = p.calc()->Popup("mnuPopup1");
    popup->findChild<QAction*>(QStringLiteral("mnuPopup1ShowTape"))->trigger();
    QCOMPARE(p.tape()->isVisible(), shown);
    QCOMPARE(Action(p, "mnuTape")->isChecked(), shown);
  }

  void zoomSmallScalesEveryKey() {
    Program p;
    const QRect sevenAt100 = p.calc()->Key("Number", 7)->geometry();
    const int widthAt100 = p.calc()->width();
    Action(p, "ZoomSmall")->trigger();
    QVERIFY(Action(p, "ZoomSmall")->isChecked());
    QVERIFY(!Action(p, "ZoomLarge")->isChecked());
    const brenko::CalcControl* seven = p.app.calculator.Find("Number", 7);
    QCOMPARE(p.calc()->Key("Number", 7)->geometry(),
             Pixels(p, seven->label.rect));
    QVERIFY(p.calc()->Key("Number", 7)->width() < sevenAt100.width());
    QVERIFY(p.calc()->width() < widthAt100);
    QCOMPARE(p.calc()->Readout()->geometry(),
             Pixels(p, p.app.calculator.Readout().rect));
    QCOMPARE(p.calc()->Readout()->font().pointSizeF(), 9.75);
    // Every menu stays in view at the small width.
    QVERIFY(p.calc()->menuBar()->sizeHint().width() <=
            p.calc()->menuBar()->width());
  }

  void zoomLargeRestoresTheDesign() {
    Program p;
    const QRect sevenAt100 = p.calc()->Key("Number", 7)->geometry();
    const QSize sizeAt100 = p.calc()->size();
    Action(p, "ZoomSmall")->trigger();
    Action(p, "ZoomLarge")->trigger();
    QCOMPARE(p.calc()->Key("Number", 7)->geometry(), sevenAt100);
    QCOMPARE(p.calc()->size(), sizeAt100);
    QCOMPARE(p.calc()->Readout()->font().pointSizeF(), 13.5);
  }

  void hidingTheKeysLeavesTheReadout() {
    Program p;
    const brenko::ScreenInfo s = p.platform.Screen();
    Action(p, "ShowKeys")->trigger();
    QVERIFY(!Action(p, "ShowKeys")->isChecked());
    const int client = brenko::ui::TwipsToPixels(
        1350 - brenko::kCalcNonClientHeight, s.twipsPerPixelY);
    QCOMPARE(p.calc()->Client()->height(), client);
    // The readout with its sunken edge still fits in the client area.
    QVERIFY(p.calc()->Readout()->geometry().bottom() <
            p.calc()->Client()->height());
    Action(p, "ShowKeys")->trigger();
    QCOMPARE(p.calc()->Client()->height(),
             brenko::ui::TwipsToPixels(3590 - brenko::kCalcNonClientHeight,
                                       s.twipsPerPixelY));
  }

  void readoutOnlyAt75PercentStillFits() {
    Program p;
    Action(p, "ZoomSmall")->trigger();
    Action(p, "ShowKeys")->trigger();
    QVERIFY(p.calc()->Readout()->geometry().bottom() <
            p.calc()->Client()->height());
  }

  void windowSitsAtTheModelsPlace() {
    Program p;
    const brenko::Rect& g = p.app.calculator.geometry;
    const brenko::ScreenInfo s = p.platform.Screen();
    QCOMPARE(p.calc()->pos(),
             QPoint(brenko::ui::TwipsToPixels(g.left, s.twipsPerPixelX),
                    brenko::ui::TwipsToPixels(g.top, s.twipsPerPixelY)));
  }

  void calculatorIsMadeTopmostAtStartUp() {
    Program p;
    bool asked = false;
    for (const auto& [window, onTop] : p.platform.topmost) {
      if (window.kind == brenko::WindowKind::kCalculator && onTop) {
        asked = true;
      }
    }
    QVERIFY(asked);
    QVERIFY(p.calc()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(p.calc()->isVisible());
  }
};

QTEST_MAIN(CalculatorMenusTest)
#include "calculator_menus_test.moc"
