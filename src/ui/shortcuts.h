#pragma once
// The keyboard's way to what the mouse reaches: the menu commands' keys and
// access keys, the context menus by Shift+F10 and the Menu key, and moving
// between the memory windows. Every key runs what the menu entry, click or
// drop it stands for runs; none is also typed into the readout.

#include <QKeySequence>
#include <QList>
#include <QString>
#include <string>

#include "core/commands/menus.h"

class QMainWindow;
class QMdiArea;
class QWidget;

namespace brenko::ui {

class AppWindows;

// The keys of a menu entry (nothing for most).
QList<QKeySequence> MenuEntryKeys(MenuId entry);
// The caption a menu shows for an entry: the model's caption, with an
// access key where the model's has none and the keyboard needs one.
QString MenuEntryCaption(MenuId entry, const std::string& caption);

// The keys that open a context menu from the keyboard.
QList<QKeySequence> ContextMenuKeys();

// Shift+F10 and the Menu key on the calculator: its context menu.
void AddCalculatorContextKeys(AppWindows& windows, QWidget* calculator);

// The main frame's keys for its memory windows: Ctrl+Tab and Ctrl+Shift+Tab
// move between them, Copy copies the active one's value, Shift+F10 and the
// Menu key open its context menu; the active one's value is marked.
void AddMemoryKeys(AppWindows& windows, QMainWindow* frame, QMdiArea* area);

}  // namespace brenko::ui
