#pragma once
// The buttons each kind of window offers in its title bar, so that every one
// of them means something: a window of fixed size has no maximise button, a
// dialog neither minimise nor maximise. Without Qt::CustomizeWindowHint the
// window manager is free to add its own, and would.

#include <Qt>

namespace brenko::ui {

// The calculator: fixed size, minimised with its companions.
inline constexpr Qt::WindowFlags kFixedWindowButtons =
    Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
    Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
    Qt::WindowCloseButtonHint;

// The converter: a tool window beside the calculator; its height is one of
// two and its width at most half the screen, so it is never maximised into
// a banner.
inline constexpr Qt::WindowFlags kConverterButtons =
    Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
    Qt::WindowCloseButtonHint;

// About, the message boxes, Named Memory and the other dialogs: close only.
inline constexpr Qt::WindowFlags kDialogButtons =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
    Qt::WindowCloseButtonHint;

}  // namespace brenko::ui
