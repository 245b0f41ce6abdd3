#pragma once
// The window icon's bitmaps as pixels, compiled in: made from data/bitmaps
// by tools/icon_pixels when building, so that giving a window its icon
// decodes nothing.

#include <cstdint>
#include <span>

namespace brenko::ui {

struct IconPixels {
  int size = 0;  // width and height
  // size x size premultiplied ARGB words, row by row from the top.
  const std::uint32_t* argb = nullptr;
};

// The bitmaps, in the order the build gave them.
std::span<const IconPixels> AppIconPixels();

}  // namespace brenko::ui
