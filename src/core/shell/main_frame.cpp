#include "core/shell/main_frame.h"

namespace brenko {

Rect KeepFrameOnScreen(const Rect& rect, float screenWidth,
                       float screenHeight) {
  const bool offScreen = rect.left >= screenWidth || rect.top >= screenHeight ||
                         rect.left + rect.width <= 0 ||
                         rect.top + rect.height <= 0;
  if (!offScreen) return rect;
  return {kDefaultFrameLeft, kDefaultFrameTop, rect.width, rect.height};
}

}  // namespace brenko
