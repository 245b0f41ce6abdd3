#include "ui/keyboard_filter.h"

#include <QKeyEvent>
#include <QWidget>

#include "core/commands/keypad_handlers.h"
#include "ui/app_windows.h"

namespace brenko::ui {

KeyboardFilter::KeyboardFilter(AppWindows& windows, QWidget* window)
    : QObject(window), windows_(windows), window_(window) {}

int KeyboardFilter::CharacterCode(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Backspace:
      return 8;
    default:
      break;
  }
  const QString text = event.text();
  if (text.isEmpty()) return -1;
  const char16_t code = text.front().unicode();
  // Control characters other than the three above (Ctrl+letter) and
  // characters beyond Latin-1 type nothing the calculator reads.
  if (code < 32 || code > 255) return -1;
  return code;
}

int KeyboardFilter::KeyCode(const QKeyEvent& event) {
  const int key = event.key();
  // Qt's codes for the space bar, digits and letters are the same numbers
  // the calculator's key codes use.
  if (key >= 0 && key < 256) return key;
  return 0;
}

bool KeyboardFilter::TypesIntoCalculator(const AppWindows& windows,
                                         const QWidget* window) {
  if (window == nullptr) return false;
  for (WindowKind kind : {WindowKind::kCalculator, WindowKind::kTape,
                          WindowKind::kConverter, WindowKind::kMainFrame}) {
    if (windows.Existing({kind, 0}) == window) return true;
  }
  return false;
}

bool KeyboardFilter::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::KeyPress && type != QEvent::KeyRelease &&
      type != QEvent::ShortcutOverride) {
    return false;
  }
  auto* widget = qobject_cast<QWidget*>(watched);
  if (!widget) return false;
  const QWidget* typedIn = widget->window();
  if (typedIn != window_ && !TypesIntoCalculator(windows_, typedIn)) {
    return false;
  }
  auto* key = static_cast<QKeyEvent*>(event);
  // Alt, Ctrl and other shortcuts (the menu bar's access keys) stay Qt's.
  if (key->modifiers() &
      (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) {
    return false;
  }
  if (type == QEvent::ShortcutOverride) {
    // Every shortcut of the program holds Ctrl, Alt or a key that types no
    // character (F1, Shift+F10, the menu key, Shift+Insert): a key that
    // types into the calculator is claimed before Qt looks through all of
    // them for it, which is a good part of a key's time.
    if (CharacterCode(*key) < 0) return false;
    key->accept();
    return true;
  }
  if (type == QEvent::KeyPress) {
    const int code = CharacterCode(*key);
    if (code < 0) return false;
    windows_.Run([code](App& app) { Form_KeyPress(app, code); });
    return true;
  }
  if (key->isAutoRepeat()) return true;
  const int code = KeyCode(*key);
  int keyCode = code;
  windows_.Run([&keyCode](App& app) { Form_KeyUp(app, keyCode); });
  // A swallowed key-up (the space bar) goes no further.
  return keyCode == 0 && code != 0;
}

}  // namespace brenko::ui
