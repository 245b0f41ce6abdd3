// Blanks around a text. The display texts, tape lines and stored settings
// are all read with the blanks around them cut, and always by these
// routines, so that every reader agrees on what a blank is.

#ifndef BRENKO_CORE_MEASURE_BLANKS_H_
#define BRENKO_CORE_MEASURE_BLANKS_H_

#include <string_view>

namespace brenko {

// `text` without the characters of `blanks` at either end (" " when not
// given; the settings reader also cuts tabs). A view into `text`.
std::string_view TrimBlanks(std::string_view text,
                            std::string_view blanks = " ");
// `text` without the blanks at its start, or at its end.
std::string_view TrimLeadingBlanks(std::string_view text);
std::string_view TrimTrailingBlanks(std::string_view text);

}  // namespace brenko

#endif  // BRENKO_CORE_MEASURE_BLANKS_H_
