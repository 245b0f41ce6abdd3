#include "core/measure/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>

namespace brenko {
namespace {

// Whole numbers below this have at most 15 digits and are written digit for
// digit, which is much cheaper than the general floating-point conversion.
constexpr double kPlainIntegerLimit = 1e15;

// Exponents read from text are clamped to this; anything near it is far out
// of the double range either way.
constexpr long kExponentClamp = 100000;

// Powers of ten that are exact doubles.
constexpr std::array<double, 23> kPowersOfTen = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// Up to this many significant digits a mantissa is an exact double.
constexpr int kExactMantissaDigits = 15;

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

char* Append(char* out, std::string_view text) {
  for (char c : text) *out++ = c;
  return out;
}

// The characters of a number collected for std::from_chars. Typical numbers
// fit the inline buffer; a longer one moves to the heap so that no digit is
// lost.
class NumberChars {
 public:
  void Push(char c) {
    if (size_ < inline_.size()) {
      inline_[size_] = c;
    } else {
      if (size_ == inline_.size()) overflow_.assign(inline_.data(), size_);
      overflow_.push_back(c);
    }
    ++size_;
  }
  const char* data() const {
    return size_ <= inline_.size() ? inline_.data() : overflow_.data();
  }
  std::size_t size() const { return size_; }

 private:
  std::array<char, 64> inline_;  // only the first size_ are read
  std::string overflow_;
  std::size_t size_ = 0;
};

// Reads the leading number of `text` as described for LeadingNumber.
double ReadLeadingNumber(std::string_view text, DashReading dash) {
  const bool dash_is_blank = dash == DashReading::kBlank;
  std::size_t i = 0;
  auto skip_blanks = [&] {
    while (i < text.size()) {
      const char c = text[i];
      if (c != ' ' && c != '\t' && c != '\n' && !(dash_is_blank && c == '-')) {
        break;
      }
      ++i;
    }
  };

  skip_blanks();
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
    negative = text[i] == '-';
    ++i;
  }

  // Mantissa.
  const std::size_t mantissa_begin = i;
  bool seen_point = false;
  bool any_digit = false;
  long integer_digits = 0;
  long fraction_digits = 0;
  // Where the first non-zero digit stands: its position among the integer
  // digits (counted from 1), or among the fraction digits.
  long first_nonzero = 0;
  bool first_nonzero_in_fraction = false;
  // The digits as an integer while there are few enough of them to be exact.
  std::uint64_t mantissa = 0;
  long significant_digits = 0;
  for (;;) {
    skip_blanks();
    if (i >= text.size()) break;
    const char c = text[i];
    if (IsDigit(c)) {
      if (seen_point) {
        ++fraction_digits;
      } else {
        ++integer_digits;
      }
      if (c != '0' && first_nonzero == 0) {
        first_nonzero = seen_point ? fraction_digits : integer_digits;
        first_nonzero_in_fraction = seen_point;
      }
      if (first_nonzero != 0 && ++significant_digits <= kExactMantissaDigits) {
        mantissa = mantissa * 10 + static_cast<std::uint64_t>(c - '0');
      }
      any_digit = true;
      ++i;
    } else if (c == '.' && !seen_point) {
      seen_point = true;
      ++i;
    } else {
      break;
    }
  }
  if (!any_digit) return 0.0;
  const std::size_t mantissa_end = i;

  // Exponent: a letter, an optional sign and at least one digit; without a
  // digit the letter is not part of the number.
  long exponent = 0;
  if (i < text.size() &&
      (text[i] == 'E' || text[i] == 'e' || text[i] == 'D' || text[i] == 'd')) {
    ++i;
    skip_blanks();
    bool exponent_negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
      exponent_negative = text[i] == '-';
      ++i;
    }
    bool exponent_digit = false;
    long value = 0;
    for (;;) {
      skip_blanks();
      if (i >= text.size() || !IsDigit(text[i])) break;
      exponent_digit = true;
      value = value * 10 + (text[i] - '0');
      if (value > kExponentClamp) value = kExponentClamp;
      ++i;
    }
    if (exponent_digit) exponent = exponent_negative ? -value : value;
  }

  if (first_nonzero == 0) return negative ? -0.0 : 0.0;

  // An exact mantissa scaled by an exact power of ten is one correctly
  // rounded operation; that covers nearly every text the calculator reads.
  if (significant_digits <= kExactMantissaDigits) {
    const long scale = exponent - fraction_digits;
    if (scale >= -22 && scale <= 22) {
      const double digits = static_cast<double>(mantissa);
      const double value = scale >= 0 ? digits * kPowersOfTen[scale]
                                      : digits / kPowersOfTen[-scale];
      return negative ? -value : value;
    }
  }
  // The first non-zero digit stands for 10^(first_place - 1) before the
  // exponent is applied: 1 for the units digit, 0 for tenths, -1 for
  // hundredths.
  const long first_place = first_nonzero_in_fraction
                               ? 1 - first_nonzero
                               : integer_digits - first_nonzero + 1;

  // Otherwise the digits go to std::from_chars as a plain "ddd.ddd": a
  // point only once a digit follows it, and a zero before a point that has
  // no digit before it.
  NumberChars chars;
  bool point_pending = false;
  for (std::size_t k = mantissa_begin; k < mantissa_end; ++k) {
    const char c = text[k];
    if (c == '.') {
      point_pending = true;
    } else if (IsDigit(c)) {  // blanks in between are left out
      if (point_pending) {
        if (chars.size() == 0) chars.Push('0');
        chars.Push('.');
        point_pending = false;
      }
      chars.Push(c);
    }
  }

  std::array<char, 24> exponent_text{};
  char* exponent_end = exponent_text.data();
  if (exponent != 0) {
    *exponent_end++ = 'e';
    exponent_end =
        std::to_chars(exponent_end, exponent_text.data() + exponent_text.size(),
                      exponent)
            .ptr;
  }
  for (const char* p = exponent_text.data(); p != exponent_end; ++p) {
    chars.Push(*p);
  }

  double value = 0.0;
  const auto result =
      std::from_chars(chars.data(), chars.data() + chars.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    // Far beyond the double range either way: the place of the leading
    // digit tells overflow from underflow.
    value = first_place + exponent > 0 ? std::numeric_limits<double>::infinity()
                                       : 0.0;
  } else if (result.ec != std::errc()) {
    value = 0.0;
  }
  return negative ? -value : value;
}

// Writes digits / 10^places without a zero before the point and without
// trailing zeros (digits is below 10^15 and places at least 1).
char* WriteScaledDecimal(std::uint64_t digits, int places, char* out) {
  while (places > 0 && digits % 10 == 0) {
    digits /= 10;
    --places;
  }
  std::array<char, 20> text{};
  const auto written =
      std::to_chars(text.data(), text.data() + text.size(), digits);
  const int count = static_cast<int>(written.ptr - text.data());
  int next = 0;
  for (; next < count - places; ++next) *out++ = text[next];
  if (places == 0) return out;
  *out++ = '.';
  for (int zeros = places - count; zeros > 0; --zeros) *out++ = '0';
  for (; next < count; ++next) *out++ = text[next];
  return out;
}

}  // namespace

char* WriteNumberText(double x, char* out) {
  if (std::isnan(x)) return Append(out, " NaN");
  if (std::isinf(x)) return Append(out, x > 0 ? " Inf" : "-Inf");
  *out++ = x < 0 ? '-' : ' ';
  const double magnitude = std::fabs(x);
  if (magnitude < kPlainIntegerLimit && magnitude == std::floor(magnitude)) {
    // Checked above: a whole number below 10^15 fits in 64 bits.
    const auto whole = static_cast<std::int64_t>(magnitude);
    return std::to_chars(out, out + 20, whole).ptr;
  }
  if (magnitude >= 1e-4 && magnitude < kPlainIntegerLimit) {
    // A decimal of at most 15 significant digits that reads back as the
    // number is exactly what 15-digit rounding gives (doubles carry more than
    // 15 digits), so a short scaled integer is written without the general
    // conversion.
    for (int places = 1; places <= 19; ++places) {
      const double scaled = magnitude * kPowersOfTen[places];
      if (scaled >= kPlainIntegerLimit) break;
      if (scaled == std::floor(scaled) &&
          scaled / kPowersOfTen[places] == magnitude) {
        return WriteScaledDecimal(static_cast<std::uint64_t>(scaled), places,
                                  out);
      }
    }
  }
  // Fifteen significant digits, plain or with an exponent exactly as "%.15g"
  // decides, but without consulting the locale.
  std::array<char, kNumberTextCapacity> digits{};
  const auto written =
      std::to_chars(digits.data(), digits.data() + digits.size(), magnitude,
                    std::chars_format::general, 15);
  const char* p = digits.data();
  if (written.ptr - p >= 2 && p[0] == '0' && p[1] == '.') ++p;
  for (; p != written.ptr; ++p) *out++ = *p == 'e' ? 'E' : *p;
  return out;
}

std::string NumberToText(double x) {
  std::array<char, kNumberTextCapacity> text{};
  char* end = WriteNumberText(x, text.data());
  return std::string(text.data(), end);
}

std::string TrimmedNumberText(double x) {
  std::array<char, kNumberTextCapacity> text{};
  char* end = WriteNumberText(x, text.data());
  char* begin = text.data();
  if (*begin == ' ') ++begin;
  return std::string(begin, end);
}

double LeadingNumber(std::string_view text, DashReading dash) {
  return ReadLeadingNumber(text, dash);
}

}  // namespace brenko
