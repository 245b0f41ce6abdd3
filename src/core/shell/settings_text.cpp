#include "core/shell/settings_text.h"

#include <charconv>
#include <cmath>
#include <string>

#include "core/measure/blanks.h"
#include "core/measure/number_text.h"

namespace brenko {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    char x = a[i];
    char y = b[i];
    if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
    if (y >= 'A' && y <= 'Z') y = static_cast<char>(y - 'A' + 'a');
    if (x != y) return false;
  }
  return true;
}

// Checks the whole text against the number pattern before converting, so
// that from_chars never sees a form it would read differently.
bool IsNumberPattern(std::string_view t) {
  std::size_t i = 0;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
  std::size_t digits = 0;
  while (i < t.size() && IsDigit(t[i])) ++i, ++digits;
  if (i < t.size() && t[i] == '.') {
    ++i;
    while (i < t.size() && IsDigit(t[i])) ++i, ++digits;
  }
  if (digits == 0) return false;
  if (i < t.size() && (t[i] == 'E' || t[i] == 'e')) {
    ++i;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
    std::size_t exponent = 0;
    while (i < t.size() && IsDigit(t[i])) ++i, ++exponent;
    if (exponent == 0) return false;
  }
  return i == t.size();
}

}  // namespace

std::optional<double> SettingToNumber(std::string_view text) {
  std::string_view t = TrimBlanks(text, " \t");
  if (!IsNumberPattern(t)) return std::nullopt;
  bool negative = false;
  if (t.front() == '+' || t.front() == '-') {
    negative = t.front() == '-';
    t.remove_prefix(1);
  }
  double value = 0;
  const auto [end, error] = std::from_chars(t.data(), t.data() + t.size(),
                                            value, std::chars_format::general);
  if (end != t.data() + t.size()) return std::nullopt;
  // Out of the double range: no setting can hold such a value.
  if (error == std::errc::result_out_of_range) return std::nullopt;
  if (error != std::errc()) return std::nullopt;
  return negative ? -value : value;
}

std::optional<bool> SettingToBoolean(std::string_view text) {
  const std::string_view t = TrimBlanks(text, " \t");
  if (EqualsIgnoringCase(t, "true")) return true;
  if (EqualsIgnoringCase(t, "false")) return false;
  const std::optional<double> number = SettingToNumber(t);
  if (!number) return std::nullopt;
  return *number != 0;
}

std::optional<std::int16_t> SettingToInt16(std::string_view text) {
  const std::optional<double> number = SettingToNumber(text);
  std::int16_t out = 0;
  if (!number || !ToInt16(*number, out)) return std::nullopt;
  return out;
}

std::optional<std::int32_t> SettingToInt32(std::string_view text) {
  const std::optional<double> number = SettingToNumber(text);
  std::int32_t out = 0;
  if (!number || !ToInt32(*number, out)) return std::nullopt;
  return out;
}

const char* BooleanText(bool value) { return value ? "True" : "False"; }

std::string PositionText(float value) {
  if (!std::isfinite(value)) return TrimmedNumberText(value);
  char digits[64];
  const auto [end, error] =
      std::to_chars(digits, digits + sizeof digits, value);
  double shortest = value;
  if (error == std::errc()) {
    std::from_chars(digits, end, shortest);
  }
  return TrimmedNumberText(shortest);
}

}  // namespace brenko
