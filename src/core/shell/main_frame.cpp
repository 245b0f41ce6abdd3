#include "core/shell/main_frame.h"

#include "core/commands/app.h"
#include "core/shell/arrange.h"

namespace brenko {

void MoveMainFrame(App& app, const Rect& rect) {
  Rect& geometry = app.mainFrame.geometry;
  const bool resized =
      geometry.width != rect.width || geometry.height != rect.height;
  geometry = rect;
  if (resized) MDIForm_Resize(app);
}

Rect KeepFrameOnScreen(const Rect& rect, float screenWidth,
                       float screenHeight) {
  const bool offScreen = rect.left >= screenWidth || rect.top >= screenHeight ||
                         rect.left + rect.width <= 0 ||
                         rect.top + rect.height <= 0;
  if (!offScreen) return rect;
  return {kDefaultFrameLeft, kDefaultFrameTop, rect.width, rect.height};
}

}  // namespace brenko
