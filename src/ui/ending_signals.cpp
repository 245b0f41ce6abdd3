#include "ui/ending_signals.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace brenko::ui {

#ifdef Q_OS_UNIX
namespace {

// A signal handler can reach nothing but what is static: the write end of
// the pipe that carries the signal into the event loop. One per process,
// as the signals themselves are.
volatile sig_atomic_t writeEnd = -1;

void OnSignal(int) {
  const int saved = errno;
  const char byte = 1;
  if (writeEnd >= 0) {
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
  }
  errno = saved;
}

constexpr int kEndingSignals[] = {SIGTERM, SIGINT, SIGHUP};

}  // namespace
#endif

EndingSignals::EndingSignals(std::function<void()> onEnding, QObject* parent)
    : QObject(parent), onEnding_(std::move(onEnding)) {
#ifdef Q_OS_UNIX
  int ends[2];
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) == 0) {
    ::fcntl(ends[1], F_SETFL, O_NONBLOCK);
    readEnd_ = ends[0];
    writeEnd = ends[1];
    notifier_ = new QSocketNotifier(readEnd_, QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this,
            &EndingSignals::Arrived);
    struct sigaction action {};
    action.sa_handler = OnSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signal : kEndingSignals) sigaction(signal, &action, nullptr);
  }
#endif
  if (auto* gui =
          qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
    // The session asks first and may end the process without a quit.
    connect(gui, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager&) { onEnding_(); });
  }
  if (QCoreApplication* core = QCoreApplication::instance()) {
    connect(core, &QCoreApplication::aboutToQuit, this,
            [this] { onEnding_(); });
  }
}

EndingSignals::~EndingSignals() {
#ifdef Q_OS_UNIX
  if (readEnd_ >= 0) {
    for (const int signal : kEndingSignals) ::signal(signal, SIG_DFL);
    const int write = writeEnd;
    writeEnd = -1;
    ::close(write);
    ::close(readEnd_);
  }
#endif
}

void EndingSignals::Arrived() {
#ifdef Q_OS_UNIX
  char bytes[16];
  while (::recv(readEnd_, bytes, sizeof bytes, MSG_DONTWAIT) > 0) {
  }
#endif
  onEnding_();
}

}  // namespace brenko::ui
