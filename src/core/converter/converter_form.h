#pragma once
// The unit converter window: a drop label and result labels 2 to 6.

#include <array>

#include "core/base/window_model.h"

namespace brenko {

inline constexpr float kConverterCollapsedHeight = 770;
inline constexpr float kConverterExpandedHeight = 2310;
inline constexpr const char* kConverterIdleCaption = "Drop Here     ";
// The fixed captions of the window's layout.
inline constexpr const char* kConverterValueCaption = "Value";
inline constexpr const char* kConverterResultsCaption = "Equals";

// The window's layout in twips: the fixed captions in a column at the left,
// the drop label and the result labels beside them, as wide as the window
// allows. Widths follow the window (FitConverterLabels).
inline constexpr float kConverterNonClientWidth = 120;
inline constexpr float kConverterCaptionLeft = 60;
inline constexpr float kConverterCaptionWidth = 600;
inline constexpr float kConverterFieldLeft = 720;
inline constexpr float kConverterFieldMargin = 60;
inline constexpr float kConverterRowHeight = 255;
inline constexpr float kConverterDropTop = 60;
inline constexpr float kConverterResultTop = 465;
inline constexpr float kConverterResultPitch = 285;

struct ConverterForm {
  ConverterForm();
  bool loaded = false;
  bool visible = false;
  Rect geometry{0, 0, 2895, kConverterCollapsedHeight};
  ColorNumber backColor = kTeal;
  Label label1;                   // the drop target
  std::array<Label, 7> lblLabel;  // 0 and 1 fixed captions; 2 to 6 results

  bool operator==(const ConverterForm&) const = default;
};

// Widens the drop label and the result labels to the window's width.
void FitConverterLabels(ConverterForm& form);

}  // namespace brenko
