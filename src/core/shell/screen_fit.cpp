#include "core/shell/screen_fit.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace brenko {
namespace {

std::int64_t Area(const PixelRect& r) {
  return static_cast<std::int64_t>(std::max(0, r.width)) *
         std::max(0, r.height);
}

PixelRect Intersection(const PixelRect& a, const PixelRect& b) {
  const int left = std::max(a.x, b.x);
  const int top = std::max(a.y, b.y);
  const int right = std::min(a.Right(), b.Right());
  const int bottom = std::min(a.Bottom(), b.Bottom());
  if (right <= left || bottom <= top) return {};
  return {left, top, right - left, bottom - top};
}

PixelRect TitleBar(const PixelRect& window, int titleHeight) {
  return {window.x, window.y, window.width,
          std::clamp(titleHeight, 1, std::max(1, window.height))};
}

// A title bar wider than a screen is as whole as it can be when it spans the
// screen's width.
bool SpansScreen(const PixelRect& screen, const PixelRect& bar) {
  const PixelRect seen = Intersection(bar, screen);
  return seen.height == bar.height && seen.width == screen.width;
}

// The squared distance between the centres, the tie-breaker for a window
// that no screen holds any part of.
std::int64_t CentreDistance(const PixelRect& a, const PixelRect& b) {
  using Wide = std::int64_t;
  const Wide dx = (Wide{a.x} * 2 + a.width) - (Wide{b.x} * 2 + b.width);
  const Wide dy = (Wide{a.y} * 2 + a.height) - (Wide{b.y} * 2 + b.height);
  return dx * dx + dy * dy;
}

int ClampStart(int start, int length, int areaStart, int areaLength) {
  if (length >= areaLength) return areaStart;
  return std::clamp(start, areaStart, areaStart + areaLength - length);
}

}  // namespace

bool ReachableOnScreens(const std::vector<PixelRect>& screens,
                        const PixelRect& window, int titleHeight) {
  const PixelRect bar = TitleBar(window, titleHeight);
  bool spans = false;
  std::int64_t barSeen = 0;
  std::int64_t seen = 0;
  for (const PixelRect& screen : screens) {
    if (Area(screen) == 0) continue;
    spans = spans || SpansScreen(screen, bar);
    // Screens do not overlap: the parts seen on each add up.
    barSeen += Area(Intersection(screen, bar));
    seen += Area(Intersection(screen, window));
  }
  return (spans || barSeen == Area(bar)) && seen * 3 >= Area(window);
}

PixelRect FitOnScreens(const std::vector<PixelRect>& screens,
                       const PixelRect& window, int titleHeight) {
  if (ReachableOnScreens(screens, window, titleHeight)) return window;
  const PixelRect* nearest = nullptr;
  std::int64_t bestArea = 0;
  std::int64_t bestDistance = std::numeric_limits<std::int64_t>::max();
  for (const PixelRect& screen : screens) {
    if (Area(screen) == 0) continue;
    const std::int64_t area = Area(Intersection(screen, window));
    const std::int64_t distance = CentreDistance(screen, window);
    if (area > bestArea || (area == bestArea && distance < bestDistance)) {
      nearest = &screen;
      bestArea = area;
      bestDistance = distance;
    }
  }
  if (nearest == nullptr) return window;
  PixelRect shown = window;
  shown.x = ClampStart(window.x, window.width, nearest->x, nearest->width);
  shown.y = ClampStart(window.y, window.height, nearest->y, nearest->height);
  return shown;
}

PixelRect FitTapeOnScreens(const std::vector<PixelRect>& screens,
                           const PixelRect& tape,
                           const PixelRect& modelCalculator,
                           const PixelRect& shownCalculator, int titleHeight) {
  PixelRect shown = tape;
  shown.x += shownCalculator.x - modelCalculator.x;
  shown.y += shownCalculator.y - modelCalculator.y;
  if (ReachableOnScreens(screens, shown, titleHeight)) return shown;
  // Above the calculator is where the tape belongs; below it is the next
  // best place, still beside the numbers it records.
  if (shown.y < shownCalculator.y) {
    PixelRect below = shown;
    below.y = shownCalculator.Bottom();
    if (ReachableOnScreens(screens, below, titleHeight)) return below;
  }
  return FitOnScreens(screens, shown, titleHeight);
}

}  // namespace brenko
