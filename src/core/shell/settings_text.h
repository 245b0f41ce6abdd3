#pragma once
// How the start-up turns stored setting texts back into values. The store
// keeps only text; a value that does not convert leaves its variable as it
// was, and the start-up goes on.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brenko {

// A whole stored text read as a decimal number: blanks around it are allowed,
// then an optional sign, digits with at most one ".", and an optional
// exponent ("E" or "e", optional sign, digits). Anything else, an empty text
// included, is not a number. The point is "." whatever the locale.
std::optional<double> SettingToNumber(std::string_view text);

// The text-to-Boolean rule: "True" or "False" in any case, or a number (zero
// is false, any other number true). Anything else does not convert.
std::optional<bool> SettingToBoolean(std::string_view text);

// A number rounded half to even into a 16- or 32-bit field; fails for
// non-numbers and for values that do not fit.
std::optional<std::int16_t> SettingToInt16(std::string_view text);
std::optional<std::int32_t> SettingToInt32(std::string_view text);

// "True" or "False", as the shutdown writes Booleans.
const char* BooleanText(bool value);

// A window position as written at shutdown: a plain decimal number without
// the leading blank ("6305", "-120", "7.5"). The single-precision value is
// written with the digits that read back to it, not with the noise a double
// would show.
std::string PositionText(float value);

}  // namespace brenko
