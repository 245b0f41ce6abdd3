#include "ui/no_display.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QStringView>
#include <QtGlobal>
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "ui/command_line.h"

namespace brenko::ui {

namespace {

// A failed platform start is Qt's only fatal message while the application
// object is being made; everything else is printed as Qt would.
void WatchStartMessages(QtMsgType type, const QMessageLogContext& context,
                        const QString& message) {
  if (type == QtFatalMsg) {
    std::fputs(kNoDisplayMessage, stderr);
    std::fflush(stderr);
    // Nothing has been made that needs saving, and the half-made
    // application object must not be torn down.
    std::_Exit(kExitNoDisplay);
  }
  const QByteArray line =
      qFormatLogMessage(type, context, message).toLocal8Bit();
  std::fprintf(stderr, "%s\n", line.constData());
  std::fflush(stderr);
}

// Connects to the Unix socket at `name` (`size` bytes of it, for an
// abstract name that starts with a zero byte).
bool Connects(const char* name, std::size_t size) {
  sockaddr_un address{};
  if (size == 0 || size > sizeof address.sun_path) return false;
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, name, size);
  const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (fd < 0) return false;
  const auto length =
      static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + size);
  const bool connected =
      connect(fd, reinterpret_cast<const sockaddr*>(&address), length) == 0;
  close(fd);
  return connected;
}

}  // namespace

DisplayEnvironment ReadDisplayEnvironment() {
  return {qEnvironmentVariable("QT_QPA_PLATFORM"),
          qEnvironmentVariable("DISPLAY"),
          qEnvironmentVariable("WAYLAND_DISPLAY"),
          qEnvironmentVariable("XDG_RUNTIME_DIR")};
}

QString X11SocketPath(const QString& display) {
  // [host]:number[.screen]; only the hosts "" and "unix" are local. Read
  // by hand: a pattern would be compiled at every start for this one line.
  const auto digits = [](QStringView text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) {
             return c >= QLatin1Char('0') && c <= QLatin1Char('9');
           });
  };
  const qsizetype colon = display.indexOf(QLatin1Char(':'));
  if (colon < 0) return QString();
  const QStringView host = QStringView(display).left(colon);
  if (!host.isEmpty() && host != u"unix") return QString();
  const QStringView place = QStringView(display).mid(colon + 1);
  const qsizetype dot = place.indexOf(QLatin1Char('.'));
  const QStringView number = dot < 0 ? place : place.left(dot);
  if (!digits(number) || (dot >= 0 && !digits(place.mid(dot + 1)))) {
    return QString();
  }
  return QStringLiteral("/tmp/.X11-unix/X") + number.toString();
}

QString WaylandSocketPath(const QString& waylandDisplay,
                          const QString& runtimeDir) {
  if (waylandDisplay.isEmpty()) return QString();
  if (waylandDisplay.startsWith(QLatin1Char('/'))) return waylandDisplay;
  if (runtimeDir.isEmpty()) return QString();
  return runtimeDir + QLatin1Char('/') + waylandDisplay;
}

bool SocketAccepts(const QString& path) {
  const QByteArray name = path.toLocal8Bit();
  return !name.isEmpty() &&
         Connects(name.constData(), static_cast<std::size_t>(name.size()));
}

bool DisplayReachable(const DisplayEnvironment& environment) {
  if (!environment.platform.isEmpty()) return true;
  if (SocketAccepts(WaylandSocketPath(environment.waylandDisplay,
                                      environment.runtimeDir))) {
    return true;
  }
  if (environment.display.isEmpty()) return false;
  const QString socket = X11SocketPath(environment.display);
  if (socket.isEmpty()) return true;
  // X servers on Linux listen on an abstract name as well as the file; a
  // sandbox may show only one of them.
  const QByteArray abstract = QByteArray(1, '\0') + socket.toLocal8Bit();
  return Connects(abstract.constData(),
                  static_cast<std::size_t>(abstract.size())) ||
         SocketAccepts(socket);
}

void ExitQuietlyIfNoDisplay() { qInstallMessageHandler(WatchStartMessages); }

void EndNoDisplayWatch() { qInstallMessageHandler(nullptr); }

}  // namespace brenko::ui
