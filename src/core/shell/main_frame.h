#pragma once
// The main frame MDIForm1 that holds the memory windows.

#include "core/base/window_model.h"

namespace brenko {

// What the frame's border, title and menu take of its outer size.
inline constexpr float kFrameBorderWidth = 120;
inline constexpr float kFrameBorderHeight = 450;

struct MainFrameForm {
  Rect geometry{1575, 1635, 6000, 4000};
  WindowState state = WindowState::kNormal;
  bool visible = false;
  std::string caption = "Brenko Calculator";
  // True while the arrangement itself moves or resizes the frame.
  bool arranging = false;
  // Swallows the resize events the arrangement causes.
  bool resizeToggle = false;
  // True only while the frame is being closed.
  bool closing = false;

  float InnerWidth() const { return geometry.width - kFrameBorderWidth; }
  float InnerHeight() const { return geometry.height - kFrameBorderHeight; }
};

// The frame's size after it has been closed, and its title then.
inline constexpr float kClosedFrameWidth = 2055;
inline constexpr const char* kClosedFrameCaption = "Memory";
// Where the frame goes when a saved place would put it wholly off the screen.
inline constexpr float kDefaultFrameLeft = 1575;
inline constexpr float kDefaultFrameTop = 1635;

// The frame's place from a memory file: a place that would leave no part of
// the frame on the screen is replaced by the default place (size kept).
Rect KeepFrameOnScreen(const Rect& rect, float screenWidth, float screenHeight);

}  // namespace brenko
