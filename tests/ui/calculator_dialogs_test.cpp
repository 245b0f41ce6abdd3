// The calculator's dialogs: the named-memory prompt frmInput, the About box
// frmAbout and the help window.

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include "ui/about_dialog.h"
#include "ui/help_window.h"
#include "ui/input_dialog.h"

class CalculatorDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void promptIsPrefilledAndWhollySelected() {
    brenko::ui::InputDialog dialog(
        {"Named Memory", "Enter a name for this memory cell:", "Memory 3"});
    QCOMPARE(dialog.objectName(), QStringLiteral("frmInput"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Named Memory"));
    auto* text = dialog.findChild<QLineEdit*>(QStringLiteral("txtText1"));
    QVERIFY(text);
    QCOMPARE(text->text(), QStringLiteral("Memory 3"));
    QCOMPARE(text->selectedText(), QStringLiteral("Memory 3"));
    QCOMPARE(dialog.findChild<QPushButton*>(QStringLiteral("Command1"))->text(),
             QStringLiteral("OK"));
    QCOMPARE(dialog.findChild<QPushButton*>(QStringLiteral("Command2"))->text(),
             QStringLiteral("Cancel"));
    QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("Label1"))->text(),
             QStringLiteral("Enter a name for this memory cell:"));
  }

  void okAnswersTheTypedName() {
    brenko::ui::InputDialog dialog({"Named Memory", "Name:", "Memory 1"});
    QTimer::singleShot(0, &dialog, [&dialog] {
      QTest::keyClicks(dialog.Text(), QStringLiteral("Shed"));
      dialog.findChild<QPushButton*>(QStringLiteral("Command1"))->click();
    });
    QCOMPARE(dialog.Ask(), std::string("Shed"));
  }

  void cancelAnswersTheEmptyText() {
    brenko::ui::InputDialog dialog({"Named Memory", "Name:", "Memory 1"});
    QTimer::singleShot(0, &dialog, [&dialog] {
      dialog.findChild<QPushButton*>(QStringLiteral("Command2"))->click();
    });
    QCOMPARE(dialog.Ask(), std::string());
  }

  void aboutShowsItsLabelsAndRunsSystemInfo() {
    int sysInfo = 0;
    brenko::ui::AboutDialog dialog(
        {"Brenko Calculator", "Version 1.0.0", "Maker\r\nStreet", "Notice"},
        [&sysInfo] { ++sysInfo; });
    QCOMPARE(dialog.objectName(), QStringLiteral("frmAbout"));
    QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("lblTitle"))->text(),
             QStringLiteral("Brenko Calculator"));
    QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("lblVersion"))->text(),
             QStringLiteral("Version 1.0.0"));
    QVERIFY(dialog.findChild<QLabel*>(QStringLiteral("lblDescription")));
    QVERIFY(dialog.findChild<QLabel*>(QStringLiteral("lblDisclaimer")));
    QVERIFY(dialog.findChild<QWidget*>(QStringLiteral("Line1")));
    QVERIFY(dialog.findChild<QLabel*>(QStringLiteral("picIcon")));
    auto* info = dialog.findChild<QPushButton*>(QStringLiteral("cmdSysInfo"));
    QCOMPARE(info->text(), QStringLiteral("&System Info..."));
    QTest::mouseClick(info, Qt::LeftButton);
    QCOMPARE(sysInfo, 1);
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdOK")),
                      Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
  }

  void helpWindowListsTheManualsChapters() {
    const QString manual = QStringLiteral(QT_TESTCASE_SOURCEDIR) +
                           QStringLiteral("/../docs/manual.html");
    brenko::ui::HelpWindow help;
    help.Open(QDir::cleanPath(manual));
    QCOMPARE(help.Source(), QDir::cleanPath(manual));
    auto* contents =
        help.findChild<QListWidget*>(QStringLiteral("lstContents"));
    QVERIFY(contents->count() > 3);
    QVERIFY(help.isVisible());
  }

  void helpWindowShowsTheCompiledManualWhereNoneIsBeside() {
    // Installed, the program's folder holds no manual: the one compiled into
    // the program is shown, whole, with every chapter in the contents.
    QFile source(QStringLiteral(QT_TESTCASE_SOURCEDIR) +
                 QStringLiteral("/../docs/manual.html"));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QByteArray page = source.readAll();
    brenko::ui::HelpWindow help;
    help.Open(QStringLiteral("/nowhere/manual.html"));
    QCOMPARE(help.Source(), QStringLiteral(":/docs/manual.html"));
    QFile compiled(help.Source());
    QVERIFY(compiled.open(QIODevice::ReadOnly));
    QCOMPARE(compiled.readAll(), page);
    auto* contents =
        help.findChild<QListWidget*>(QStringLiteral("lstContents"));
    QCOMPARE(contents->count(), static_cast<int>(page.count("<h2")));
    QCOMPARE(contents->item(1)->text(), QStringLiteral("Getting started"));
    auto* text = help.findChild<QTextBrowser*>(QStringLiteral("txtManual"));
    QVERIFY(text->toPlainText().contains(QStringLiteral("Memory files")));
    QVERIFY(help.isVisible());
  }

  void helpLooksOnlyBesideTheHelpFileAndInTheProgram() {
    QCOMPARE(brenko::ui::HelpWindow::Candidates(
                 QStringLiteral("/opt/brenko/manual.html")),
             (QStringList{QStringLiteral("/opt/brenko/manual.html"),
                          QStringLiteral(":/docs/manual.html")}));
    QCOMPARE(
        brenko::ui::HelpWindow::Candidates(QStringLiteral("/x/brenko.hlp")),
        QStringList{QStringLiteral(":/docs/manual.html")});
  }
};

QTEST_MAIN(CalculatorDialogsTest)
#include "calculator_dialogs_test.moc"
