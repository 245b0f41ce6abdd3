#pragma once
// A caption wider than its label is never cut without a sign. Its font
// steps down, to about 70% of its own size at the least, which is still
// easy to read; a caption still too wide is drawn cut at its end with "…",
// and the whole of it is the label's tooltip. The label's text stays the
// whole caption all the while: only what is drawn is shortened.

#include <QFont>
#include <QRect>

class QLabel;
class QString;

namespace brenko::ui {

// The smallest share of its own size a caption's font steps down to.
inline constexpr double kSmallestFontShare = 0.7;

// Who draws the label's caption. The text engine: the label's own painting,
// and the fitting draws a cut caption. A glyph line (ui/glyph_line.h): the
// label draws its caption from the font's glyph table when it can, the cut
// one too (ShownCaption), and its caption is fitted by the same measure.
enum class CaptionDrawing { kTextEngine, kGlyphLine };

// Fits the label's caption into it: the font from base down to its
// smallest share, then the cut with its tooltip.
void FitCaption(QLabel* label, const QFont& base,
                CaptionDrawing drawing = CaptionDrawing::kTextEngine);

// The caption as the label shows it: whole, or shortened at its end with
// "…" when cut.
QString ShownCaption(const QLabel* label);

// Whether the label draws its caption cut (the caption did not fit even
// in the smallest font).
bool CaptionCut(const QLabel* label);

// Where the label draws its caption: inside its frame and margin.
QRect CaptionRect(const QLabel* label);

// The width the label has for its caption.
int CaptionRoom(const QLabel* label);

}  // namespace brenko::ui
