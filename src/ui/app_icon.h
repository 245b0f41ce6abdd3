#pragma once
// The program's identity on the desktop and its icon. The icon is the one
// installed in the desktop's icon theme under the application id, so the
// menu, the task bar and the windows show the same picture; the same
// drawing compiled into the program (with bitmaps rendered from it for the
// small sizes) stands in where it is not installed.

#include <QIcon>
#include <QString>

class QWidget;

namespace brenko::ui {

// The reverse-DNS id of the desktop entry, the icon, the AppStream metainfo
// and the memory file type; the build gives it.
inline constexpr char kApplicationId[] = BRENKO_APP_ID;

// Where the compiled-in drawing lives among the program's resources.
QString AppIconResource();

// The compiled-in icon: bitmaps up to 64 pixels, the drawing above.
QIcon CompiledAppIcon();

QIcon AppIcon();

// Gives every window the icon theme's picture when the theme has one and
// says whether it did. Asking the theme costs a few milliseconds, so the
// program starts with the compiled-in icon and calls this once its windows
// are up.
bool AdoptThemeIcon();

// Calls AdoptThemeIcon just after the window's first paint.
void AdoptThemeIconAfterFirstPaint(QWidget* window);

}  // namespace brenko::ui
