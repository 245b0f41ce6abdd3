#include "ui/twips.h"

#include <cmath>
#include <limits>

namespace brenko::ui {

int TwipsToPixels(double twips, double twipsPerPixel) {
  if (!(twipsPerPixel > 0)) return 0;
  const double pixels = std::nearbyint(twips / twipsPerPixel);  // half to even
  // Never hand a non-finite or out-of-range double to the integer.
  if (!std::isfinite(pixels)) return 0;
  if (pixels > std::numeric_limits<int>::max() / 2) {
    return std::numeric_limits<int>::max() / 2;
  }
  if (pixels < std::numeric_limits<int>::min() / 2) {
    return std::numeric_limits<int>::min() / 2;
  }
  return static_cast<int>(pixels);
}

double PixelsToTwips(int pixels, double twipsPerPixel) {
  return pixels * twipsPerPixel;
}

QRect TwipsToPixels(const Rect& rect, double twipsPerPixelX,
                    double twipsPerPixelY) {
  return QRect(TwipsToPixels(rect.left, twipsPerPixelX),
               TwipsToPixels(rect.top, twipsPerPixelY),
               TwipsToPixels(rect.width, twipsPerPixelX),
               TwipsToPixels(rect.height, twipsPerPixelY));
}

void SetTwipsPosition(Rect& rect, QPoint pixels, const ScreenInfo& screen) {
  rect.left =
      static_cast<float>(PixelsToTwips(pixels.x(), screen.twipsPerPixelX));
  rect.top =
      static_cast<float>(PixelsToTwips(pixels.y(), screen.twipsPerPixelY));
}

void SetTwipsSize(Rect& rect, QSize pixels, const ScreenInfo& screen,
                  float frameWidth, float frameHeight) {
  rect.width = static_cast<float>(
      PixelsToTwips(pixels.width(), screen.twipsPerPixelX) + frameWidth);
  rect.height = static_cast<float>(
      PixelsToTwips(pixels.height(), screen.twipsPerPixelY) + frameHeight);
}

}  // namespace brenko::ui
