// The calculator window driven as a user drives it: clicks on the real keys
// and typing on the real window must give what the headless program gives.

#include <QAction>
#include <QFontMetricsF>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>
#include <map>

#include "core/commands/keypad_handlers.h"
#include "program.h"
#include "support/test_program.h"

using brenko::ui::testing::Program;

namespace {

// The example of the scenario language: five feet, Equal, Plus, three feet
// six inches, Equal.
const char* const kExampleTape =
    "5'- 0\" \n+ 3'- 6\" \n--------------- \n 8'- 6\" ";
const char* const kExampleReadout = " 8'- 6\"";

// The same characters typed on a program with no windows at all.
std::string HeadlessTape(const std::string& typed, std::string* readout) {
  brenko::testing_support::TestProgram headless;
  headless.Start();
  headless.Type(typed);
  *readout = headless.app.calculator.Readout().caption;
  return headless.Tape(0);
}

// The largest pixel size, from half the key's height down, at which the
// caption fits its key with a pixel to spare at each side; 7 at the least.
int LargestCaptionPixels(const QPushButton* key, const QString& caption) {
  QFont font = key->font();
  int size = std::max(7, key->height() / 2);
  for (; size > 7; --size) {
    font.setPixelSize(size);
    if (QFontMetricsF(font).horizontalAdvance(caption) <= key->width() - 2) {
      break;
    }
  }
  return size;
}

// What each of the calculator's keys and labels showed when it was first
// painted: its text and its font's size.
class FirstPaints : public QObject {
 public:
  struct Seen {
    QString text;
    int pixels = 0;
    double points = 0;
  };
  std::map<QWidget*, Seen> seen;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || seen.count(widget) ||
        widget->window()->objectName() != QLatin1String("Calculator")) {
      return false;
    }
    QString text;
    if (auto* key = qobject_cast<QPushButton*>(widget)) {
      text = key->text();
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
      text = label->text();
    } else {
      return false;
    }
    seen[widget] = {text, widget->font().pixelSize(),
                    widget->font().pointSizeF()};
    return false;
  }
};

}  // namespace

class CalculatorKeypadTest : public QObject {
  Q_OBJECT

 private slots:
  void keypadIsBuiltFromTheControlTable() {
    Program p;
    int keys = 0;
    for (const brenko::CalcControl& c : p.app.calculator.controls) {
      if (!c.isKey) continue;
      ++keys;
      QPushButton* button = p.calc()->Key(c.name, c.index);
      QVERIFY(button);
      const QString expected =
          QString::fromStdString(c.name) +
          (c.index >= 0 ? QString::number(c.index) : QString());
      QCOMPARE(button->objectName(), expected);
      QCOMPARE(button->text(), QString::fromStdString(c.label.caption));
      QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    }
    QCOMPARE(keys, 28);
    QVERIFY(p.calc()->findChild<QPushButton*>(QStringLiteral("Number7")));
    QVERIFY(p.calc()->findChild<QPushButton*>(QStringLiteral("Equal")));
  }

  void everyWidgetHasAName() {
    Program p;
    const auto widgets = p.calc()->findChildren<QWidget*>();
    for (QWidget* w : widgets) {
      // Qt's own helpers carry names of their own ("qt_...").
      QVERIFY2(!w->objectName().isEmpty(),
               (QByteArray(w->metaObject()->className()) + " in " +
                (w->parent() ? w->parent()->objectName().toUtf8() : ""))
                   .constData());
    }
    QCOMPARE(p.calc()->objectName(), QStringLiteral("Calculator"));
    QCOMPARE(p.calc()->Readout()->objectName(), QStringLiteral("Readout"));
  }

  void startsShowingTheEmptyEntry() {
    Program p;
    QVERIFY(p.calc()->isVisible());
    QCOMPARE(p.ShownReadout(), QStringLiteral("0."));
  }

  // Each key's caption is as large as fits its key, tried size by size;
  // the word captions share the size that fits all of them.
  void keyCaptionsAreTheLargestThatFit() {
    for (const char* zoom : {"", "ZoomSmall"}) {
      Program p;
      if (*zoom) {
        auto* action = p.calc()->findChild<QAction*>(QLatin1String(zoom));
        QVERIFY(action);
        action->trigger();
      }
      int words = 1000;
      QList<QPushButton*> wordKeys;
      for (const brenko::CalcControl& c : p.app.calculator.controls) {
        if (!c.isKey) continue;
        QPushButton* key = p.calc()->Key(c.name, c.index);
        QVERIFY(key);
        const QString caption = key->text();
        const QString what =
            QStringLiteral("%1 at zoom \"%2\"").arg(caption, zoom);
        if (caption.size() >= 3) {
          words = std::min(words, LargestCaptionPixels(key, caption));
          wordKeys << key;
        } else {
          QCOMPARE(key->font().pixelSize(), LargestCaptionPixels(key, caption));
        }
        QVERIFY2(key->font().pixelSize() >= 7, qPrintable(what));
      }
      QVERIFY(wordKeys.size() >= 3);
      for (QPushButton* key : wordKeys) {
        QCOMPARE(key->font().pixelSize(), words);
      }
    }
  }

  // The window goes on screen before its keys are fitted, but nothing of
  // it is painted before they are: each key and label, at its first paint,
  // shows the caption and the font it keeps.
  void theFirstPaintShowsEveryKeyFilledIn() {
    FirstPaints first;
    qApp->installEventFilter(&first);
    Program p;
    QVERIFY(QTest::qWaitForWindowExposed(p.calc()));
    QList<QWidget*> shown;
    for (auto* key : p.calc()->findChildren<QPushButton*>()) {
      if (key->isVisible()) shown << key;
    }
    for (auto* label : p.calc()->findChildren<QLabel*>()) {
      if (label->isVisible() && !label->text().isEmpty()) shown << label;
    }
    QVERIFY(shown.size() > 20);
    QTRY_VERIFY(std::all_of(shown.begin(), shown.end(), [&](QWidget* w) {
      return first.seen.count(w) > 0;
    }));
    qApp->removeEventFilter(&first);
    for (QWidget* w : shown) {
      const FirstPaints::Seen& seen = first.seen[w];
      const QString what = w->objectName();
      auto* key = qobject_cast<QPushButton*>(w);
      QCOMPARE(seen.text, key ? key->text() : qobject_cast<QLabel*>(w)->text());
      QVERIFY2(seen.pixels == w->font().pixelSize(), qPrintable(what));
      QVERIFY2(seen.points == w->font().pointSizeF(), qPrintable(what));
    }
    QCOMPARE(first.seen[p.calc()->Key("Number", 5)].text, QStringLiteral("5"));
  }

  void clickingTheKeysGivesTheExample() {
    Program p;
    for (const char* key :
         {"Number5", "Foot", "Number0", "Inch", "Equal", "Plus", "Number3",
          "Foot", "Number6", "Inch", "Equal"}) {
      auto* button = p.calc()->findChild<QPushButton*>(key);
      QVERIFY2(button, key);
      QTest::mouseClick(button, Qt::LeftButton);
    }
    QCOMPARE(p.Readout(), std::string(kExampleReadout));
    QCOMPARE(p.ShownReadout(), QString::fromUtf8(kExampleReadout));
    QCOMPARE(p.Tape(0), std::string(kExampleTape));
  }

  void typingGivesTheExample() {
    Program p;
    p.Type(QStringLiteral("5'0\"\r+3'6\"\r"));
    QCOMPARE(p.ShownReadout(), QString::fromUtf8(kExampleReadout));
    QCOMPARE(p.Tape(0), std::string(kExampleTape));
    std::string readout;
    QCOMPARE(p.Tape(0), HeadlessTape("5'0\"\r+3'6\"\r", &readout));
    QCOMPARE(p.Readout(), readout);
  }

  void enterOnTheFocusedEqualKeyComputesOnce() {
    Program p;
    QCOMPARE(p.app.calculator.focus, std::string("Equal"));
    p.Type(QStringLiteral("5'0\""));
    // Enter pressed while a key widget receives it: the character reaches
    // the window's handler once and the key is not clicked as well.
    auto* equal = p.calc()->Key("Equal");
    QSignalSpy clicks(equal, &QPushButton::clicked);
    QTest::keyClick(equal, Qt::Key_Return);
    QCOMPARE(clicks.count(), 0);
    std::string readout;
    QCOMPARE(p.Tape(0), HeadlessTape("5'0\"\r", &readout));
    QCOMPARE(p.Readout(), readout);
    QCOMPARE(p.app.tapes.TapeLineCount()[0], std::int16_t{1});
  }

  void enterOnADigitKeyDoesNotTypeTheDigit() {
    Program p;
    p.Type(QStringLiteral("4"));
    QTest::keyClick(p.calc()->Key("Number", 7), Qt::Key_Enter);
    std::string readout;
    HeadlessTape("4\r", &readout);
    QCOMPARE(p.Readout(), readout);
  }

  void spaceBarNeverClicksAKey() {
    Program p;
    p.Type(QStringLiteral("5"));
    auto* seven = p.calc()->Key("Number", 7);
    QSignalSpy clicks(seven, &QPushButton::clicked);
    QTest::keyClick(seven, Qt::Key_Space);
    QCOMPARE(clicks.count(), 0);
    QCOMPARE(p.Readout(), std::string("5 "));
  }

  void everyCharacterArrivesOnce() {
    Program p;
    p.Type(QStringLiteral("12"));
    QCOMPARE(p.Readout(), std::string("12"));
    QTest::keyClick(p.calc()->Readout(), Qt::Key_3);
    QTest::keyClick(p.calc()->Label1(), Qt::Key_4);
    QCOMPARE(p.Readout(), std::string("1234"));
    QTest::keyClick(p.calc()->Client(), Qt::Key_Backspace);
    QCOMPARE(p.Readout(), std::string("123"));
    QTest::keyClick(p.calc()->Client(), Qt::Key_Escape);
    QCOMPARE(p.Readout(), std::string("0."));
  }

  void rightClickOnAKeyOpensTheContextMenu() {
    Program p;
    QTest::mouseClick(p.calc()->Key("Number", 7), Qt::RightButton);
    QCOMPARE(p.platform.popups, std::vector<std::string>{"mnuPopup1"});
    QCOMPARE(p.Readout(), std::string("0."));
    QTest::mouseClick(p.calc()->Key("Plus"), Qt::RightButton);
    QTest::mouseClick(p.calc()->Key("CylVolume"), Qt::RightButton);
    QCOMPARE(p.platform.popups.size(), std::size_t{3});
  }

  void rightClickOnTheWindowAndPromptOpensTheContextMenu() {
    Program p;
    QTest::mouseClick(p.calc()->Client(), Qt::LeftButton, {}, QPoint(2, 2));
    QVERIFY(p.platform.popups.empty());
    QTest::mouseClick(p.calc()->Client(), Qt::RightButton, {}, QPoint(2, 2));
    QCOMPARE(p.platform.popups.size(), std::size_t{1});
    QTest::mouseClick(p.calc()->Label1(), Qt::RightButton);
    QCOMPARE(p.platform.popups,
             (std::vector<std::string>{"mnuPopup1", "mnuPopup1"}));
  }

  // A press on the readout is the readout's own mouse-down, as the scenario
  // runner presses it: the right button opens the context menu once, the
  // left one gives the readout the plain drag picture.
  void pressOnTheReadoutGoesThroughItsMouseDown() {
    Program p;
    QTest::mouseClick(p.calc()->Readout(), Qt::RightButton);
    QCOMPARE(p.platform.popups, std::vector<std::string>{"mnuPopup1"});
    p.windows.Run(
        [](brenko::App& a) { a.calculator.readoutDragIcon = "Image1"; });
    QTest::mousePress(p.calc()->Readout(), Qt::LeftButton);
    QCOMPARE(p.app.calculator.readoutDragIcon, std::string("Image3"));
    QTest::mouseRelease(p.calc()->Readout(), Qt::LeftButton);
    QCOMPARE(p.platform.popups.size(), std::size_t{1});
    QCOMPARE(p.Readout(), std::string("0."));
  }

  void doubleClickTogglesTheKeys() {
    Program p;
    const int fullHeight = p.calc()->height();
    QTest::mouseDClick(p.calc()->Client(), Qt::LeftButton, {}, QPoint(2, 2));
    QVERIFY(!p.app.menus.IsChecked(brenko::MenuId::ShowKeys));
    QVERIFY(p.calc()->height() < fullHeight);
    QTest::mouseDClick(p.calc()->Label1(), Qt::LeftButton);
    QVERIFY(p.app.menus.IsChecked(brenko::MenuId::ShowKeys));
    QCOMPARE(p.calc()->height(), fullHeight);
  }

  void theContextMenuIsBuiltFromTheMenuTable() {
    Program p;
    QMenu* popup = p.calc()->Popup("mnuPopup1");
    QVERIFY(popup);
    QCOMPARE(popup->objectName(), QStringLiteral("mnuPopup1"));
    auto* area =
        popup->findChild<QAction*>(QStringLiteral("mnuPopUp1AreaofCircle"));
    QVERIFY(area);
    QCOMPARE(area->text(), QStringLiteral("Area of Circle..."));
    auto* tape =
        popup->findChild<QAction*>(QStringLiteral("mnuPopup1ShowTape"));
    QVERIFY(tape);
    QCOMPARE(tape->text(), QStringLiteral("ShowTape"));
  }
};

QTEST_MAIN(CalculatorKeypadTest)
#include "calculator_keypad_test.moc"
