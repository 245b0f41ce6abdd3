#pragma once
// Copy and Paste with the system clipboard: what goes on it comes from the
// core's copy texts, and a pasted text goes to the readout's paste handler,
// which decides whether it is a measurement.

#include <QKeySequence>
#include <QList>
#include <string>

class QAbstractItemView;
class QAction;
class QWidget;

namespace brenko::ui {

class AppWindows;

// The keys of Copy and Paste, the platform's and the older Insert ones.
QList<QKeySequence> CopyKeys();
QList<QKeySequence> PasteKeys();

void PutOnClipboard(const std::string& text);
std::string ClipboardText();

// Copy ("CopyReadout") and Paste ("PasteReadout") on the calculator window.
void AddCalculatorClipboard(AppWindows& windows, QWidget* calculator);
// Copy ("CopyTape") on the tape window: the grid's selected lines, or the
// whole shown tape.
void AddTapeClipboard(AppWindows& windows, QWidget* tapeWindow,
                      QAbstractItemView* grid);

// A window action, named, with these keys, active while `window` (or a
// widget in it) has the keyboard.
QAction* AddKeyAction(QWidget* window, const char* name,
                      const QList<QKeySequence>& keys,
                      Qt::ShortcutContext context = Qt::WindowShortcut);

}  // namespace brenko::ui
