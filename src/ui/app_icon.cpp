#include "ui/app_icon.h"

#include <QPainter>
#include <QPixmap>

#include "core/base/window_model.h"
#include "ui/color_number.h"

namespace brenko::ui {

QIcon AppIcon() {
  QPixmap pixmap(64, 64);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(0, 64, 64), 2));
  painter.setBrush(ToQColor(kTeal));
  painter.drawRoundedRect(QRectF(6, 2, 52, 60), 6, 6);
  painter.setBrush(ToQColor(kPaleYellow));
  painter.drawRect(QRectF(12, 8, 40, 14));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(230, 230, 230));
  for (int row = 0; row < 3; ++row) {
    for (int col = 0; col < 3; ++col) {
      painter.drawRect(QRectF(12 + col * 14, 28 + row * 11, 11, 8));
    }
  }
  painter.end();
  return QIcon(pixmap);
}

}  // namespace brenko::ui
