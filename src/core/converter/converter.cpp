#include "core/converter/converter.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

#include "core/measure/blanks.h"
#include "core/measure/measure.h"
#include "core/measure/number_text.h"

namespace brenko {

namespace {

inline constexpr float kConverterGap = 200;
// A height dragged to below the middle of the two sizes collapses the
// window, anything else expands it.
inline constexpr float kConverterHeightMiddle =
    (kConverterCollapsedHeight + kConverterExpandedHeight) / 2;

enum class Kind { kLength, kArea, kVolume };

// One result caption: the number and its unit text. False when the number
// overflows, which ends the conversion.
bool SetResult(ConverterForm& form, std::size_t index, double value,
               const char* unit) {
  const std::optional<std::string> number = ConverterNumberText(value);
  if (!number) return false;
  form.lblLabel[index].caption = *number + unit;
  return true;
}

}  // namespace

std::optional<std::string> ConverterNumberText(double value) {
  const double rounded = RoundHalfEven(value, 4);
  if (!(std::fabs(rounded) <= kConverterNumberLimit)) return std::nullopt;
  // Whole part and four decimals apart: the whole part alone is exact in a
  // double at every size the converter holds, the scaled value is not.
  const double magnitude = std::fabs(rounded);
  double whole = std::floor(magnitude);
  double fraction = std::nearbyint((magnitude - whole) * 10000.0);
  if (fraction >= 10000.0) {
    whole += 1;
    fraction = 0;
  }
  const auto wholeCount = static_cast<std::uint64_t>(whole);
  const auto fractionCount = static_cast<std::uint64_t>(fraction);
  const bool zero = wholeCount == 0 && fractionCount == 0;
  std::string text = (rounded < 0 && !zero) ? "-" : " ";
  if (wholeCount != 0) text += std::to_string(wholeCount);
  if (fractionCount != 0) {
    std::string digits = std::to_string(fractionCount);
    digits.insert(0, 4 - digits.size(), '0');
    while (digits.back() == '0') digits.pop_back();
    text += "." + digits;
  }
  if (zero) text += "0";
  return text;
}

void LoadConverterModel(ConverterForm& form) {
  form.loaded = true;
  form.geometry.height = kConverterCollapsedHeight;
  form.label1.caption = kConverterIdleCaption;
  form.lblLabel[0].caption = kConverterValueCaption;
  form.lblLabel[1].caption = kConverterResultsCaption;
  FitConverterLabels(form);
}

void FitConverterHeight(ConverterForm& form) {
  FitConverterLabels(form);
  const float height = form.geometry.height;
  if (height != kConverterCollapsedHeight &&
      height != kConverterExpandedHeight) {
    form.geometry.height = height < kConverterHeightMiddle
                               ? kConverterCollapsedHeight
                               : kConverterExpandedHeight;
  }
}

void ToggleConverterHeight(ConverterForm& form) {
  float& height = form.geometry.height;
  height = height == kConverterCollapsedHeight ? kConverterExpandedHeight
                                               : kConverterCollapsedHeight;
}

void ClearConversion(ConverterForm& form) {
  form.label1.caption = kConverterIdleCaption;
  for (std::size_t i = 2; i < form.lblLabel.size(); ++i) {
    form.lblLabel[i].caption.clear();
  }
  form.geometry.height = kConverterCollapsedHeight;
}

void ShowConversion(ConverterForm& form, const std::string& text,
                    int accuracy) {
  form.label1.caption = std::string(TrimBlanks(text)) + " ";
  if (form.geometry.height != kConverterExpandedHeight) {
    form.geometry.height = kConverterExpandedHeight;
  }

  Kind kind = Kind::kLength;
  if (IsCubicText(text)) {
    kind = Kind::kVolume;
  } else if (IsSquareText(text)) {
    kind = Kind::kArea;
  }
  // Every result reads the dropped text afresh; each reading gives the same
  // number.
  auto value = [&]() {
    std::string copy = text;
    switch (kind) {
      case Kind::kVolume:
        return ParseCubic(copy);
      case Kind::kArea:
        return ParseSquare(copy);
      case Kind::kLength:
        break;
    }
    return ParseLinear(copy);
  };

  // The captions are set in this order; an overflowing number ends the
  // conversion with the captions set so far.
  switch (kind) {
    case Kind::kVolume:
      if (!SetResult(form, 3, value(), "\"cu ")) return;
      form.lblLabel[2].caption = FormatCubic(value()) + "cu ";
      if (!SetResult(form, 4, value() / 1728, "'cu ")) return;
      if (!SetResult(form, 5, value() / 46656, " cy ")) return;
      form.lblLabel[6].caption.clear();
      return;
    case Kind::kArea:
      if (!SetResult(form, 3, value(), "\"sq ")) return;
      form.lblLabel[2].caption = FormatSquare(value()) + "sq ";
      if (!SetResult(form, 4, value() / 144, "'sq ")) return;
      if (!SetResult(form, 6, (value() / 144) / 43560, " acres ")) return;
      SetResult(form, 5, value() / 1296, " sy ");
      return;
    case Kind::kLength:
      if (!SetResult(form, 3, value(), "\" ")) return;
      form.lblLabel[2].caption = FormatLinear(value(), accuracy) + " ";
      if (!SetResult(form, 4, value() / 12, "' ")) return;
      if (!SetResult(form, 5, value() / 36, " yds ")) return;
      SetResult(form, 6, (value() / 12) / 5280, " miles ");
      return;
  }
}

void PlaceConverterBesideCalculator(ConverterForm& form, const Rect& calc,
                                    float screenWidth) {
  const float centre = calc.left + calc.width / 2;
  const float middle = screenWidth / 2;
  form.geometry.left = centre < middle
                           ? calc.left + calc.width + kConverterGap
                           : calc.left - form.geometry.width - kConverterGap;
}

}  // namespace brenko
