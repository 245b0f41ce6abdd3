#pragma once
// The client area of the calculator window: the window's background colour
// and, on every paint, the sunken edge around the readout, drawn in pixels
// just outside the readout's rectangle as the window always had it.

#include <QWidget>

class QLabel;

namespace brenko::ui {

class CalculatorClient : public QWidget {
  Q_OBJECT

 public:
  explicit CalculatorClient(QWidget* parent = nullptr);
  void SetReadout(QLabel* readout) { readout_ = readout; }
  void SetBackground(const QColor& color);
  // Paints a two-pixel sunken edge around `inner` (the classic 3-D look:
  // dark above and left, light below and right).
  static void DrawSunkenEdge(QPainter& painter, const QRect& inner);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* readout_ = nullptr;
  QColor background_;
};

// A colour for text that stays legible on `background`.
QColor TextColorOn(const QColor& background);

}  // namespace brenko::ui
