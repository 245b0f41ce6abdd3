#pragma once
// The unit converter: a dropped value shown as feet-inch-fraction text and
// in plain inches, feet, yards and miles (or their square and cubic units
// and acres).

#include <optional>
#include <string>

#include "core/base/window_model.h"
#include "core/converter/converter_form.h"

namespace brenko {

// The largest magnitude the converter's four-decimal numbers hold.
inline constexpr double kConverterNumberLimit = 922337203685477.5807;

// A result number: rounded half to even to four decimals and written with a
// leading blank when not negative, no zero before the point and no trailing
// zeros (" 1728", " .5", " .3333", "-2.25"). Nothing for a value beyond
// kConverterNumberLimit or not a number, which ends a conversion.
std::optional<std::string> ConverterNumberText(double value);

// The window as its load leaves it: collapsed, waiting for a drop.
void LoadConverterModel(ConverterForm& form);
// A size the user gave the window: the labels follow its width, and its
// height snaps to the nearer of the two heights.
void FitConverterHeight(ConverterForm& form);
// Collapsed becomes expanded and the other way round.
void ToggleConverterHeight(ConverterForm& form);
// Back to waiting for a drop, collapsed, with no results.
void ClearConversion(ConverterForm& form);
// Shows a dropped value `text` and its conversions, the window expanded;
// lengths are written at `accuracy`.
void ShowConversion(ConverterForm& form, const std::string& text, int accuracy);
// Beside the calculator `calc`, on the side of the screen with more room.
void PlaceConverterBesideCalculator(ConverterForm& form, const Rect& calc,
                                    float screenWidth);

}  // namespace brenko
