#pragma once
// Every character typed while the calculator window is active reaches the
// core's Form_KeyPress exactly once, whichever of its widgets has the focus.
// The same holds in the windows that work with it (the tape, the converter,
// the main frame and its memories): after a drag and drop or a click there
// the user goes on typing numbers. Dialogs and the help window keep their
// keys. The filter sits on the application, takes the key press before any
// widget sees it (so Enter and the space bar never also "click" a key) and
// hands the character code on. Key releases go to Form_KeyUp. Such a key is
// never looked up among the shortcuts.

#include <QObject>

class QKeyEvent;
class QWidget;

namespace brenko::ui {

class AppWindows;

class KeyboardFilter : public QObject {
  Q_OBJECT

 public:
  KeyboardFilter(AppWindows& windows, QWidget* window);

  // Whether keys typed in this top-level window go to the calculator.
  static bool TypesIntoCalculator(const AppWindows& windows,
                                  const QWidget* window);

  // The character code a key press types: Enter 13, Escape 27, Backspace 8,
  // otherwise the typed character if it has a code below 256; -1 for a key
  // that types nothing the calculator could read.
  static int CharacterCode(const QKeyEvent& event);
  // The key code of a release as the calculator's key-up handler knows it.
  static int KeyCode(const QKeyEvent& event);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  AppWindows& windows_;
  QWidget* window_;
};

}  // namespace brenko::ui
