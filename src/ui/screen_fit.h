#pragma once
// Shows a window's model place where the user can reach it on the screens
// there are now (see core/shell/screen_fit.h). What the window is moved to is
// never written back: only the user's own moves reach the models.

#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <vector>

#include "core/shell/screen_fit.h"

class QWidget;

namespace brenko::ui {

class AppWindows;

// The frame the window manager puts around a top-level window: the real one
// once the window is shown, a likely one before.
QMargins WindowFrame(const QWidget& window);

// Every screen's available area (without panels and docks).
std::vector<PixelRect> AvailableAreas();

// The outer rectangle of a top-level window whose frame is placed at place
// and whose own size is size: the window manager's frame included, guessed
// before the window is first shown.
QRect OuterRect(const QWidget& window, QPoint place, QSize size);

// Where to move a top-level window (its frame's top left) whose model asks
// for place: place itself when the window is reachable there.
QPoint ShownPlace(const QWidget& window, QPoint place, QSize size);

// The same for the tape, which belongs above the calculator: it moves with
// a calculator that was brought onto the screen, and goes below it when
// above would leave the screen.
QPoint ShownTapePlace(const AppWindows& windows, const QWidget& tape,
                      QPoint place, QSize size);

// A place and size for a window of the given size beside anchor (Help
// beside the calculator): on the side of it with more room on the anchor's
// screen, narrowed to that room down to a readable width, and reachable.
QRect PlaceBeside(const QWidget& anchor, const QWidget& window, QSize size);

// Whether the window spans its screen's available width or height: a size the
// window manager gave it to maximise it, which may come before the window
// manager says it is maximised.
bool SpansScreen(const QWidget& window);

}  // namespace brenko::ui
