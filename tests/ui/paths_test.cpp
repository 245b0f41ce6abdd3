// File names between Qt and the core, and the places the desktop gives the
// program: memory files whose names have letters beyond ASCII go through the
// real file dialogs and come back, and the settings file stays where the
// program has always kept it.
#include "ui/paths.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <filesystem>
#include <utility>

#include "core/commands/memory_file_handlers.h"
#include "core/commands/menus.h"
#include "program.h"
#include "ui/main_frame_window.h"

using namespace brenko;
using namespace brenko::ui;

namespace {

const QString kKueche = QStringLiteral(u"K\u00FCche.mem");
const QString kYard = QStringLiteral(u"\u042F\u0440\u0434.mem");

// Answers the next file dialog with `file`, as a user typing its name would.
// The dialog may come up a moment later, so the answer looks for it again
// and again, for at most kTries tries; if it never comes, whatever modal
// window is up instead is closed so that the test goes on, and Problem()
// says what went wrong.
class FileDialogAnswer {
 public:
  explicit FileDialogAnswer(QString file) : file_(std::move(file)) {
    timer_.setInterval(kEveryMs);
    QObject::connect(&timer_, &QTimer::timeout, [this] { Try(); });
    timer_.start();
  }

  // Empty once a file dialog was answered.
  QString Problem() const {
    if (answered_) return {};
    if (!problem_.isEmpty()) return problem_;
    return QStringLiteral("no file dialog came up");
  }

 private:
  static constexpr int kEveryMs = 20;
  static constexpr int kTries = 250;  // 5 s

  void Try() {
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
      timer_.stop();
      answered_ = true;
      // selectFile leaves alone a name field that has the focus (the user
      // might be typing there), as it has once the dialog is up.
      if (QWidget* typing = dialog->focusWidget()) typing->clearFocus();
      dialog->selectFile(file_);
      // QFileDialog's own accept (which takes the typed name) runs through
      // QDialog's public one.
      static_cast<QDialog*>(dialog)->accept();
      return;
    }
    if (++tries_ < kTries) return;
    timer_.stop();
    problem_ = QStringLiteral("no file dialog came up within %1 ms")
                   .arg(kEveryMs * kTries);
    if (modal == nullptr) return;
    problem_ += QStringLiteral("; closed the %1 shown instead")
                    .arg(QString::fromLatin1(modal->metaObject()->className()));
    if (auto* other = qobject_cast<QDialog*>(modal)) {
      other->reject();
    } else {
      modal->close();
    }
  }

  QString file_;
  QTimer timer_;
  int tries_ = 0;
  bool answered_ = false;
  QString problem_;
};

QByteArray ReadAll(const QString& file) {
  QFile in(file);
  if (!in.open(QIODevice::ReadOnly)) return {};
  return in.readAll();
}

}  // namespace

class PathsTest : public QObject {
  Q_OBJECT

 private slots:
  void namesCrossLetterForLetter() {
    for (const QString& name : {kKueche, kYard}) {
      const std::filesystem::path path = ToPath(name);
      QCOMPARE(QString::fromStdU16String(path.u16string()), name);
      QCOMPARE(FromPath(path), name);
    }
    QCOMPARE(FromPath(std::filesystem::path(u"\u042F\u0440\u0434.mem")), kYard);
  }

  void memoryFilesWithSuchNamesSaveAndOpen() {
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    for (const QString& name : {kKueche, kYard}) {
      const QString file = QDir(folder.path()).filePath(name);
      {
        testing::Program rig;
        rig.NewMemories(1);
        rig.windows.Run([](App& a) {
          a.memory.Find(1)->label1.caption = " 12'- 7 3/16\" ";
        });
        const FileDialogAnswer answer(file);
        rig.windows.Run([](App& a) { RunMenuCommand(a, MenuId::mnuSaveAs); });
        QVERIFY2(answer.Problem().isEmpty(), qPrintable(answer.Problem()));
        QCOMPARE(FromPath(rig.app.memory.filePath), file);
      }
      // Qt finds the file by the same name, holding what was saved.
      const QByteArray saved = ReadAll(file);
      QVERIFY2(saved.endsWith("Memory 1\r\n 12'- 7 3/16\" \r\n"),
               saved.constData());

      testing::Program rig;
      const FileDialogAnswer answer(file);
      rig.windows.Run([](App& a) { RunMenuCommand(a, MenuId::mnuOpen); });
      QVERIFY2(answer.Problem().isEmpty(), qPrintable(answer.Problem()));
      QCOMPARE(FromPath(rig.app.memory.filePath), file);
      MainFrameWindow* frame = rig.windows.MainFrame();
      QCOMPARE(frame->windowTitle(), name.section(QLatin1Char('.'), 0, 0));
      const QList<QMdiSubWindow*> subs = frame->Area()->subWindowList();
      QCOMPARE(subs.size(), 1);
      QCOMPARE(subs[0]->findChild<QLabel*>(QStringLiteral("Label1"))->text(),
               QStringLiteral(" 12'- 7 3/16\" "));
    }
    QStringList names = QDir(folder.path()).entryList(QDir::Files);
    names.sort();
    QCOMPARE(names, (QStringList{kKueche, kYard}));
  }

  void aNamedFileOpensFromTheCommandLine() {
    QTemporaryDir folder;
    const QString file = QDir(folder.path()).filePath(kYard);
    QFile out(file);
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(
        " 300 \r\n 450 \r\n 7000 \r\n 4200 \r\n 1\r\n 2400\r\n"
        "Deck\r\n 3'- 0\" sq. \r\n");
    out.close();
    testing::Program rig;
    const std::filesystem::path path = ToPath(file);
    bool opened = false;
    rig.windows.Run([&](App& a) { opened = OpenMemoryFilePath(a, path); });
    QVERIFY(opened);
    QVERIFY(rig.platform.messages.empty());
    QCOMPARE(rig.windows.MainFrame()->windowTitle(),
             QStringLiteral(u"\u042F\u0440\u0434"));
  }

  // Settings stay in ~/.config/Brenko (or $XDG_CONFIG_HOME/Brenko), where
  // users of earlier versions have theirs; the desktop's conventions decide,
  // not a variable the program reads itself.
  void theSettingsFileIsWhereItAlwaysWas() {
    const QByteArray oldConfig = qgetenv("XDG_CONFIG_HOME");
    const QByteArray oldHome = qgetenv("HOME");
    // Put back even when a comparison below fails and returns early.
    const auto restore = qScopeGuard([&] {
      if (oldHome.isNull()) {
        qunsetenv("HOME");
      } else {
        qputenv("HOME", oldHome);
      }
      if (oldConfig.isNull()) {
        qunsetenv("XDG_CONFIG_HOME");
      } else {
        qputenv("XDG_CONFIG_HOME", oldConfig);
      }
    });
    QTemporaryDir place;
    const QString config = QDir(place.path()).filePath(QStringLiteral("cfg"));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config));
    QCOMPARE(FromPath(SettingsFile()),
             config + QStringLiteral("/Brenko/Brenko.ini"));
    qunsetenv("XDG_CONFIG_HOME");
    qputenv("HOME", QFile::encodeName(place.path()));
    QCOMPARE(FromPath(SettingsFile()),
             place.path() + QStringLiteral("/.config/Brenko/Brenko.ini"));
  }

  void theProgramFolderIsTheExecutablesFolder() {
    QCOMPARE(FromPath(ProgramFolder()), QCoreApplication::applicationDirPath());
  }
};

QTEST_MAIN(PathsTest)
#include "paths_test.moc"
