#pragma once
// The five application-wide kept colours; the calculator's own two colours
// are read back from its controls.

#include "core/base/window_model.h"

namespace brenko {

struct KeptColors {
  ColorNumber memoryBackground = kTeal;
  ColorNumber memoryReadout = kPaleYellow;
  ColorNumber converter = kTeal;
  ColorNumber convReadout = kPaleYellow;
  ColorNumber convResult = kPaleYellow;
};

}  // namespace brenko
