#pragma once
// The unit converter window: a drop label and result labels 2 to 6.

#include <array>

#include "core/shell/window_model.h"

namespace brenko {

inline constexpr float kConverterCollapsedHeight = 770;
inline constexpr float kConverterExpandedHeight = 2310;
inline constexpr const char* kConverterIdleCaption = "Drop Here     ";

struct ConverterForm {
  ConverterForm();
  bool loaded = false;
  bool visible = false;
  Rect geometry{0, 0, 2895, kConverterCollapsedHeight};
  ColorNumber backColor = kTeal;
  Label label1;                  // the drop target
  std::array<Label, 7> lblLabel;  // 0 and 1 fixed captions; 2 to 6 results
};

}  // namespace brenko
