#pragma once
// The five application-wide kept colours; the calculator's own two colours
// are read back from its controls.

#include "core/base/window_model.h"

namespace brenko {

struct App;

struct KeptColors {
  ColorNumber memoryBackground = kTeal;
  ColorNumber memoryReadout = kPaleYellow;
  ColorNumber converter = kTeal;
  ColorNumber convReadout = kPaleYellow;
  ColorNumber convResult = kPaleYellow;
};

void mnuColor_Click(App& app, int index);

}  // namespace brenko
