#pragma once
// Colour numbers as the program keeps them (red + 256 * green + 65536 * blue)
// to and from Qt colours.

#include <QColor>

#include "core/base/window_model.h"

namespace brenko::ui {

inline QColor ToQColor(ColorNumber color) {
  const auto value = static_cast<std::uint32_t>(color);
  return QColor(static_cast<int>(value & 0xFFu),
                static_cast<int>((value >> 8) & 0xFFu),
                static_cast<int>((value >> 16) & 0xFFu));
}

inline ColorNumber ToColorNumber(const QColor& color) {
  return static_cast<ColorNumber>(color.red() + 256 * color.green() +
                                  65536 * color.blue());
}

}  // namespace brenko::ui
