#include "core/calc/combine_measures.h"

#include <cmath>

#include "core/measure/measure.h"
#include "core/measure/number_text.h"

namespace brenko {

namespace {

enum class Kind { kLinear, kSquare, kCubic };

bool ReadsAsZero(const std::string& text) { return LeadingNumber(text) == 0; }

}  // namespace

void SignalError(Platform& platform, CalculatorForm& calculator,
                 CalcEngine& engine) {
  platform.Beep();
  platform.Beep();
  calculator.ActionLabel().caption.clear();
  calculator.SetReadout(engine.PendingText);
  engine.PendingOp = kOpNone;
  engine.CurrentText.clear();
}

Combination CombineMeasures(std::int16_t op, int accuracy, std::string& first,
                            std::string& second, std::string& output) {
  const bool firstSquare = IsSquareText(first);
  const bool firstCubic = IsCubicText(first);
  const bool secondSquare = IsSquareText(second);
  const bool secondCubic = IsCubicText(second);

  Kind kind = Kind::kLinear;
  if (firstSquare && secondSquare) {
    kind = Kind::kSquare;
  } else if (firstCubic && secondCubic) {
    kind = Kind::kCubic;
  } else if (firstSquare || firstCubic || secondSquare || secondCubic) {
    // Different kinds only meet when the first side holds nothing yet.
    if (!ReadsAsZero(first)) {
      output = "ERROR";
      return {true, std::nullopt};
    }
    if (secondSquare) {
      kind = Kind::kSquare;
    } else if (secondCubic) {
      kind = Kind::kCubic;
    }
  }

  Combination combined;
  if (op == kOpAdd || op == kOpSubtract) {
    double a = 0;
    double b = 0;
    switch (kind) {
      case Kind::kLinear:
        a = ParseLinear(first);
        b = ParseLinear(second);
        break;
      case Kind::kSquare:
        a = ReadsAsZero(first) ? 0 : ParseSquare(first);
        b = ParseSquare(second);
        break;
      case Kind::kCubic:
        a = ReadsAsZero(first) ? 0 : ParseCubic(first);
        b = ParseCubic(second);
        break;
    }
    // An overflowing sum is a failed step: the result stays at nothing.
    double result = 0;
    const double sum = op == kOpAdd ? a + b : a - b;
    if (std::isfinite(sum)) result = sum;
    switch (kind) {
      case Kind::kLinear:
        output = FormatLinear(result, accuracy);
        break;
      case Kind::kSquare:
        output = FormatSquare(result) + " sq.";
        break;
      case Kind::kCubic:
        output = FormatCubic(result) + " cu.";
        break;
    }
    combined.result = result;
  }
  first = output;
  second.clear();
  return combined;
}

}  // namespace brenko
