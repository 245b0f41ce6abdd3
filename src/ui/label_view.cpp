#include "ui/label_view.h"

#include <QLabel>
#include <QPalette>
#include <QString>

#include "ui/calculator_client.h"
#include "ui/color_number.h"
#include "ui/twips.h"

namespace brenko::ui {

void SetBackground(QWidget* widget, const QColor& back, bool withText) {
  QPalette palette = widget->palette();
  if (palette.color(QPalette::Window) == back) return;
  palette.setColor(QPalette::Window, back);
  if (withText) palette.setColor(QPalette::WindowText, TextColorOn(back));
  widget->setPalette(palette);
}

void ApplyLabelLook(QLabel* label, const Label& model) {
  const QString caption = QString::fromStdString(model.caption);
  if (label->text() != caption) label->setText(caption);
  SetBackground(label, ToQColor(model.backColor), true);
  if (label->isHidden() == model.visible) label->setVisible(model.visible);
}

void ApplyLabel(QLabel* label, const Label& model, const ScreenInfo& screen) {
  const QRect rect =
      TwipsToPixels(model.rect, screen.twipsPerPixelX, screen.twipsPerPixelY);
  if (label->geometry() != rect) label->setGeometry(rect);
  ApplyLabelLook(label, model);
}

}  // namespace brenko::ui
