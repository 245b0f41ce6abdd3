#pragma once
// The program's icon, drawn rather than shipped: a teal calculator with a
// pale yellow readout, the program's own colours.

#include <QIcon>

namespace brenko::ui {

QIcon AppIcon();

}  // namespace brenko::ui
