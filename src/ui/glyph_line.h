#pragma once
// One line of Latin-1 text in one font, measured and drawn from a table of
// the font's glyphs and advances, without shaping it. The readout changes
// at every key, and shaping its text (to fit it, then again to draw it) was
// the larger part of a key's time. What is drawn is what the text engine
// draws for such a line: the same glyphs at the same places (the tests
// compare the pixels). A line the table cannot take, with a character
// beyond Latin-1 or one the font has no glyph for, is left to the text
// engine: Width and Draw say so.

#include <QFont>
#include <QFontMetricsF>
#include <QRawFont>
#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

class QPainter;
class QRect;

namespace brenko::ui {

class GlyphLine {
 public:
  // The advance of `text` in `font`, in pixels; none if the table cannot
  // take the text.
  std::optional<qreal> Width(const QFont& font, const QString& text);

  // Draws `text` in the painter's font and pen within `room` as
  // QPainter::drawText(room, alignment, text) draws a single line that
  // fits; false, having drawn nothing, if the table cannot take the text
  // or it does not fit in `room`.
  bool Draw(QPainter& painter, const QRect& room, int alignment,
            const QString& text);

 private:
  // The table for `font`, made anew when the font changed.
  void Use(const QFont& font);
  // The kerning of two characters in 1/64 pixel, from shaping them once.
  std::int32_t Pair(char16_t first, char16_t second);
  // The glyphs of `text` into glyphs_ and their advances in 1/64 pixel;
  // false if the table cannot take the text.
  bool Look(const QString& text, std::int64_t* advance);

  QFont font_;
  bool ready_ = false;
  QRawFont raw_;
  // Per Latin-1 character: its glyph (0 for none in this font) and its
  // advance in 1/64 pixel, the text engine's unit; -1 while not looked up.
  std::array<quint32, 256> glyph_{};
  std::array<std::int32_t, 256> advance_{};
  // Per pair of Latin-1 characters, a row for each first one seen: its
  // kerning in 1/64 pixel, INT16_MIN while not looked up.
  std::array<std::vector<std::int16_t>, 256> pairs_;
  std::optional<QFontMetricsF> metrics_;
  // The line last looked at: its glyphs and their advances.
  std::vector<quint32> glyphs_;
  std::vector<std::int32_t> advances_;
};

}  // namespace brenko::ui
