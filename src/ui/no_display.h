#pragma once
// Starting without a display. Qt's own answer is to abort with advice to
// reinstall the program; the calculator says in one line what is missing
// and ends with status 1 instead.

#include <QString>

namespace brenko::ui {

inline constexpr char kNoDisplayMessage[] =
    "brenko: cannot open a display; start it from a desktop session, or "
    "under xvfb-run for a test\n";

// What the environment says about window systems.
struct DisplayEnvironment {
  QString platform;        // QT_QPA_PLATFORM: chosen explicitly ("offscreen")
  QString display;         // DISPLAY: an X11 display
  QString waylandDisplay;  // WAYLAND_DISPLAY: a Wayland socket's name
  QString runtimeDir;      // XDG_RUNTIME_DIR: where that socket lives
};
DisplayEnvironment ReadDisplayEnvironment();

// Whether a window system looks reachable: a platform chosen explicitly is
// left to Qt; otherwise an X11 display on this machine or a Wayland display
// must have a socket that takes a connection. A display on another machine
// is taken on trust.
bool DisplayReachable(const DisplayEnvironment& environment);

// The socket of a local X11 display (":0", "unix:1.0"); empty for a display
// on another machine or a name that is no display.
QString X11SocketPath(const QString& display);
// The Wayland socket WAYLAND_DISPLAY names: an absolute path, or a name in
// the runtime directory.
QString WaylandSocketPath(const QString& waylandDisplay,
                          const QString& runtimeDir);
// Whether a Unix socket at `path` accepts a connection. The connection is
// closed at once.
bool SocketAccepts(const QString& path);

// While the application object is being made, a platform that cannot be
// started after all ends the program with kNoDisplayMessage and status 1
// rather than an abort. Qt's warnings before that still show, so the cause
// can be found.
void ExitQuietlyIfNoDisplay();
// Back to Qt's own message handling once the platform has started.
void EndNoDisplayWatch();

}  // namespace brenko::ui
