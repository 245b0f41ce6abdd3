#pragma once
// A memory window's context menu: its commands (Add Readout, Subtract
// Readout, Recall to Readout, Show in Converter, Clear) from the core's
// table, each running the drag or click it stands for.

#include <QPoint>

class QMenu;
class QWidget;

namespace brenko::ui {

class AppWindows;

// The menu of memory `number`, as a child of `parent` ("mnuMemoryPopup",
// its entries "mnuMemoryAdd" ...).
QMenu* MakeMemoryContextMenu(AppWindows& windows, int number, QWidget* parent);

// Shows that menu at `at` in `label`'s pixels and runs the chosen command.
void ShowMemoryContextMenu(AppWindows& windows, int number, QWidget* label,
                           QPoint at);

// A right click on the value label opens the menu.
void AttachMemoryContextMenu(AppWindows& windows, int number, QWidget* label);

}  // namespace brenko::ui
