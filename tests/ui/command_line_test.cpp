// What happens before and around the windows: the command line, the check
// for a display, the program's icon, and a memory file named at start.
#include "ui/command_line.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdlib>
#include <cstring>

#include "core/commands/memory_file_handlers.h"
#include "core/memory/memory_file.h"
#include "program.h"
#include "ui/app_icon.h"
#include "ui/main_frame_window.h"
#include "ui/no_display.h"
#include "ui/paths.h"

using namespace brenko;
using namespace brenko::ui;

namespace {

CommandLine Parse(QStringList arguments) {
  arguments.prepend(QStringLiteral("/usr/bin/brenko"));
  return ParseCommandLine(arguments);
}

// A Unix socket that listens for as long as it lives.
class ListeningSocket {
 public:
  explicit ListeningSocket(const QString& path) {
    fd_ = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = path.toLocal8Bit();
    std::memcpy(address.sun_path, name.constData(),
                static_cast<std::size_t>(name.size()));
    listening_ = bind(fd_, reinterpret_cast<const sockaddr*>(&address),
                      sizeof address) == 0 &&
                 listen(fd_, 4) == 0;
  }
  ~ListeningSocket() { close(fd_); }
  bool listening() const { return listening_; }

 private:
  int fd_ = -1;
  bool listening_ = false;
};

constexpr char kKitchen[] =
    " 300 \r\n 450 \r\n 7000 \r\n 4200 \r\n 2\r\n 2400\r\n"
    "Kitchen floor\r\n 12'- 7 3/16\" \r\nHall\r\n 3'- 0\" sq. \r\n";

}  // namespace

class CommandLineTest : public QObject {
  Q_OBJECT

 private slots:
  void nothingGivenRunsWithNoFile() {
    const CommandLine command = Parse({});
    QCOMPARE(command.action, CommandLine::Action::kRun);
    QVERIFY(command.memoryFile.isEmpty());
  }

  void aFileIsOpenedByItsAbsolutePath() {
    const CommandLine command = Parse({QStringLiteral("jobs/kitchen.mem")});
    QCOMPARE(command.action, CommandLine::Action::kRun);
    QCOMPARE(command.memoryFile, QDir::current().absoluteFilePath(
                                     QStringLiteral("jobs/kitchen.mem")));
    QCOMPARE(Parse({QStringLiteral("/home/ann/deck.mem")}).memoryFile,
             QStringLiteral("/home/ann/deck.mem"));
  }

  void aFileUrlIsTakenAsTheFile() {
    QCOMPARE(
        Parse({QStringLiteral("file:///home/ann/my%20deck.mem")}).memoryFile,
        QStringLiteral("/home/ann/my deck.mem"));
  }

  void aFileAfterTwoDashesMayStartWithADash() {
    const CommandLine command =
        Parse({QStringLiteral("--"), QStringLiteral("/tmp/-odd.mem")});
    QCOMPARE(command.action, CommandLine::Action::kRun);
    QCOMPARE(command.memoryFile, QStringLiteral("/tmp/-odd.mem"));
  }

  void helpAndVersionInShortAndLongForm() {
    QCOMPARE(Parse({QStringLiteral("--help")}).action,
             CommandLine::Action::kHelp);
    QCOMPARE(Parse({QStringLiteral("-h")}).action, CommandLine::Action::kHelp);
    QCOMPARE(Parse({QStringLiteral("--version")}).action,
             CommandLine::Action::kVersion);
    QCOMPARE(Parse({QStringLiteral("-v")}).action,
             CommandLine::Action::kVersion);
    // Help wins over a file named with it.
    QCOMPARE(Parse({QStringLiteral("a.mem"), QStringLiteral("--help")}).action,
             CommandLine::Action::kHelp);
  }

  void unknownOptionIsAUsageError() {
    const CommandLine command = Parse({QStringLiteral("--bogus")});
    QCOMPARE(command.action, CommandLine::Action::kUsageError);
    QCOMPARE(command.error, QStringLiteral("Unknown option 'bogus'."));
    // Qt's own options are not taken either: the command line is the
    // program's.
    QCOMPARE(Parse({QStringLiteral("-platform"), QStringLiteral("xcb")}).action,
             CommandLine::Action::kUsageError);
  }

  void twoFilesAreAUsageError() {
    const CommandLine command =
        Parse({QStringLiteral("a.mem"), QStringLiteral("b.mem")});
    QCOMPARE(command.action, CommandLine::Action::kUsageError);
    QCOMPARE(command.error,
             QStringLiteral("Only one memory file can be opened."));
  }

  void versionIsTheProgramsOne() {
    QCOMPARE(VersionText(), QStringLiteral("brenko 1.0.0\n"));
  }

  void usageNamesTheFileAndBothOptions() {
    const QString usage = UsageText();
    QVERIFY(usage.startsWith(QStringLiteral("Usage: brenko [FILE.mem]\n")));
    QVERIFY(usage.contains(QStringLiteral("  -h, --help ")));
    QVERIFY(usage.contains(QStringLiteral("  -v, --version ")));
    QVERIFY(usage.endsWith(QLatin1Char('\n')));
  }

  void noDisplayLineIsExact() {
    QCOMPARE(QString::fromLatin1(kNoDisplayMessage),
             QStringLiteral("brenko: cannot open a display; start it from a "
                            "desktop session, or under xvfb-run for a test\n"));
  }

  void localX11DisplaysHaveASocket() {
    QCOMPARE(X11SocketPath(QStringLiteral(":0")),
             QStringLiteral("/tmp/.X11-unix/X0"));
    QCOMPARE(X11SocketPath(QStringLiteral(":12.1")),
             QStringLiteral("/tmp/.X11-unix/X12"));
    QCOMPARE(X11SocketPath(QStringLiteral("unix:3")),
             QStringLiteral("/tmp/.X11-unix/X3"));
    QCOMPARE(X11SocketPath(QStringLiteral("unix:3.0")),
             QStringLiteral("/tmp/.X11-unix/X3"));
    QVERIFY(X11SocketPath(QStringLiteral("localhost:10.0")).isEmpty());
    QVERIFY(X11SocketPath(QStringLiteral("nonsense")).isEmpty());
    // Not the form of a display: no number, a screen with no number, a
    // DECnet double colon, letters, a screen twice.
    for (const char* odd :
         {":", ":.0", ":0.", "::0", ":1a", "x:0", ":0.1.2", "UNIX:0", ""}) {
      QVERIFY2(X11SocketPath(QString::fromLatin1(odd)).isEmpty(), odd);
    }
  }

  void waylandSocketIsInTheRuntimeFolder() {
    QCOMPARE(WaylandSocketPath(QStringLiteral("wayland-0"),
                               QStringLiteral("/run/user/1000")),
             QStringLiteral("/run/user/1000/wayland-0"));
    QCOMPARE(WaylandSocketPath(QStringLiteral("/tmp/w"), QString()),
             QStringLiteral("/tmp/w"));
    QVERIFY(
        WaylandSocketPath(QStringLiteral("wayland-0"), QString()).isEmpty());
    QVERIFY(WaylandSocketPath(QString(), QStringLiteral("/run")).isEmpty());
  }

  void aDisplayCountsOnlyWhenItsSocketListens() {
    QTemporaryDir runtime;
    QVERIFY(runtime.isValid());
    const QString path = runtime.filePath(QStringLiteral("wayland-7"));
    DisplayEnvironment env;
    env.runtimeDir = runtime.path();
    env.waylandDisplay = QStringLiteral("wayland-7");
    QVERIFY(!SocketAccepts(path));
    QVERIFY(!DisplayReachable(env));
    {
      ListeningSocket server(path);
      QVERIFY(server.listening());
      QVERIFY(SocketAccepts(path));
      QVERIFY(DisplayReachable(env));
    }
    QFile::remove(path);
    QVERIFY(!DisplayReachable(env));
  }

  void nothingNamedIsNoDisplay() {
    QVERIFY(!DisplayReachable(DisplayEnvironment{}));
  }

  void anExplicitPlatformOrARemoteDisplayIsLeftToQt() {
    DisplayEnvironment offscreen;
    offscreen.platform = QStringLiteral("offscreen");
    QVERIFY(DisplayReachable(offscreen));
    DisplayEnvironment remote;
    remote.display = QStringLiteral("far.example:0");
    QVERIFY(DisplayReachable(remote));
  }

  void aLocalX11DisplayWithNoServerIsNoDisplay() {
    // Display numbers this high are never served on a test machine.
    DisplayEnvironment env;
    env.display = QStringLiteral(":64999");
    QVERIFY(!DisplayReachable(env));
  }

  void iconComesFromTheInstalledTheme() {
    QTemporaryDir themes;
    QVERIFY(themes.isValid());
    const QString dir = themes.filePath(QStringLiteral("hicolor/32x32/apps"));
    QVERIFY(QDir().mkpath(dir));
    QFile index(themes.filePath(QStringLiteral("hicolor/index.theme")));
    QVERIFY(index.open(QIODevice::WriteOnly));
    index.write(
        "[Icon Theme]\nName=Hicolor\nDirectories=32x32/apps\n\n"
        "[32x32/apps]\nSize=32\nType=Fixed\n");
    index.close();
    QPixmap red(32, 32);
    red.fill(Qt::red);
    QVERIFY(red.save(dir + QLatin1Char('/') + QLatin1String(kApplicationId) +
                     QStringLiteral(".png")));

    const QStringList oldPaths = QIcon::themeSearchPaths();
    const QString oldTheme = QIcon::themeName();
    QIcon::setThemeSearchPaths({themes.path()});
    QIcon::setThemeName(QStringLiteral("hicolor"));
    const QIcon icon = AppIcon();
    QCOMPARE(icon.name(), QLatin1String(kApplicationId));
    QCOMPARE(icon.pixmap(32, 32).toImage().pixelColor(16, 16), QColor(Qt::red));
    // Once the windows are up the theme's picture replaces the compiled one.
    const QIcon before = QApplication::windowIcon();
    QVERIFY(AdoptThemeIcon());
    QCOMPARE(QApplication::windowIcon().name(), QLatin1String(kApplicationId));
    QCOMPARE(
        QApplication::windowIcon().pixmap(32, 32).toImage().pixelColor(16, 16),
        QColor(Qt::red));
    QApplication::setWindowIcon(before);
    QIcon::setThemeSearchPaths(oldPaths);
    QIcon::setThemeName(oldTheme);
  }

  void iconFallsBackToTheCompiledDrawing() {
    const QStringList oldPaths = QIcon::themeSearchPaths();
    QTemporaryDir empty;
    QIcon::setThemeSearchPaths({empty.path()});
    const QIcon icon = AppIcon();
    QVERIFY(icon.name().isEmpty());
    QVERIFY(QFile::exists(AppIconResource()));
    // The drawing's body is teal, the program's own colour.
    const QImage image = icon.pixmap(128, 128).toImage();
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixelColor(64, 100).rgb(), QColor(0, 128, 128).rgb());
    // With no theme picture the windows keep the compiled-in icon.
    QApplication::setWindowIcon(CompiledAppIcon());
    QVERIFY(!AdoptThemeIcon());
    QVERIFY(QApplication::windowIcon().name().isEmpty());
    QIcon::setThemeSearchPaths(oldPaths);
  }

  void smallSizesOfTheCompiledIconAreItsBitmaps() {
    const QIcon icon = CompiledAppIcon();
    QCOMPARE(icon.availableSizes(),
             (QList<QSize>{{16, 16}, {32, 32}, {48, 48}, {64, 64}}));
    for (int size : {16, 32, 48, 64}) {
      const QImage bitmap(QStringLiteral(":/icons/%1/%2.png")
                              .arg(size)
                              .arg(QLatin1String(kApplicationId)));
      QCOMPARE(bitmap.size(), QSize(size, size));
      QCOMPARE(icon.pixmap(size, size)
                   .toImage()
                   .convertToFormat(QImage::Format_ARGB32_Premultiplied),
               bitmap.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }
  }

  void bitmapsAreRenderedFromTheCurrentDrawing() {
    // A changed drawing needs scripts/render-icons: the bitmaps must show
    // the same picture as the drawing rendered at their size.
    const QIcon drawing(AppIconResource());
    for (int size : {16, 32, 48, 64}) {
      const QImage bitmap =
          QImage(QStringLiteral(":/icons/%1/%2.png")
                     .arg(size)
                     .arg(QLatin1String(kApplicationId)))
              .convertToFormat(QImage::Format_ARGB32_Premultiplied);
      const QImage drawn =
          drawing.pixmap(size, size)
              .toImage()
              .convertToFormat(QImage::Format_ARGB32_Premultiplied);
      QCOMPARE(drawn.size(), bitmap.size());
      long difference = 0;
      for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
          const QRgb a = bitmap.pixel(x, y);
          const QRgb b = drawn.pixel(x, y);
          difference +=
              std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
              std::abs(qBlue(a) - qBlue(b)) + std::abs(qAlpha(a) - qAlpha(b));
        }
      }
      // Two renderers differ in anti-aliasing only: about 2 to 17 levels per
      // pixel (the smallest size has the most edge); another colour for the
      // body alone would add over a hundred.
      const double perPixel = double(difference) / (size * size);
      QVERIFY2(perPixel < 24.0, qPrintable(QString::number(perPixel)));
    }
  }

  void namedFileShowsItsMemoriesInTheFrame() {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("kitchen.mem"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(kKitchen);
    file.close();

    testing::Program rig;
    const std::filesystem::path name = ToPath(path);
    rig.windows.Run([&name](App& a) { OpenMemoryFilePath(a, name); });
    MainFrameWindow* frame = rig.windows.MainFrame();
    QVERIFY(frame->isVisible());
    QCOMPARE(frame->windowTitle(), QStringLiteral("kitchen"));
    const QList<QMdiSubWindow*> subs = frame->Area()->subWindowList();
    QCOMPARE(subs.size(), 2);
    QCOMPARE(subs[0]->windowTitle(), QStringLiteral("Kitchen floor"));
    QCOMPARE(subs[0]->findChild<QLabel*>(QStringLiteral("Label1"))->text(),
             QStringLiteral(" 12'- 7 3/16\" "));
    QCOMPARE(subs[1]->windowTitle(), QStringLiteral("Hall"));
    QCOMPARE(rig.app.memory.filePath, name);
  }
};

QTEST_MAIN(CommandLineTest)
#include "command_line_test.moc"
