#pragma once
// Endings that are not Exit: SIGTERM, SIGINT and SIGHUP (a kill, Ctrl+C in
// the terminal, the terminal closing) and the end of the desktop session.
// Each runs the callback from the event loop, where the shutdown may do
// what it likes; the callback itself must be safe to run more than once.

#include <QObject>
#include <functional>

class QSocketNotifier;

namespace brenko::ui {

class EndingSignals : public QObject {
  Q_OBJECT

 public:
  explicit EndingSignals(std::function<void()> onEnding,
                         QObject* parent = nullptr);
  ~EndingSignals() override;
  EndingSignals(const EndingSignals&) = delete;
  EndingSignals& operator=(const EndingSignals&) = delete;

 private:
  void Arrived();

  std::function<void()> onEnding_;
  QSocketNotifier* notifier_ = nullptr;
  int readEnd_ = -1;
};

}  // namespace brenko::ui
