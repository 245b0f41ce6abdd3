#include "ui/app_icon.h"

#include <QApplication>
#include <QEvent>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <memory>

#include "ui/app_icon_pixels.h"

namespace brenko::ui {
namespace {

// The largest bitmap; the drawing serves anything larger.
int LargestBitmap() {
  int largest = 0;
  for (const IconPixels& bitmap : AppIconPixels()) {
    largest = std::max(largest, bitmap.size);
  }
  return largest;
}

// The bitmaps for the sizes a window manager and a menu ask for, the drawing
// for larger ones. The drawing is loaded only when a large size is wanted,
// so giving the windows their icon never loads the SVG renderer.
class BitmapsThenDrawing : public QIconEngine {
 public:
  BitmapsThenDrawing() {
    for (const IconPixels& bitmap : AppIconPixels()) {
      bitmaps_.addPixmap(QPixmap::fromImage(
          QImage(reinterpret_cast<const uchar*>(bitmap.argb), bitmap.size,
                 bitmap.size, QImage::Format_ARGB32_Premultiplied)));
    }
  }

  QIconEngine* clone() const override { return new BitmapsThenDrawing(); }

  QString key() const override { return QStringLiteral("BitmapsThenDrawing"); }

  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
    return bitmaps_.availableSizes(mode, state);
  }

  QSize actualSize(const QSize& size, QIcon::Mode mode,
                   QIcon::State state) override {
    return Fits(size) ? bitmaps_.actualSize(size, mode, state) : size;
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode,
                 QIcon::State state) override {
    return Fits(size) ? bitmaps_.pixmap(size, mode, state)
                      : Drawing().pixmap(size, mode, state);
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
             QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatio();
    const QSize pixels = (QSizeF(rect.size()) * ratio).toSize();
    if (Fits(pixels)) {
      bitmaps_.paint(painter, rect, Qt::AlignCenter, mode, state);
    } else {
      Drawing().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
  }

 private:
  static bool Fits(const QSize& size) {
    return size.width() <= LargestBitmap() && size.height() <= LargestBitmap();
  }

  const QIcon& Drawing() {
    if (drawing_.isNull()) drawing_ = QIcon(AppIconResource());
    return drawing_;
  }

  QIcon bitmaps_;
  QIcon drawing_;
};

}  // namespace

QString AppIconResource() {
  return QStringLiteral(":/icons/") + QLatin1String(kApplicationId) +
         QStringLiteral(".svg");
}

QIcon CompiledAppIcon() { return QIcon(new BitmapsThenDrawing()); }

QIcon AppIcon() {
  return QIcon::fromTheme(QLatin1String(kApplicationId), CompiledAppIcon());
}

namespace {

// Waits for a window's first paint, then asks the icon theme on the next
// turn of the event loop, so the first picture on screen never waits for it.
class AfterFirstPaint : public QObject {
 public:
  explicit AfterFirstPaint(QWidget* window) : QObject(window) {
    window->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      watched->removeEventFilter(this);
      QTimer::singleShot(0, parent(), [] { AdoptThemeIcon(); });
      deleteLater();
    }
    return false;
  }
};

}  // namespace

void AdoptThemeIconAfterFirstPaint(QWidget* window) {
  new AfterFirstPaint(window);
}

bool AdoptThemeIcon() {
  if (!QIcon::hasThemeIcon(QLatin1String(kApplicationId))) return false;
  QApplication::setWindowIcon(QIcon::fromTheme(QLatin1String(kApplicationId)));
  return true;
}

}  // namespace brenko::ui
