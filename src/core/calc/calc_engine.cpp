#include "core/calc/calc_engine.h"

#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "core/calc/combine_measures.h"
#include "core/calc/result_kinds.h"
#include "core/measure/blanks.h"
#include "core/measure/measure.h"
#include "core/measure/number_text.h"

namespace brenko {

namespace {

constexpr int kCalculatorTape = 0;
constexpr const char* kSeparator = "--------------- ";

std::string PiLine() { return NumberToText(kPi) + " "; }

// Reserves as many lines on the calculator's tape as are given and writes
// them at the end of it.
void WriteNextLines(TapeStore& tapes,
                    std::initializer_list<std::string> lines) {
  const int k = static_cast<int>(lines.size());
  ReserveTapeLines(tapes, kCalculatorTape, k);
  const int count = tapes.TapeLineCount()[kCalculatorTape];
  int row = count - k + 1;
  for (const std::string& line : lines) {
    WriteTapeLine(tapes, kCalculatorTape, row++, line);
  }
}

// An arithmetic step whose result overflows (or is not a number) is passed
// over, and the target keeps what it held.
void AssignIfFinite(double& target, double value) {
  if (std::isfinite(value)) target = value;
}
void AssignIfFinite(std::optional<double>& target, double value) {
  if (std::isfinite(value)) target = value;
}

const char* OperatorMark(std::int16_t op) {
  switch (op) {
    case kOpNone:
    case kOpAdd:
      return "+";
    case kOpSubtract:
      return "-";
    case kOpMultiply:
      return "x";
    case kOpDivide:
      return "/";
    case kOpSquareRoot:
      return "SQT";
    default:
      return "";
  }
}

// Step 1: the entry as keyed, with its sign read apart.
void NormaliseEntry(CalcEngine& e) {
  e.EntryText = std::string(TrimBlanks(e.EntryText));
  if (!e.EntryText.empty() && e.EntryText.back() == '-') {
    e.EntryText.pop_back();
  }
  // ParseLinear rewrites the text it reads; the tape wants the entry as it
  // was keyed, so it reads a copy.
  if (!e.EntryText.empty() && e.EntryText.front() == '-') {
    e.EntryText.erase(0, 1);
    std::string copy = e.EntryText;
    e.EntryValue = 0 - ParseLinear(copy);
  } else {
    std::string copy = e.EntryText;
    e.EntryValue = ParseLinear(copy);
  }
}

enum class Next { kCompute, kStop };

// Step 2: no operation under way yet.
Next TakeFirstOperand(const CalcParts& parts) {
  CalcEngine& e = parts.engine;
  CalculatorForm& calc = parts.calculator;
  e.PendingValue = e.EntryValue;
  e.PendingText = e.EntryText;
  if (e.PendingOp == kOpMultiply || e.PendingOp == kOpSquareRoot) {
    // Square and square root work on the entry alone.
    e.CurrentValue = e.EntryValue;
    return Next::kCompute;
  }
  const std::string entryLine = "x " + TapeText(e.EntryText);
  switch (e.FormulaStage) {
    case kStageCircumference:
      e.CurrentValue = kPi;
      e.PendingOp = kOpMultiply;
      calc.Label1().caption = "Circumference =";
      e.FormulaStage = kStageNone;
      WriteNextLines(parts.tapes, {"Circumference ", PiLine()});
      ScrollTapeToEnd(parts.tapes);
      return Next::kCompute;
    case kStageCircleArea:
      AssignIfFinite(e.PendingValue, e.EntryValue * e.EntryValue);
      e.PendingText = "\"sq";
      e.CurrentValue = kPi;
      e.PendingOp = kOpMultiply;
      e.FormulaStage = kStageNone;
      calc.Label1().caption = "Pi(r\xC2\xB2) Area of circle =";
      WriteNextLines(parts.tapes, {"Area of Circle ", PiLine(), entryLine});
      ScrollTapeToEnd(parts.tapes);
      return Next::kCompute;
    case kStageCylinderRadius:
      AssignIfFinite(e.PendingValue, e.EntryValue * e.EntryValue * kPi);
      e.PendingText = "\"sq";
      calc.Label1().caption = "Enter length of cylinder";
      e.FormulaStage = kStageCylinderLength;
      calc.SetReadout("");
      WriteNextLines(parts.tapes, {"Pi(r\xC2\xB2)*l Volume of Cylinder ",
                                   PiLine(), entryLine, entryLine});
      ScrollTapeToEnd(parts.tapes);
      return Next::kStop;
    case kStageDiagonalSide1:
      AssignIfFinite(e.PendingValue, e.EntryValue * e.EntryValue);
      e.PendingText = "\"";
      calc.Label1().caption = "Enter length of side 2";
      e.FormulaStage = kStageDiagonalSide2;
      calc.SetReadout("");
      WriteNextLines(
          parts.tapes,
          {"Diagonal ",
           "Side1 = " + FormatLinear(e.EntryValue, parts.accuracy) + " "});
      ScrollTapeToEnd(parts.tapes);
      return Next::kStop;
    default:
      // A plain first operand: the operator stays pending for the next one.
      WriteNextLines(parts.tapes, {TapeText(e.EntryText)});
      ScrollTapeToEnd(parts.tapes);
      return Next::kStop;
  }
}

// Step 3: the entry is the second operand.
void TakeSecondOperand(const CalcParts& parts) {
  CalcEngine& e = parts.engine;
  if (e.FormulaStage == kStageCylinderLength) {
    e.CurrentValue = e.EntryValue;
    e.CurrentText = "\"";
    e.PendingOp = kOpMultiply;
    parts.calculator.Label1().caption = "Volume of cylinder =";
    e.FormulaStage = kStageNone;
  } else if (e.FormulaStage == kStageDiagonalSide2) {
    // The stage stays until the tape lines are written.
    AssignIfFinite(e.CurrentValue, e.EntryValue * e.EntryValue);
    e.CurrentText = "\"";
    e.PendingOp = kOpAdd;
    parts.calculator.Label1().caption = "Diagonal =";
  } else {
    e.CurrentValue = e.EntryValue;
    e.CurrentText = e.EntryText;
  }
}

void DivideByZero(const CalcParts& parts) {
  CalcEngine& e = parts.engine;
  parts.platform.MessageBox("Can't divide by zero!", "Error", MsgButtons::kOk,
                            MsgIcon::kExclamation);
  ClearCurrentOperand(e);
  e.PendingOp = kOpNone;
  e.CurrentValue.reset();
  // The pending value is kept and shown as a bare number of inches, so that
  // a new divisor can be entered.
  parts.calculator.SetReadout(TrimmedNumberText(e.PendingValue.value_or(0)));
}

// Step 4; false when the calculation stops here.
bool Compute(const CalcParts& parts) {
  CalcEngine& e = parts.engine;
  // A missing operand reads as nothing, as an empty variable would.
  const double p = e.PendingValue.value_or(0);
  const double c = e.CurrentValue.value_or(0);
  double& r = e.ResultValue;
  switch (e.PendingOp) {
    case kOpNone:
    case kOpAdd:
      AssignIfFinite(r, p + c);
      e.ResultText = FormatLinear(r, parts.accuracy);
      if (e.FormulaStage == kStageDiagonalSide2) {
        if (r >= 0) AssignIfFinite(r, std::sqrt(r));
        e.ResultText = FormatLinear(r, parts.accuracy);
      }
      return true;
    case kOpSubtract:
      AssignIfFinite(r, p - c);
      e.ResultText = FormatLinear(r, parts.accuracy);
      return true;
    case kOpMultiply: {
      AssignIfFinite(r, p * c);
      const MultiplyRule rule =
          ChooseMultiplyRule(e.PendingText, e.CurrentText);
      if (rule == MultiplyRule::kCubicTimesLengthRefused) {
        // A volume times a length has no kind the calculator can show.
        parts.calculator.SetReadout("");
        SignalError(parts.platform, parts.calculator, parts.engine);
        return false;
      }
      e.ResultText = MultiplyResultText(rule, r, parts.accuracy);
      return true;
    }
    case kOpDivide: {
      if (c == 0) {
        DivideByZero(parts);
        return false;
      }
      AssignIfFinite(r, p / c);
      e.ResultText = DivideResultText(
          ChooseDivideRules(e.PendingText, e.CurrentText), r, parts.accuracy);
      return true;
    }
    case kOpSquareRoot:
      // The root of a negative number cannot be taken; that step is skipped.
      if (p >= 0) AssignIfFinite(r, std::sqrt(p));
      e.ResultText = FormatLinear(r, parts.accuracy);
      e.EntryText.clear();
      return true;
    default:
      // Codes 5 to 8 compute nothing: the last result stands.
      return true;
  }
}

// Step 5: the operator line, the separator and the result.
void WriteResultLines(const CalcParts& parts) {
  CalcEngine& e = parts.engine;
  TapeStore& tapes = parts.tapes;
  ReserveTapeLines(tapes, kCalculatorTape, 3);
  tapes.col = kCalculatorTape;
  std::string first;
  if (e.FormulaStage == kStageDiagonalSide2) {
    e.FormulaStage = kStageNone;
    first = "Side2 = " + FormatLinear(e.EntryValue, parts.accuracy) + " ";
  } else {
    first =
        std::string(OperatorMark(e.PendingOp)) + " " + TapeText(e.EntryText);
  }
  const int count = tapes.TapeLineCount()[kCalculatorTape];
  WriteTapeLine(tapes, kCalculatorTape, count - 2, first);
  WriteTapeLine(tapes, kCalculatorTape, count - 1, kSeparator);
  WriteTapeLine(tapes, kCalculatorTape, count, TapeText(e.ResultText));
  ScrollTapeToEnd(tapes);
}

}  // namespace

void ClearCurrentOperand(CalcEngine& engine) { engine.CurrentValue.reset(); }

void Calculate(const CalcParts& parts) {
  CalcEngine& e = parts.engine;
  NormaliseEntry(e);
  if (!e.PendingValue.has_value()) {
    if (TakeFirstOperand(parts) == Next::kStop) return;
  } else {
    TakeSecondOperand(parts);
  }
  // Codes 5 to 8 (start-up leaves 5) compute nothing: they write their tape
  // lines and clean up, and the readout keeps what was keyed.
  const bool computes =
      e.PendingOp <= kOpDivide || e.PendingOp == kOpSquareRoot;
  if (!Compute(parts)) return;
  WriteResultLines(parts);

  AdoptResult(e, parts.calculator, computes);
}

void AdoptResult(CalcEngine& e, CalculatorForm& calc, bool show) {
  const double r = e.ResultValue;
  e.PendingValue = r;
  e.CurrentValue.reset();
  e.PendingOp = kOpNone;
  e.PendingText = e.ResultText;
  e.CurrentText.clear();
  calc.focus = "Equal";
  calc.ActionLabel().caption.clear();
  if (!show) return;

  // A negative result shows its sign once; the formatted text usually
  // carries it already.
  const bool signMissing =
      r < 0 && (e.ResultText.empty() || e.ResultText.front() != '-');
  calc.SetReadout(signMissing ? "-" + e.ResultText : e.ResultText);
}

}  // namespace brenko
