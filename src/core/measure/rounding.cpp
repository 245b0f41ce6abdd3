// Half-to-even rounding and the checked integer conversions of the
// calculator's number rules.

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

#include "core/measure/number_text.h"

namespace brenko {
namespace {

// From 2^52 on every double is a whole number.
constexpr double kAllWholeFrom = 4503599627370496.0;

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

double RoundToInteger(double x) {
  const double magnitude = std::fabs(x);
  if (!(magnitude < kAllWholeFrom)) return x;  // whole already, or NaN
  // Both steps are exact: the floor and the difference of two doubles of the
  // same binade (or the number itself when the floor is zero).
  const double floor = std::floor(magnitude);
  const double difference = magnitude - floor;
  double rounded = floor;
  if (difference > 0.5 || (difference == 0.5 && std::fmod(floor, 2.0) != 0.0)) {
    rounded = floor + 1.0;
  }
  if (rounded == 0.0) return 0.0;
  return x < 0 ? -rounded : rounded;
}

double RoundToDecimals(double x, int decimals) {
  // A whole number has nothing to round at or after the point.
  if (decimals > 0 && x == std::trunc(x)) return x;

  // Shortest decimal digits that read back to |x|, as "d.ddde+XX".
  std::array<char, 40> text{};
  const auto written =
      std::to_chars(text.data(), text.data() + text.size(), std::fabs(x),
                    std::chars_format::scientific);
  if (written.ec != std::errc()) return x;
  std::array<char, 24> digits{};
  int digit_count = 0;
  const char* p = text.data();
  for (; p != written.ptr && *p != 'e'; ++p) {
    if (IsDigit(*p) && digit_count < static_cast<int>(digits.size())) {
      digits[digit_count++] = *p;
    }
  }
  int exponent = 0;
  if (p != written.ptr) {
    ++p;
    if (*p == '+') ++p;
    std::from_chars(p, written.ptr, exponent);
  }

  // digits[k] stands for 10^(exponent - k); the last kept digit stands for
  // 10^-decimals.
  const long keep = static_cast<long>(exponent) + decimals + 1;
  if (keep >= digit_count) return x;  // no digit beyond the place
  bool up = false;
  if (keep >= 0) {
    const int next = digits[keep] - '0';
    bool rest_nonzero = false;
    for (int k = static_cast<int>(keep) + 1; k < digit_count; ++k) {
      if (digits[k] != '0') rest_nonzero = true;
    }
    const bool last_kept_odd = keep > 0 && (digits[keep - 1] - '0') % 2 != 0;
    up = next > 5 || (next == 5 && (rest_nonzero || last_kept_odd));
  }

  // The kept digits (plus one when rounding up) times 10^-decimals.
  std::array<char, 48> result_text{};
  char* out = result_text.data() + 1;  // room for a carry into a new digit
  char* const first = out;
  for (long k = 0; k < keep; ++k) *out++ = digits[k];
  if (keep <= 0) *out++ = '0';
  char* begin = first;
  if (up) {
    char* q = out;
    for (;;) {
      if (q == first) {
        *--begin = '1';
        break;
      }
      --q;
      if (*q == '9') {
        *q = '0';
      } else {
        ++*q;
        break;
      }
    }
  }
  *out++ = 'e';
  out = std::to_chars(out, result_text.data() + result_text.size(), -decimals)
            .ptr;
  double rounded = 0.0;
  const auto read = std::from_chars(begin, out, rounded);
  if (read.ec == std::errc::result_out_of_range) {
    rounded = std::numeric_limits<double>::infinity();
  } else if (read.ec != std::errc()) {
    return x;
  }
  if (rounded == 0.0) return 0.0;
  return x < 0 ? -rounded : rounded;
}

}  // namespace

double RoundHalfEven(double x, int decimals) {
  if (!std::isfinite(x)) return x;
  if (decimals == 0) return RoundToInteger(x);
  // Beyond these the place lies outside the double range altogether.
  if (decimals > 400) return x;
  if (decimals < -400) return 0.0;
  return RoundToDecimals(x, decimals);
}

bool ToInt16(double x, std::int16_t& out) {
  const double rounded = RoundHalfEven(x);
  if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
        rounded <= std::numeric_limits<std::int16_t>::max())) {
    return false;
  }
  out = static_cast<std::int16_t>(rounded);
  return true;
}

bool ToInt32(double x, std::int32_t& out) {
  const double rounded = RoundHalfEven(x);
  if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
        rounded <= std::numeric_limits<std::int32_t>::max())) {
    return false;
  }
  out = static_cast<std::int32_t>(rounded);
  return true;
}

bool CheckedAdd16(std::int16_t a, std::int16_t b, std::int16_t& out) {
  const int sum = int{a} + int{b};
  if (sum < std::numeric_limits<std::int16_t>::min() ||
      sum > std::numeric_limits<std::int16_t>::max()) {
    return false;
  }
  out = static_cast<std::int16_t>(sum);
  return true;
}

}  // namespace brenko
