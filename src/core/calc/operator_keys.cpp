#include "core/calc/operator_keys.h"

namespace brenko {

namespace {

bool Contains(const std::string& text, const char* part) {
  return text.find(part) != std::string::npos;
}

bool IsBlank(const std::string& caption) {
  return caption.empty() || caption == " ";
}

}  // namespace

bool IsSquareOrCubic(const std::string& text) {
  return Contains(text, "sq") || Contains(text, "cu");
}

void ChooseOperator(CalcEngine& e, CalculatorForm& calc, const char* mark,
                    std::int16_t op) {
  if (!e.PendingValue.has_value()) return;
  if (IsBlank(calc.ActionLabel().caption) || calc.Readout().caption.empty()) {
    calc.ActionLabel().caption = mark;
    calc.SetReadout("");
    e.PendingOp = op;
  }
}

void ChooseMinus(CalcEngine& e, CalculatorForm& calc) {
  const std::string& readout = calc.Readout().caption;
  if (e.PendingValue.has_value() && e.PendingOp == kOpNone) {
    calc.ActionLabel().caption = "--";
    calc.SetReadout("");
    e.PendingOp = kOpSubtract;
  } else if (readout.empty() || readout == " " || readout == "0.") {
    // The start of a negative entry.
    calc.SetReadout("-");
  }
}

void ChooseDivide(CalcEngine& e, CalculatorForm& calc) {
  if (calc.ActionLabel().caption.empty() && e.PendingValue.has_value()) {
    calc.ActionLabel().caption = "\xC3\xB7";
    calc.SetReadout("");
    e.PendingOp = kOpDivide;
  } else {
    // The same key types the fraction slash. It was meant to allow only one
    // slash per entry, but it never refused one, and entries rely on that.
    calc.Readout().caption += "/";
  }
}

void WorkOnEntry(const CalcParts& parts, const char* mark, std::int16_t op) {
  CalculatorForm& calc = parts.calculator;
  CalcEngine& e = parts.engine;
  if (!e.PendingValue.has_value()) {
    calc.ActionLabel().caption = mark;
    e.PendingOp = op;
    e.EntryText = calc.Readout().caption;
    Calculate(parts);
  } else {
    e.EntryText = calc.Readout().caption;
    Calculate(parts);
    e.PendingOp = op;
    e.EntryText = calc.Readout().caption;
    Calculate(parts);
  }
}

void FinishOperatorKey(CalculatorForm& calc) {
  calc.Label1().caption.clear();
  calc.focus = "Equal";
}

}  // namespace brenko
