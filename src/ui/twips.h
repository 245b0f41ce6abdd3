#pragma once
// The one place where twips become pixels: divide by the screen's twips per
// pixel (1440 / logical DPI) and round half to even.

#include <QPoint>
#include <QRect>
#include <QSize>

#include "core/base/platform.h"
#include "core/base/window_model.h"

namespace brenko::ui {

int TwipsToPixels(double twips, double twipsPerPixel);
double PixelsToTwips(int pixels, double twipsPerPixel);
QRect TwipsToPixels(const Rect& rect, double twipsPerPixelX,
                    double twipsPerPixelY);
// Records a place the user moved a window to (pixels) in its model (twips).
void SetTwipsPosition(Rect& rect, QPoint pixels, const ScreenInfo& screen);
// Records a size the user gave a window's client area (pixels) in its model
// (twips), adding what the frame around that area takes.
void SetTwipsSize(Rect& rect, QSize pixels, const ScreenInfo& screen,
                  float frameWidth, float frameHeight);

}  // namespace brenko::ui
