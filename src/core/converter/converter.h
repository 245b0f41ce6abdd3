#pragma once
// The unit converter: a dropped value shown as feet-inch-fraction text and
// in plain inches, feet, yards and miles (or their square and cubic units
// and acres).

#include <optional>
#include <string>

#include "core/memory/drag_source.h"

namespace brenko {

struct App;

// The largest magnitude the converter's four-decimal numbers hold.
inline constexpr double kConverterNumberLimit = 922337203685477.5807;

// A result number: rounded half to even to four decimals and written with a
// leading blank when not negative, no zero before the point and no trailing
// zeros (" 1728", " .5", " .3333", "-2.25"). Nothing for a value beyond
// kConverterNumberLimit or not a number, which ends a conversion.
std::optional<std::string> ConverterNumberText(double value);

// The fixed captions of the window's layout.
inline constexpr const char* kConverterValueCaption = "Value";
inline constexpr const char* kConverterResultsCaption = "Equals";

void Converter_Form_Load(App& app);
void Converter_Form_Unload(App& app);
void Converter_Form_Resize(App& app);
void Converter_Form_DblClick(App& app);
void Converter_Form_DragOver(App& app, const DragSource& source, float x,
                             float y);
void Converter_Label1_DblClick(App& app);
void Converter_Label1_DragDrop(App& app, const DragSource& source, float x,
                               float y);

// Display, Converter: shows the converter beside the calculator, or hides
// it.
void mnuConverter_Click(App& app);

}  // namespace brenko
