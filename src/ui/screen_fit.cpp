#include "ui/screen_fit.h"

#include <QGuiApplication>
#include <QMargins>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "core/commands/app.h"
#include "ui/app_windows.h"
#include "ui/twips.h"

namespace brenko::ui {
namespace {

// What a window manager's frame usually takes, until the real frame of a
// shown window is known.
constexpr QMargins kGuessedFrame(4, 28, 4, 4);
// The part of a frameless window (the tape) that moves it: its title line.
constexpr int kFramelessTitle = 16;

PixelRect ToPixelRect(const QRect& r) {
  return {r.x(), r.y(), r.width(), r.height()};
}

bool HasWindowManagerFrame(const QWidget& window) {
  if (window.windowFlags().testFlag(Qt::FramelessWindowHint)) return false;
  // Without a window system there is no frame to guess.
  const QString platform = QGuiApplication::platformName();
  return platform != QLatin1String("offscreen") &&
         platform != QLatin1String("minimal");
}

}  // namespace

QMargins WindowFrame(const QWidget& window) {
  if (window.windowFlags().testFlag(Qt::FramelessWindowHint)) return {};
  const QWindow* handle = window.windowHandle();
  if (handle != nullptr && window.isVisible()) {
    const QMargins frame = handle->frameMargins();
    if (!frame.isNull()) return frame;
  }
  return HasWindowManagerFrame(window) ? kGuessedFrame : QMargins();
}

namespace {

int TitleHeight(const QWidget& window) {
  const QMargins frame = WindowFrame(window);
  return frame.top() > 0 ? frame.top() : kFramelessTitle;
}

}  // namespace

std::vector<PixelRect> AvailableAreas() {
  std::vector<PixelRect> areas;
  for (const QScreen* screen : QGuiApplication::screens()) {
    areas.push_back(ToPixelRect(screen->availableGeometry()));
  }
  return areas;
}

QRect OuterRect(const QWidget& window, QPoint place, QSize size) {
  const QMargins frame = WindowFrame(window);
  return {place, QSize(size.width() + frame.left() + frame.right(),
                       size.height() + frame.top() + frame.bottom())};
}

QPoint ShownPlace(const QWidget& window, QPoint place, QSize size) {
  const PixelRect shown = FitOnScreens(
      AvailableAreas(), ToPixelRect(OuterRect(window, place, size)),
      TitleHeight(window));
  return {shown.x, shown.y};
}

QPoint ShownTapePlace(const AppWindows& windows, const QWidget& tape,
                      QPoint place, QSize size) {
  const QWidget* calculator = windows.Existing({WindowKind::kCalculator, 0});
  if (calculator == nullptr) return ShownPlace(tape, place, size);
  const Rect& model = windows.app().calculator.geometry;
  const ScreenInfo screen = windows.app().platform.Screen();
  const QPoint modelPlace(TwipsToPixels(model.left, screen.twipsPerPixelX),
                          TwipsToPixels(model.top, screen.twipsPerPixelY));
  const QRect modelOuter =
      OuterRect(*calculator, modelPlace, calculator->size());
  const QRect shownOuter =
      OuterRect(*calculator, calculator->pos(), calculator->size());
  const PixelRect shown = FitTapeOnScreens(
      AvailableAreas(), ToPixelRect(OuterRect(tape, place, size)),
      ToPixelRect(modelOuter), ToPixelRect(shownOuter), TitleHeight(tape));
  return {shown.x, shown.y};
}

bool SpansScreen(const QWidget& window) {
  const QScreen* screen = window.screen();
  if (screen == nullptr) return false;
  const QRect area = screen->availableGeometry();
  const QRect outer = window.frameGeometry();
  return outer.width() >= area.width() || outer.height() >= area.height();
}

QRect PlaceBeside(const QWidget& anchor, const QWidget& window, QSize size) {
  constexpr int kGap = 8;
  constexpr int kNarrowest = 520;
  const QRect outer = OuterRect(anchor, anchor.pos(), anchor.size());
  const QScreen* screen = anchor.screen();
  const QRect area = screen != nullptr ? screen->availableGeometry()
                                       : QRect(outer.topLeft(), size);
  const int roomRight = area.right() + 1 - (outer.right() + 1 + kGap);
  const int roomLeft = outer.left() - kGap - area.left();
  const bool right = roomRight >= roomLeft;
  const QSize frameExtra = OuterRect(window, {}, QSize()).size();
  const int room = (right ? roomRight : roomLeft) - frameExtra.width();
  QSize shownSize = size;
  shownSize.setWidth(std::max(kNarrowest, std::min(size.width(), room)));
  shownSize.setHeight(std::max(
      1, std::min(size.height(), area.height() - frameExtra.height())));
  const int outerWidth = shownSize.width() + frameExtra.width();
  const QPoint place(
      right ? outer.right() + 1 + kGap : outer.left() - kGap - outerWidth,
      outer.top());
  return {ShownPlace(window, place, shownSize), shownSize};
}

}  // namespace brenko::ui
