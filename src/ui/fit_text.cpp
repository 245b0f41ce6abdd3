#include "ui/fit_text.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>

namespace brenko::ui {
namespace {

constexpr char kCutProperty[] = "captionCut";

// Draws a cut caption: the label's frame as the label draws it, then the
// caption shortened at its end to the room there is. The label's own
// painting draws captions that fit.
class CutCaptionPainter : public QObject {
 public:
  explicit CutCaptionPainter(QLabel* label) : QObject(label), label_(label) {
    setObjectName(QStringLiteral("CutCaptionPainter"));
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched != label_ || event->type() != QEvent::Paint ||
        !CaptionCut(label_)) {
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
    const int margin = label_->margin();
    const QRect room =
        label_->contentsRect().adjusted(margin, margin, -margin, -margin);
    painter.setFont(label_->font());
    const QString shown = label_->fontMetrics().elidedText(
        label_->text(), Qt::ElideRight, room.width());
    label_->style()->drawItemText(&painter, room, int(label_->alignment()),
                                  label_->palette(), label_->isEnabled(), shown,
                                  QPalette::WindowText);
    return true;
  }

 private:
  QLabel* label_;
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

int CaptionRoom(const QLabel* label) {
  // A pixel to spare: a caption that just touches the frame looks cut.
  return label->contentsRect().width() - 2 * label->margin() - 1;
}

bool CaptionCut(const QLabel* label) {
  return label->property(kCutProperty).toBool();
}

void FitCaption(QLabel* label, const QFont& base) {
  const QString text = label->text();
  const int room = CaptionRoom(label);
  const bool points = base.pointSizeF() > 0;
  const double full = SizeOf(base);
  QFont font = base;
  bool fits = room <= 0 || text.isEmpty() ||
              QFontMetricsF(font).horizontalAdvance(text) <= room;
  const double step = points ? 0.5 : 1.0;
  for (double size = full - step; !fits && size >= full * kSmallestFontShare;
       size -= step) {
    SetSize(font, size, points);
    fits = QFontMetricsF(font).horizontalAdvance(text) <= room;
  }
  if (label->font() != font) label->setFont(font);
  const bool cut = !fits;
  if (CaptionCut(label) != cut) {
    label->setProperty(kCutProperty, cut);
    if (cut && label->findChild<CutCaptionPainter*>(
                   QString(), Qt::FindDirectChildrenOnly) == nullptr) {
      label->installEventFilter(new CutCaptionPainter(label));
    }
    label->update();
  }
  const QString tip = cut ? text.trimmed() : QString();
  // Screen readers have the whole value already: the label's description
  // (and the readout's text) carry it, whatever is drawn.
  if (label->toolTip() != tip) label->setToolTip(tip);
}

}  // namespace brenko::ui
