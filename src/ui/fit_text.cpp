#include "ui/fit_text.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>
#include <optional>

#include "ui/glyph_line.h"

namespace brenko::ui {
namespace {

// What a label's caption fitting keeps between two fits: who draws the
// caption, whether it is drawn cut, and the glyph table of the font last
// asked for. The readout is fitted at every key; shaping its text each time
// cost more than all the rest of a key.
class CaptionFit : public QObject {
 public:
  explicit CaptionFit(QLabel* label) : QObject(label), label_(label) {
    setObjectName(QStringLiteral("CaptionFit"));
  }

  // The label's own, if it has one yet. (Not findChild: without a meta
  // object of its own that would take any child of the label for it.)
  static CaptionFit* Of(const QLabel* label) {
    for (QObject* child : label->children()) {
      if (auto* fit = dynamic_cast<CaptionFit*>(child)) return fit;
    }
    return nullptr;
  }

  bool cut() const { return cut_; }

  void SetCut(bool cut) {
    if (cut_ == cut) return;
    cut_ = cut;
    if (cut && !painting_ && drawing_ == CaptionDrawing::kTextEngine) {
      label_->installEventFilter(this);
      painting_ = true;
    }
    label_->update();
  }

  // Whether `text` fits in `room` in `font` as a glyph line draws it;
  // none for a caption the text engine draws, or one the glyph table
  // cannot take: shaping it tells.
  std::optional<bool> QuickFit(const QFont& font, const QString& text,
                               int room) {
    if (drawing_ != CaptionDrawing::kGlyphLine) return std::nullopt;
    if (!glyphs_) glyphs_.emplace();
    const std::optional<qreal> width = glyphs_->Width(font, text);
    if (!width) return std::nullopt;
    return *width <= room;
  }

  void SetDrawing(CaptionDrawing drawing) { drawing_ = drawing; }

 protected:
  // Draws a cut caption: the label's frame as the label draws it, then the
  // caption shortened at its end to the room there is. The label's own
  // painting draws captions that fit.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched != label_ || event->type() != QEvent::Paint || !cut_ ||
        drawing_ == CaptionDrawing::kGlyphLine) {
      return false;
    }
    QPainter painter(label_);
    QStyleOptionFrame frame;
    frame.initFrom(label_);
    frame.rect = label_->frameRect();
    frame.lineWidth = label_->lineWidth();
    frame.midLineWidth = label_->midLineWidth();
    frame.frameShape = label_->frameShape();
    if (label_->frameShadow() == QFrame::Sunken) {
      frame.state |= QStyle::State_Sunken;
    } else if (label_->frameShadow() == QFrame::Raised) {
      frame.state |= QStyle::State_Raised;
    }
    label_->style()->drawControl(QStyle::CE_ShapedFrame, &frame, &painter,
                                 label_);
    painter.setFont(label_->font());
    label_->style()->drawItemText(&painter, CaptionRect(label_),
                                  int(label_->alignment()), label_->palette(),
                                  label_->isEnabled(), ShownCaption(label_),
                                  QPalette::WindowText);
    return true;
  }

 private:
  QLabel* label_;
  CaptionDrawing drawing_ = CaptionDrawing::kTextEngine;
  bool cut_ = false;
  bool painting_ = false;
  // Only for a caption drawn as a glyph line.
  std::optional<GlyphLine> glyphs_;
};

double SizeOf(const QFont& font) {
  return font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize();
}

void SetSize(QFont& font, double size, bool points) {
  if (points) {
    font.setPointSizeF(size);
  } else {
    font.setPixelSize(std::max(1, static_cast<int>(size)));
  }
}

}  // namespace

QRect CaptionRect(const QLabel* label) {
  const int margin = label->margin();
  return label->contentsRect().adjusted(margin, margin, -margin, -margin);
}

int CaptionRoom(const QLabel* label) {
  // A pixel to spare: a caption that just touches the frame looks cut.
  return CaptionRect(label).width() - 1;
}

bool CaptionCut(const QLabel* label) {
  const CaptionFit* fit = CaptionFit::Of(label);
  return fit != nullptr && fit->cut();
}

QString ShownCaption(const QLabel* label) {
  if (!CaptionCut(label)) return label->text();
  return label->fontMetrics().elidedText(label->text(), Qt::ElideRight,
                                         CaptionRect(label).width());
}

void FitCaption(QLabel* label, const QFont& base, CaptionDrawing drawing) {
  // A label the text engine draws keeps nothing until its caption is cut
  // (a memory file may bring thousands of them).
  CaptionFit* fit = CaptionFit::Of(label);
  if (fit == nullptr && drawing == CaptionDrawing::kGlyphLine) {
    fit = new CaptionFit(label);
  }
  if (fit != nullptr) fit->SetDrawing(drawing);
  const QString text = label->text();
  const int room = CaptionRoom(label);
  const bool points = base.pointSizeF() > 0;
  const double full = SizeOf(base);
  QFont font = base;
  bool fits = room <= 0 || text.isEmpty();
  if (!fits) {
    const std::optional<bool> quick =
        fit != nullptr ? fit->QuickFit(base, text, room) : std::nullopt;
    fits = quick ? *quick : QFontMetricsF(font).horizontalAdvance(text) <= room;
  }
  const double step = points ? 0.5 : 1.0;
  for (double size = full - step; !fits && size >= full * kSmallestFontShare;
       size -= step) {
    SetSize(font, size, points);
    fits = QFontMetricsF(font).horizontalAdvance(text) <= room;
  }
  if (label->font() != font) label->setFont(font);
  const bool cut = !fits;
  if (cut && fit == nullptr) {
    fit = new CaptionFit(label);
    fit->SetDrawing(drawing);
  }
  if (fit != nullptr) fit->SetCut(cut);
  const QString tip = cut ? text.trimmed() : QString();
  // Screen readers have the whole value already: the label's description
  // (and the readout's text) carry it, whatever is drawn.
  if (label->toolTip() != tip) label->setToolTip(tip);
}

}  // namespace brenko::ui
