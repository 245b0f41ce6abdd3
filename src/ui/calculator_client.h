#pragma once
// The client area of the calculator window with the window's background
// colour, and the readout, which draws its sunken edge in pixels on the
// border of its own rectangle on every paint, at both sizes.

#include <QLabel>
#include <QWidget>

#include "ui/glyph_line.h"

class QLabel;

namespace brenko::ui {

class CalculatorClient : public QWidget {
  Q_OBJECT

 public:
  explicit CalculatorClient(QWidget* parent = nullptr);
  void SetBackground(const QColor& color);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor background_;
};

class ReadoutLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ReadoutLabel(QWidget* parent = nullptr) : QLabel(parent) {}
  // Paints a two-pixel sunken edge on the border of `rect` (the classic
  // 3-D look: dark above and left, light below and right).
  static void DrawSunkenEdge(QPainter& painter, const QRect& rect);

 protected:
  // The caption (fitted with CaptionDrawing::kGlyphLine) as the label
  // would draw it, from the font's glyph table when it can, then the edge.
  void paintEvent(QPaintEvent* event) override;

 private:
  GlyphLine glyphs_;
};

// A colour for text that stays legible on `background`.
QColor TextColorOn(const QColor& background);

}  // namespace brenko::ui
