#pragma once
// Plain pieces every window model is made of. Positions and sizes are in twips
// (1/1440 inch) and held in single precision, as the windows themselves keep
// them; the Qt layer converts to pixels when it draws.

#include <cstdint>
#include <string>

namespace brenko {

// Colour numbers: red + 256 * green + 65536 * blue.
using ColorNumber = std::int32_t;
inline constexpr ColorNumber kTeal = 8421376;        // backgrounds
inline constexpr ColorNumber kPaleYellow = 8454143;  // readouts

struct Rect {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  bool operator==(const Rect&) const = default;
};

enum class WindowState { kNormal, kMinimized, kMaximized };

// Mouse button codes as the mouse-down handlers receive them.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

// A caption-carrying control: label, readout, button.
struct Label {
  std::string caption;
  std::string tag;
  ColorNumber backColor = kPaleYellow;
  Rect rect;
  float fontSize = 0;  // points; 0 = the window's default
  bool visible = true;
  bool operator==(const Label&) const = default;
};

}  // namespace brenko
