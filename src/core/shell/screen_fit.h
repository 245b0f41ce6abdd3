#pragma once
// Where a window is shown on the screens there are now. The models keep the
// places they computed (from the settings, the memory file, the arrangement);
// a place saved on a bigger desktop, or one that puts the tape above a
// calculator at the top edge, would leave a window where the user cannot
// reach it. The Qt layer asks these functions where to show it instead, and
// never writes the answer back to a model.

#include <vector>

namespace brenko {

// A rectangle in screen pixels: a window's outer rectangle (frame and title
// bar included) or a screen's available area.
struct PixelRect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  int Right() const { return x + width; }
  int Bottom() const { return y + height; }
  bool operator==(const PixelRect&) const = default;
};

// Whether the user can reach the window where it is: its title bar (the top
// titleHeight pixels of it) lies whole on the screens' available areas, or
// spans the whole width of a screen narrower than it, and at least a third
// of the window is on the screens.
bool ReachableOnScreens(const std::vector<PixelRect>& screens,
                        const PixelRect& window, int titleHeight);

// The window's rectangle as it is shown: unchanged when it is reachable,
// else moved (never resized) to the nearest place inside the available area
// of the nearest screen, title bar first when it is larger than the screen.
// No screens at all: unchanged.
PixelRect FitOnScreens(const std::vector<PixelRect>& screens,
                       const PixelRect& window, int titleHeight);

// The tape above its calculator: moved with the calculator by as much as the
// calculator itself was moved onto the screen (shownCalculator against
// modelCalculator), shown below the calculator when above it would leave the
// screen, and fitted like any window as the last resort.
PixelRect FitTapeOnScreens(const std::vector<PixelRect>& screens,
                           const PixelRect& tape,
                           const PixelRect& modelCalculator,
                           const PixelRect& shownCalculator, int titleHeight);

}  // namespace brenko
