#include "ui/calculator_client.h"

#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

#include "ui/fit_text.h"

namespace brenko::ui {

CalculatorClient::CalculatorClient(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("ClientArea"));
}

void CalculatorClient::SetBackground(const QColor& color) {
  if (color == background_) return;
  background_ = color;
  update();
}

QColor TextColorOn(const QColor& background) {
  const int luminance = (299 * background.red() + 587 * background.green() +
                         114 * background.blue()) /
                        1000;
  return luminance < 140 ? QColor(255, 255, 255) : QColor(0, 0, 0);
}

void ReadoutLabel::DrawSunkenEdge(QPainter& painter, const QRect& rect) {
  const QRect outer = rect;
  const QRect middle = rect.adjusted(1, 1, -1, -1);
  // Outer ring: shadow above and left, highlight below and right.
  painter.setPen(QColor(128, 128, 128));
  painter.drawLine(outer.topLeft(), outer.topRight());
  painter.drawLine(outer.topLeft(), outer.bottomLeft());
  painter.setPen(QColor(255, 255, 255));
  painter.drawLine(outer.bottomLeft(), outer.bottomRight());
  painter.drawLine(outer.topRight(), outer.bottomRight());
  // Inner ring: dark shadow above and left, light grey below and right.
  painter.setPen(QColor(64, 64, 64));
  painter.drawLine(middle.topLeft(), middle.topRight());
  painter.drawLine(middle.topLeft(), middle.bottomLeft());
  painter.setPen(QColor(212, 208, 200));
  painter.drawLine(middle.bottomLeft(), middle.bottomRight());
  painter.drawLine(middle.topRight(), middle.bottomRight());
}

void CalculatorClient::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), background_);
}

void ReadoutLabel::paintEvent(QPaintEvent*) {
  // A plain-text label without a frame: QLabel would draw the caption so,
  // in its font and foreground colour.
  QPainter painter(this);
  const QRect room = CaptionRect(this);
  const QString shown = ShownCaption(this);
  const int flags = int(alignment()) | Qt::TextForceLeftToRight;
  if (!isEnabled() || !glyphs_.Draw(painter, room, int(alignment()), shown)) {
    style()->drawItemText(&painter, room, flags, palette(), isEnabled(), shown,
                          foregroundRole());
  }
  DrawSunkenEdge(painter, rect());
}

}  // namespace brenko::ui
