#include "ui/app_icon.h"

namespace brenko::ui {

QString AppIconResource() {
  return QStringLiteral(":/icons/") + QLatin1String(kApplicationId) +
         QStringLiteral(".svg");
}

QIcon AppIcon() {
  return QIcon::fromTheme(QLatin1String(kApplicationId),
                          QIcon(AppIconResource()));
}

}  // namespace brenko::ui
