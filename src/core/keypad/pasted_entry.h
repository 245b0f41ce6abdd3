#pragma once
// Values that come from other programs (the clipboard, a drop of text) and
// values that go to them. Only a measurement in the program's own notation
// is taken in: what the readout shows (` 12'- 7 3/16"`, `- 7 1/2"`,
// `54'- 42 3/4" sq.`) and what the measurement reader takes (`12'-7-3/16"`,
// `2.5'`, `151.1875`, `3/16"`, `12 sq`).

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace brenko {

// Longer texts are refused whole: no readout shows that much.
inline constexpr std::size_t kMaxPastedLength = 64;

// True when the whole text (already trimmed) is one measurement.
bool IsMeasurementText(std::string_view text);

// The entry a text from outside makes: its first line with blanks trimmed,
// when that is one measurement of at most kMaxPastedLength characters and no
// other line holds anything. Nothing for any other text.
std::optional<std::string> PastedMeasurement(std::string_view text);

// A shown value as another program should get it: without the blanks the
// readout and the memories put around their values.
std::string ValueForExport(std::string_view caption);

}  // namespace brenko
