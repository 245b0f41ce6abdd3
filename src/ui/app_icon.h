#pragma once
// The program's identity on the desktop and its icon. The icon is the one
// installed in the desktop's icon theme under the application id, so the
// menu, the task bar and the windows show the same picture; the same
// drawing compiled into the program stands in where it is not installed.

#include <QIcon>
#include <QString>

namespace brenko::ui {

// The reverse-DNS id of the desktop entry, the icon, the AppStream metainfo
// and the memory file type; the build gives it.
inline constexpr char kApplicationId[] = BRENKO_APP_ID;

// Where the compiled-in drawing lives among the program's resources.
QString AppIconResource();

QIcon AppIcon();

}  // namespace brenko::ui
