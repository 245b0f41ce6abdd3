#pragma once
// Memory cells: each a small window in the main frame holding one value (the
// caption of its value label) and a tape of its own.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/base/window_model.h"

namespace brenko {

struct MemoryForm {
  std::int16_t number = 0;
  std::string caption;  // the memory's name
  Label label1;         // the value label: caption is the value, tag "memory N"
  Rect geometry;        // within the main frame's client area, twips
  ColorNumber backColor = kTeal;
  bool visible = true;
  // The picture the value label shows while a drag passes over it or while
  // it is dragged itself: "Image1" add, "Image2" subtract, "DropHere" over
  // the converter; empty for the platform's plain drag picture.
  std::string dragIcon;
};

inline constexpr float kFirstMemoryWidth = 1935;
inline constexpr float kMemoryWindowHeight = 585;
// The value label sits inside the memory window's client area; it is as wide
// as the window less kMemoryLabelMargin (borders and a little air).
inline constexpr float kMemoryLabelLeft = 60;
inline constexpr float kMemoryLabelTop = 60;
inline constexpr float kMemoryLabelHeight = 255;
inline constexpr float kMemoryLabelMargin = 240;
// The application's open windows that come before the memory windows in the
// platform's window order: Calculator, Converter, MDIForm1 and frmTape, in
// the order the start-up loads them. Walks "by window index" count them.
inline constexpr int kWindowsBeforeMemories = 4;

struct MemoryState {
  std::int16_t nextNumber = 1;     // the number the next memory will get
  std::int16_t windowCounter = 1;  // one more than the open memory windows
  std::vector<std::string> names;  // indexed by memory number (0 unused)
  float sharedWidth = kFirstMemoryWidth;
  // Open memory windows in the platform's window order (creation order).
  std::vector<std::unique_ptr<MemoryForm>> forms;
  // The memory whose tape the tape operations address; 0 = none.
  std::int16_t current = 0;
  // Guard against the resize events a memory window's own moves cause.
  bool resizing = false;
  // Path of the current memory file; empty until one is opened or saved.
  std::string filePath;

  MemoryForm* Find(int number);
};

}  // namespace brenko
