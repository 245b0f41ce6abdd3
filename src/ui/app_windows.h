#pragma once
// The one owner of every top-level window of the program. Windows are made
// the first time their model asks to be shown, so a start-up that shows only
// the calculator and its tape pays for nothing else. After every core
// handler the windows re-read their models (Refresh); the Qt layer itself
// never decides anything.

#include <QObject>
#include <QPointer>
#include <exception>
#include <string>
#include <utility>

#include "core/base/platform.h"
#include "core/commands/app.h"

class QMenu;
class QWidget;

namespace brenko::ui {

class CalculatorWindow;
class ConverterWindow;
class MainFrameWindow;
class TapeWindow;
class QtPlatform;

class AppWindows : public QObject {
  Q_OBJECT

 public:
  AppWindows(App& app, QtPlatform& platform);
  ~AppWindows() override;
  AppWindows(const AppWindows&) = delete;
  AppWindows& operator=(const AppWindows&) = delete;

  // The models, to read. They change only through Run.
  const App& app() const { return app_; }
  QtPlatform& platform() { return platform_; }

  // Runs one core handler, then shows what it changed. A handler that throws
  // despite the core's own guards is stopped here: nothing may unwind into
  // the event loop.
  template <typename Handler>
  void Run(Handler&& handler) {
    try {
      std::forward<Handler>(handler)(app_);
    } catch (const std::exception&) {
      // Skipped, as every failing step of the program is.
    }
    Refresh();
  }

  // Re-reads every window's model: creates a window whose model now wants it
  // shown, updates the shown ones, hides the ones no longer wanted, and ends
  // the program once the core asked for it.
  void Refresh();

  // The windows, made on first use.
  CalculatorWindow* Calculator();
  TapeWindow* Tape();
  MainFrameWindow* MainFrame();
  ConverterWindow* Converter();
  // The window of a model window if it has been made, else nullptr.
  QWidget* Existing(WindowRef ref) const;
  // A context menu by its name ("mnuPopup1", "mnuPopup2"); nullptr if none.
  QMenu* PopupMenu(const std::string& name);

  // Called after a window is made: applies the stay-on-top state the core
  // asked for before the window existed.
  void WindowMade(WindowRef ref, QWidget* window);

  // Runs the close of the calculator (QueryUnload, Unload), writes the
  // settings and leaves the event loop. Safe to call more than once.
  void Shutdown();
  bool ShuttingDown() const { return shutdown_; }

 signals:
  // Emitted after every Refresh; tests and companions may listen.
  void refreshed();

 private:
  App& app_;
  QtPlatform& platform_;
  QPointer<CalculatorWindow> calculator_;
  QPointer<TapeWindow> tape_;
  QPointer<MainFrameWindow> mainFrame_;
  QPointer<ConverterWindow> converter_;
  bool refreshing_ = false;
  bool refreshAgain_ = false;
  bool shutdown_ = false;
};

}  // namespace brenko::ui
