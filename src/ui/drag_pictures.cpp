#include "ui/drag_pictures.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPolygon>

namespace brenko::ui {
namespace {

// A sheet of paper with a dog-eared top right corner, as the value being
// carried, and the operation's mark in the middle.
QPixmap DrawPage(const QString& mark) {
  constexpr int s = DragPictures::kSize;
  QPixmap pixmap(s, s);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing, true);

  const int left = 5, top = 2, right = s - 6, bottom = s - 3, ear = 8;
  QPainterPath page;
  page.moveTo(left, top);
  page.lineTo(right - ear, top);
  page.lineTo(right, top + ear);
  page.lineTo(right, bottom);
  page.lineTo(left, bottom);
  page.closeSubpath();
  p.setPen(QPen(QColor(40, 40, 40), 1.2));
  p.setBrush(QColor(255, 255, 240));
  p.drawPath(page);

  QPainterPath corner;
  corner.moveTo(right - ear, top);
  corner.lineTo(right - ear, top + ear);
  corner.lineTo(right, top + ear);
  p.setBrush(QColor(210, 210, 200));
  p.drawPath(corner);

  if (mark.isEmpty()) {
    // The plain page shows a few ruled lines, like a tape slip.
    p.setPen(QPen(QColor(120, 120, 120), 1));
    for (int y = top + ear + 4; y < bottom - 3; y += 4) {
      p.drawLine(left + 4, y, right - 4, y);
    }
    return pixmap;
  }
  QFont font;
  font.setBold(true);
  font.setPixelSize(20);
  p.setFont(font);
  p.setPen(QColor(0, 0, 160));
  p.drawText(QRect(left, top + 3, right - left, bottom - top - 3),
             Qt::AlignCenter, mark);
  return pixmap;
}

}  // namespace

DragPictures::DragPictures() {
  for (const char* name :
       {"Image1", "Image2", "Image3", "Image4", "Image5", kDropHerePicture}) {
    pictures_.emplace(name, DrawPage(Mark(name)));
  }
}

const QPixmap& DragPictures::Picture(const std::string& name) const {
  auto it = pictures_.find(name);
  if (it == pictures_.end()) it = pictures_.find("Image3");
  return it->second;
}

QString DragPictures::Mark(const std::string& name) {
  if (name == "Image1") return QStringLiteral("+");
  if (name == "Image2") return QString(QChar(0x2212));          // minus sign
  if (name == "Image4") return QString(QChar(0x00d7));          // times
  if (name == "Image5") return QString(QChar(0x00f7));          // divide
  if (name == kDropHerePicture) return QString(QChar(0x2193));  // down arrow
  return QString();
}

}  // namespace brenko::ui
