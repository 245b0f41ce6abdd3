#pragma once
// The mouse button codes the core's mouse-down handlers take.

#include <Qt>

#include "core/base/window_model.h"

namespace brenko::ui {

// Left 1, right 2; any other button 4, which no handler answers.
inline int ButtonCode(Qt::MouseButton button) {
  if (button == Qt::LeftButton) return kLeftButton;
  if (button == Qt::RightButton) return kRightButton;
  return 4;
}

}  // namespace brenko::ui
