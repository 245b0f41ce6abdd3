// The windows as a desktop has them: the buttons each offers, where keys go,
// the companions of the calculator, places from another screen, and
// captions that never lose digits without a sign.
#include <QAction>
#include <QApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QTableView>
#include <QTest>
#include <QWindow>
#include <algorithm>

#include "core/commands/converter_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/startup.h"
#include "program.h"
#include "ui/about_dialog.h"
#include "ui/converter_window.h"
#include "ui/fit_text.h"
#include "ui/input_dialog.h"
#include "ui/main_frame_window.h"
#include "ui/twips.h"
#include "ui/window_buttons.h"

using brenko::MemorySettingsStore;
using brenko::WindowKind;
using brenko::WindowState;
using brenko::ui::CaptionCut;
using brenko::ui::CaptionRoom;
using brenko::ui::FitCaption;
using brenko::ui::kSmallestFontShare;
using brenko::ui::testing::Program;

namespace {

QAction* Action(Program& p, const char* name) {
  return p.calc()->findChild<QAction*>(QString::fromLatin1(name));
}

// A caption is shown whole, or cut with its whole value in the tooltip.
void VerifyShownWhole(QLabel* label) {
  const double width =
      QFontMetricsF(label->font()).horizontalAdvance(label->text());
  if (width <= CaptionRoom(label)) {
    QVERIFY2(!CaptionCut(label), qPrintable(label->text()));
    QVERIFY(label->toolTip().isEmpty());
  } else {
    QVERIFY2(CaptionCut(label), qPrintable(label->text()));
    QCOMPARE(label->toolTip(), label->text().trimmed());
  }
}

// The huge volume that used to lose its leading "12".
const QString kHugeVolume = QStringLiteral("10'1/16\"\rx10'3/4\"\rx12'4\"\r");

}  // namespace

class DesktopMannersTest : public QObject {
  Q_OBJECT

 private slots:
  void fixedSizeWindowsOfferNoMaximise() {
    Program p;
    const Qt::WindowFlags calc = p.calc()->windowFlags();
    QVERIFY(calc.testFlag(Qt::CustomizeWindowHint));
    QVERIFY(!calc.testFlag(Qt::WindowMaximizeButtonHint));
    QVERIFY(calc.testFlag(Qt::WindowMinimizeButtonHint));
    QVERIFY(calc.testFlag(Qt::WindowCloseButtonHint));
    const Qt::WindowFlags conv = p.windows.Converter()->windowFlags();
    QVERIFY(conv.testFlag(Qt::CustomizeWindowHint));
    QVERIFY(!conv.testFlag(Qt::WindowMaximizeButtonHint));
  }

  void dialogsOfferOnlyClose() {
    brenko::ui::InputDialog input(
        {"Named Memory", "Enter a name for this memory cell:", "Memory 3"});
    brenko::ui::AboutDialog about(
        {"Brenko Calculator", "Version 1.0.0", "Maker", "Notice"}, [] {});
    for (QWidget* dialog :
         {static_cast<QWidget*>(&input), static_cast<QWidget*>(&about)}) {
      const Qt::WindowFlags flags = dialog->windowFlags();
      QVERIFY(flags.testFlag(Qt::CustomizeWindowHint));
      QVERIFY(flags.testFlag(Qt::WindowCloseButtonHint));
      QVERIFY(!flags.testFlag(Qt::WindowMinimizeButtonHint));
      QVERIFY(!flags.testFlag(Qt::WindowMaximizeButtonHint));
    }
  }

  void converterIsNeverMaximised() {
    Program p;
    brenko::ui::ConverterWindow* conv = p.windows.Converter();
    conv->show();
    const brenko::Rect before = p.app.converter.geometry;
    conv->showMaximized();
    QTRY_VERIFY(!conv->isMaximized());
    QCOMPARE(p.app.converter.geometry, before);
  }

  // The converter is as high as its model says, in both its heights; its
  // width the user may change, up to half the screen.
  void converterHasItsModelsHeightAndAtMostHalfTheScreen() {
    Program p;
    p.windows.Run([](brenko::App& app) { brenko::mnuConverter_Click(app); });
    brenko::ui::ConverterWindow* conv = p.windows.Converter();
    QVERIFY(conv->isVisible());
    const int half = conv->screen()->availableGeometry().width() / 2;
    const int collapsed = conv->height();
    QCOMPARE(conv->minimumHeight(), collapsed);
    QCOMPARE(conv->maximumHeight(), collapsed);
    QCOMPARE(conv->maximumWidth(), std::max(half, conv->width()));
    p.windows.Run(
        [](brenko::App& app) { brenko::Converter_Form_DblClick(app); });
    QVERIFY(conv->height() > collapsed);
    QCOMPARE(conv->minimumHeight(), conv->height());
    QCOMPARE(conv->maximumHeight(), conv->height());
    // A user's wider window is taken, up to half the screen.
    const int wider = conv->width() + 40;
    conv->resize(wider, conv->height());
    QCOMPARE(conv->width(), std::min(wider, conv->maximumWidth()));
    conv->resize(half * 3, conv->height());
    QCOMPARE(conv->width(), conv->maximumWidth());
    QVERIFY(conv->width() <= std::max(half, wider));
  }

  void keysTypedInTheCompanionsAndTheFrameReachTheCalculator() {
    Program p;
    QTest::keyClicks(p.tape()->Grid(), QStringLiteral("7"));
    QCOMPARE(p.Readout(), std::string("7"));
    QTest::keyClicks(p.windows.Converter(), QStringLiteral("4"));
    QCOMPARE(p.Readout(), std::string("74"));
    p.NewMemories(1);
    QWidget* memory = p.windows.Existing({WindowKind::kMemory, 1});
    QVERIFY(memory);
    QTest::keyClicks(memory, QStringLiteral("5"));
    QCOMPARE(p.Readout(), std::string("745"));
    QTest::keyClicks(p.windows.MainFrame(), QStringLiteral("2"));
    QCOMPARE(p.Readout(), std::string("7452"));
  }

  void dialogsAndHelpKeepTheirKeys() {
    Program p;
    p.Type(QStringLiteral("3"));
    brenko::ui::InputDialog input(
        {"Named Memory", "Enter a name for this memory cell:", ""}, p.calc());
    auto* name = input.findChild<QLineEdit*>(QStringLiteral("txtText1"));
    QVERIFY(name);
    QTest::keyClicks(name, QStringLiteral("12"));
    QCOMPARE(name->text(), QStringLiteral("12"));
    p.platform.ShowHelp("");
    auto* help = p.calc()->findChild<QWidget*>(QStringLiteral("HelpWindow"));
    QVERIFY2(help, "Help is the calculator's transient window");
    auto* search = help->findChild<QLineEdit*>(QStringLiteral("txtSearch"));
    QVERIFY(search);
    QTest::keyClicks(search, QStringLiteral("45"));
    QCOMPARE(search->text(), QStringLiteral("45"));
    QCOMPARE(p.Readout(), std::string("3"));
    help->close();
  }

  void helpListsItsChaptersWhole() {
    Program p;
    p.platform.ShowHelp("");
    auto* help = p.calc()->findChild<QWidget*>(QStringLiteral("HelpWindow"));
    QVERIFY(help);
    auto* contents =
        help->findChild<QListWidget*>(QStringLiteral("lstContents"));
    QVERIFY(contents);
    QVERIFY(contents->count() > 0);
    QTRY_VERIFY(contents->viewport()->width() >=
                contents->sizeHintForColumn(0));
    help->close();
  }

  void theConverterIsTransientTheTapeAWindowOfItsOwn() {
    Program p;
    QCOMPARE(p.windows.Converter()->parentWidget(), p.calc());
    // The tape has its entry in the task list: a normal window, neither a
    // tool window nor one transient for the calculator.
    QVERIFY(p.tape()->isWindow());
    QCOMPARE(p.tape()->parentWidget(), nullptr);
    QCOMPARE(p.tape()->windowType(), Qt::Window);
    QVERIFY(p.tape()->windowHandle());
    QCOMPARE(p.tape()->windowHandle()->transientParent(), nullptr);
    QCOMPARE(p.tape()->windowTitle(), QStringLiteral("Tape"));
  }

  void closingTheTapeWindowHidesItAsTheMenuDoes() {
    Program p;
    QVERIFY(p.tape()->isVisible());
    QVERIFY(p.app.menus.IsChecked(brenko::MenuId::mnuTape));
    p.tape()->close();
    QVERIFY(!p.tape()->isVisible());
    QVERIFY(!p.app.tapeWindow.visible);
    QVERIFY(!p.app.menus.IsChecked(brenko::MenuId::mnuTape));
    QVERIFY(!p.app.menus.IsChecked(brenko::MenuId::mnuPopup1ShowTape));
  }

  void companionsAreOnTopWithTheCalculatorFromStartUp() {
    Program p;
    QVERIFY(p.calc()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(p.tape()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(p.windows.Converter()->windowFlags().testFlag(
        Qt::WindowStaysOnTopHint));
  }

  void minimisingTheCalculatorTakesItsCompanionsAlong() {
    MemorySettingsStore settings;
    settings.Save("Settings", "Converter", "1");
    Program p(settings);
    QVERIFY(p.tape()->isVisible());
    QVERIFY(p.windows.Converter()->isVisible());
    p.windows.Run([](brenko::App& app) {
      app.calculator.state = WindowState::kMinimized;
    });
    QVERIFY(!p.tape()->isVisible());
    QVERIFY(!p.windows.Converter()->isVisible());
    // The models still want them: they come back with the calculator.
    QVERIFY(p.app.tapeWindow.visible);
    QVERIFY(p.app.converter.visible);
    p.windows.Run(
        [](brenko::App& app) { app.calculator.state = WindowState::kNormal; });
    QVERIFY(p.tape()->isVisible());
    QVERIFY(p.windows.Converter()->isVisible());
  }

  void theTapeFollowsTheCalculatorsMove() {
    Program p;
    QVERIFY(p.tape()->isVisible());
    const QPoint tape = p.tape()->pos();
    const QPoint calc = p.calc()->pos();
    p.calc()->move(calc + QPoint(-30, 20));
    QTRY_COMPARE(p.calc()->pos(), calc + QPoint(-30, 20));
    QTRY_COMPARE(p.tape()->pos(), tape + QPoint(-30, 20));
    // Both places are the user's: the next start has them.
    const brenko::ScreenInfo s = p.platform.Screen();
    QCOMPARE(brenko::ui::TwipsToPixels(p.app.tapeWindow.geometry.left,
                                       s.twipsPerPixelX),
             tape.x() - 30);
    QCOMPARE(brenko::ui::TwipsToPixels(p.app.calculator.geometry.top,
                                       s.twipsPerPixelY),
             calc.y() + 20);
  }

  void aPlaceFromABiggerScreenIsShownOnThisOneAndKept() {
    MemorySettingsStore settings;
    settings.Save("Settings", "CalcLeft", "28470");
    settings.Save("Settings", "CalcTop", "13500");
    Program p(settings);
    // The first look at the windows' frames is after they are shown.
    p.windows.Refresh();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(screen.width() < 1898);
    QVERIFY2(screen.contains(p.calc()->frameGeometry()),
             qPrintable(QStringLiteral("%1,%2 in %3x%4")
                            .arg(p.calc()->x())
                            .arg(p.calc()->y())
                            .arg(screen.width())
                            .arg(screen.height())));
    QVERIFY(screen.contains(p.tape()->frameGeometry()));
    // The model keeps the place it read: the platform's correction is not
    // a move of the user's.
    QCOMPARE(p.app.calculator.geometry.left, 28470.0f);
    QCOMPARE(p.app.calculator.geometry.top, 13500.0f);
  }

  void theTapeGoesBelowACalculatorAtTheTopEdge() {
    MemorySettingsStore settings;
    settings.Save("Settings", "CalcTop", "0");
    Program p(settings);
    QCOMPARE(p.calc()->y(), 0);
    QVERIFY(p.tape()->y() >= 0);
    QVERIFY2(p.tape()->y() >= p.calc()->y() + p.calc()->height(),
             qPrintable(QStringLiteral("tape at %1, calculator %2 high")
                            .arg(p.tape()->y())
                            .arg(p.calc()->height())));
    // Above the calculator stays the model's place.
    QVERIFY(p.app.tapeWindow.geometry.top < 0);
  }

  void theHugeVolumeIsNeverCutSilently() {
    Program p;
    p.Type(kHugeVolume);
    QVERIFY2(p.Readout().find("1241'-") != std::string::npos,
             p.Readout().c_str());
    VerifyShownWhole(p.calc()->Readout());
    QCOMPARE(p.ShownReadout(), QString::fromStdString(p.Readout()));
    QAction* zoomSmall = Action(p, "ZoomSmall");
    QVERIFY(zoomSmall);
    zoomSmall->trigger();
    p.Type(QStringLiteral("\x1b\x1b") + kHugeVolume);
    VerifyShownWhole(p.calc()->Readout());
    QCOMPARE(p.ShownReadout(), QString::fromStdString(p.Readout()));
    // However it is drawn, a screen reader hears the control's name and the
    // whole value.
    QCOMPARE(p.calc()->Readout()->accessibleName(), QStringLiteral("Readout"));
    QCOMPARE(p.calc()->Readout()->accessibleDescription(),
             QString::fromStdString(p.Readout()).trimmed());
  }

  // A label with children of its own (a memory's value label carries its
  // context menu's helpers) is fitted the same.
  void aLabelWithChildrenIsFittedAndCut() {
    QLabel label;
    label.resize(120, 20);
    new QObject(&label);
    new QWidget(&label);
    QFont base = label.font();
    base.setPointSizeF(12);
    label.setText(QStringLiteral(" 1234567890123'- 1188 15/16\" cu."));
    FitCaption(&label, base);
    QVERIFY(CaptionCut(&label));
    QCOMPARE(label.toolTip(), label.text().trimmed());
    label.setText(QStringLiteral("1\""));
    FitCaption(&label, base);
    QVERIFY(!CaptionCut(&label));
    QCOMPARE(label.font().pointSizeF(), 12.0);
    QVERIFY(label.toolTip().isEmpty());
  }

  void aLongCaptionStepsDownThenIsCutWithItsTooltip() {
    QLabel label;
    label.resize(120, 20);
    QFont base = label.font();
    base.setPointSizeF(12);
    label.setText(QStringLiteral("12'- 3\""));
    FitCaption(&label, base);
    QCOMPARE(label.font().pointSizeF(), 12.0);
    QVERIFY(!CaptionCut(&label));
    QVERIFY(label.toolTip().isEmpty());

    // A little too wide: a smaller font, no cut.
    QString text = QStringLiteral("12'- 3\"");
    while (QFontMetricsF(base).horizontalAdvance(text) <= CaptionRoom(&label)) {
      text.prepend(QLatin1Char('1'));
    }
    label.setText(text);
    FitCaption(&label, base);
    QVERIFY(label.font().pointSizeF() < 12.0);
    QVERIFY(label.font().pointSizeF() >= 12.0 * kSmallestFontShare);
    QVERIFY(!CaptionCut(&label));
    VerifyShownWhole(&label);

    // Far too wide: the smallest font, cut, the whole in the tooltip.
    label.setText(QStringLiteral(" 1234567890123'- 1188 15/16\" cu. ") +
                  QString(20, QLatin1Char('9')));
    FitCaption(&label, base);
    QVERIFY(CaptionCut(&label));
    QCOMPARE(label.toolTip(), label.text().trimmed());
    QCOMPARE(label.text().left(6), QStringLiteral(" 12345"));
    QVERIFY(label.font().pointSizeF() >= 12.0 * kSmallestFontShare - 0.01);

    // Short again: whole, and the tooltip goes.
    label.setText(QStringLiteral("1\""));
    FitCaption(&label, base);
    QVERIFY(!CaptionCut(&label));
    QVERIFY(label.toolTip().isEmpty());
    QCOMPARE(label.font().pointSizeF(), 12.0);
  }

  void aMemoryValueIsNeverCutSilently() {
    Program p;
    p.NewMemories(1);
    p.windows.Run([](brenko::App& app) {
      app.memory.Find(1)->label1.caption = " 1241'- 1188 15/16\" cu. ";
    });
    QWidget* memory = p.windows.Existing({WindowKind::kMemory, 1});
    QVERIFY(memory);
    auto* value = memory->findChild<QLabel*>(QStringLiteral("Label1"));
    QVERIFY(value);
    QVERIFY2(value->text().contains(QStringLiteral("1241'-")),
             qPrintable(value->text()));
    VerifyShownWhole(value);
  }

  void tapeLinesAreNeverCutOnTheLeft() {
    Program p;
    QAction* zoomSmall = Action(p, "ZoomSmall");
    QVERIFY(zoomSmall);
    zoomSmall->trigger();
    p.Type(kHugeVolume);
    QTableView* grid = p.tape()->Grid();
    QCOMPARE(grid->textElideMode(), Qt::ElideRight);
    QAbstractItemModel* model = grid->model();
    int column = 0;
    while (column < model->columnCount() && grid->isColumnHidden(column)) {
      ++column;
    }
    QString longest;
    for (int row = 0; row < model->rowCount(); ++row) {
      const QString line = model->index(row, column).data().toString();
      if (line.size() > longest.size()) longest = line;
    }
    QVERIFY2(longest.contains(QStringLiteral("1241'-")), qPrintable(longest));
    grid->scrollToBottom();
    p.windows.Refresh();
    QVERIFY2(QFontMetricsF(grid->font()).horizontalAdvance(longest) <=
                 grid->columnWidth(column),
             qPrintable(QStringLiteral("%1 in %2 px at %3 pt")
                            .arg(longest)
                            .arg(grid->columnWidth(column))
                            .arg(grid->font().pointSizeF())));
    // And it is the largest font, a quarter point at a time down from the
    // desktop's fixed font, in which a line of zeros as long as the longest
    // (and never shorter than 21) fits the paper's room.
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const int margin = grid->style()->pixelMetric(QStyle::PM_FocusFrameHMargin,
                                                  nullptr, grid) +
                       1;
    const int room =
        std::min(grid->width() - grid->verticalScrollBar()->sizeHint().width(),
                 grid->viewport()->width()) -
        2 * margin;
    const QString zeros(std::max<qsizetype>(21, longest.size()),
                        QLatin1Char('0'));
    double points = font.pointSizeF();
    while (points > 5 && QFontMetricsF(font).horizontalAdvance(zeros) > room) {
      points = std::max(5.0, points - 0.25);
      font.setPointSizeF(points);
    }
    QVERIFY2(
        points <
            QFontDatabase::systemFont(QFontDatabase::FixedFont).pointSizeF(),
        "the long line made the paper's font smaller");
    QCOMPARE(grid->font().pointSizeF(), points);
  }

  // The frame's size while maximised is the window manager's, never the
  // model's: restored, the frame has the size its arrangement gives it (the
  // one it had for three memories; a single memory's own, whole, for one).
  void theFrameComesBackToItsArrangedSizeAfterMaximise() {
    for (int count : {3, 1}) {
      Program p;
      p.NewMemories(count);
      brenko::ui::MainFrameWindow* frame = p.windows.MainFrame();
      QTRY_VERIFY(frame->isVisible());
      const QSize before = frame->size();
      frame->showMaximized();
      QTRY_VERIFY(frame->isMaximized());
      frame->showNormal();
      QTRY_VERIFY(!frame->isMaximized());
      const brenko::ScreenInfo s = p.platform.Screen();
      const QSize arranged(
          brenko::ui::TwipsToPixels(p.app.mainFrame.InnerWidth(),
                                    s.twipsPerPixelX),
          brenko::ui::TwipsToPixels(p.app.mainFrame.InnerHeight(),
                                    s.twipsPerPixelY));
      QTRY_COMPARE(frame->size(), arranged);
      if (count == 3) QCOMPARE(frame->size(), before);
      const QRect screen =
          QGuiApplication::primaryScreen()->availableGeometry();
      QVERIFY(screen.contains(frame->geometry()));
    }
  }

  // Under a scale such as 1.5 the window manager is asked for sizes in
  // steps of two device pixels; counted from nothing, a window manager
  // keeping to them would cut an odd-sized window by one. The steps of the
  // windows that take their size from a model start at that size.
  void sizeStepsStartAtTheModelsSize() {
    MemorySettingsStore settings;
    settings.Save("Settings", "Converter", "1");
    Program p(settings);
    p.NewMemories(12);
    brenko::ui::MainFrameWindow* frame = p.windows.MainFrame();
    QTRY_VERIFY(frame->isVisible());
    const brenko::ScreenInfo s = p.platform.Screen();
    const QSize arranged(brenko::ui::TwipsToPixels(p.app.mainFrame.InnerWidth(),
                                                   s.twipsPerPixelX),
                         brenko::ui::TwipsToPixels(
                             p.app.mainFrame.InnerHeight(), s.twipsPerPixelY));
    QCOMPARE(frame->size(), arranged);
    QCOMPARE(frame->baseSize(), arranged);
    for (QWidget* window : {static_cast<QWidget*>(p.tape()),
                            static_cast<QWidget*>(p.windows.Converter())}) {
      QVERIFY(window->isVisible());
      QCOMPARE(window->baseSize(), window->size());
    }
  }
};

QTEST_MAIN(DesktopMannersTest)
#include "desktop_manners_test.moc"
