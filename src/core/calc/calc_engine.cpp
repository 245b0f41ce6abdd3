#include "core/calc/calc_engine.h"

#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "core/calc/combine_measures.h"
#include "core/calc/result_kinds.h"
#include "core/commands/app.h"
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
void WriteNextLines(App& app, std::initializer_list<std::string> lines) {
  TapeStore& tapes = app.tapes;
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
Next TakeFirstOperand(App& app) {
  CalcEngine& e = app.engine;
  CalculatorForm& calc = app.calculator;
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
      WriteNextLines(app, {"Circumference ", PiLine()});
      ScrollTapeToEnd(app.tapes);
      return Next::kCompute;
    case kStageCircleArea:
      AssignIfFinite(e.PendingValue, e.EntryValue * e.EntryValue);
      e.PendingText = "\"sq";
      e.CurrentValue = kPi;
      e.PendingOp = kOpMultiply;
      e.FormulaStage = kStageNone;
      calc.Label1().caption = "Pi(r\xC2\xB2) Area of circle =";
      WriteNextLines(app, {"Area of Circle ", PiLine(), entryLine});
      ScrollTapeToEnd(app.tapes);
      return Next::kCompute;
    case kStageCylinderRadius:
      AssignIfFinite(e.PendingValue, e.EntryValue * e.EntryValue * kPi);
      e.PendingText = "\"sq";
      calc.Label1().caption = "Enter length of cylinder";
      e.FormulaStage = kStageCylinderLength;
      calc.Readout().caption.clear();
      WriteNextLines(app, {"Pi(r\xC2\xB2)*l Volume of Cylinder ", PiLine(),
                           entryLine, entryLine});
      ScrollTapeToEnd(app.tapes);
      return Next::kStop;
    case kStageDiagonalSide1:
      AssignIfFinite(e.PendingValue, e.EntryValue * e.EntryValue);
      e.PendingText = "\"";
      calc.Label1().caption = "Enter length of side 2";
      e.FormulaStage = kStageDiagonalSide2;
      calc.Readout().caption.clear();
      WriteNextLines(
          app, {"Diagonal ",
                "Side1 = " + FormatLinear(e.EntryValue, app.accuracy) + " "});
      ScrollTapeToEnd(app.tapes);
      return Next::kStop;
    default:
      // A plain first operand: the operator stays pending for the next one.
      WriteNextLines(app, {TapeText(e.EntryText)});
      ScrollTapeToEnd(app.tapes);
      return Next::kStop;
  }
}

// Step 3: the entry is the second operand.
void TakeSecondOperand(App& app) {
  CalcEngine& e = app.engine;
  if (e.FormulaStage == kStageCylinderLength) {
    e.CurrentValue = e.EntryValue;
    e.CurrentText = "\"";
    e.PendingOp = kOpMultiply;
    app.calculator.Label1().caption = "Volume of cylinder =";
    e.FormulaStage = kStageNone;
  } else if (e.FormulaStage == kStageDiagonalSide2) {
    // The stage stays until the tape lines are written.
    AssignIfFinite(e.CurrentValue, e.EntryValue * e.EntryValue);
    e.CurrentText = "\"";
    e.PendingOp = kOpAdd;
    app.calculator.Label1().caption = "Diagonal =";
  } else {
    e.CurrentValue = e.EntryValue;
    e.CurrentText = e.EntryText;
  }
}

void DivideByZero(App& app) {
  CalcEngine& e = app.engine;
  app.platform.MessageBox("Can't divide by zero!", "Error", MsgButtons::kOk,
                          MsgIcon::kExclamation);
  ClearCurrentOperand(app);
  e.PendingOp = kOpNone;
  e.CurrentValue.reset();
  // The pending value is kept and shown as a bare number of inches, so that
  // a new divisor can be entered.
  app.calculator.Readout().caption =
      TrimmedNumberText(e.PendingValue.value_or(0));
}

// Step 4; false when the calculation stops here.
bool Compute(App& app) {
  CalcEngine& e = app.engine;
  // A missing operand reads as nothing, as an empty variable would.
  const double p = e.PendingValue.value_or(0);
  const double c = e.CurrentValue.value_or(0);
  double& r = e.ResultValue;
  switch (e.PendingOp) {
    case kOpNone:
    case kOpAdd:
      AssignIfFinite(r, p + c);
      e.ResultText = FormatLinear(r, app.accuracy);
      if (e.FormulaStage == kStageDiagonalSide2) {
        if (r >= 0) AssignIfFinite(r, std::sqrt(r));
        e.ResultText = FormatLinear(r, app.accuracy);
      }
      return true;
    case kOpSubtract:
      AssignIfFinite(r, p - c);
      e.ResultText = FormatLinear(r, app.accuracy);
      return true;
    case kOpMultiply: {
      AssignIfFinite(r, p * c);
      const MultiplyRule rule =
          ChooseMultiplyRule(e.PendingText, e.CurrentText);
      if (rule == MultiplyRule::kCubicTimesLengthRefused) {
        // A volume times a length has no kind the calculator can show.
        app.calculator.Readout().caption.clear();
        SignalError(app);
        return false;
      }
      e.ResultText = MultiplyResultText(rule, r, app.accuracy);
      return true;
    }
    case kOpDivide: {
      if (c == 0) {
        DivideByZero(app);
        return false;
      }
      AssignIfFinite(r, p / c);
      e.ResultText = DivideResultText(
          ChooseDivideRules(e.PendingText, e.CurrentText), r, app.accuracy);
      return true;
    }
    case kOpSquareRoot:
      // The root of a negative number cannot be taken; that step is skipped.
      if (p >= 0) AssignIfFinite(r, std::sqrt(p));
      e.ResultText = FormatLinear(r, app.accuracy);
      e.EntryText.clear();
      return true;
    default:
      // Codes 5 to 8 compute nothing: the last result stands.
      return true;
  }
}

// Step 5: the operator line, the separator and the result.
void WriteResultLines(App& app) {
  CalcEngine& e = app.engine;
  TapeStore& tapes = app.tapes;
  ReserveTapeLines(tapes, kCalculatorTape, 3);
  tapes.col = kCalculatorTape;
  std::string first;
  if (e.FormulaStage == kStageDiagonalSide2) {
    e.FormulaStage = kStageNone;
    first = "Side2 = " + FormatLinear(e.EntryValue, app.accuracy) + " ";
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

void ClearCurrentOperand(App& app) { app.engine.CurrentValue.reset(); }

void Calculate(App& app) {
  CalcEngine& e = app.engine;
  NormaliseEntry(e);
  if (!e.PendingValue.has_value()) {
    if (TakeFirstOperand(app) == Next::kStop) return;
  } else {
    TakeSecondOperand(app);
  }
  // Codes 5 to 8 (start-up leaves 5) compute nothing: they write their tape
  // lines and clean up, and the readout keeps what was keyed.
  const bool computes =
      e.PendingOp <= kOpDivide || e.PendingOp == kOpSquareRoot;
  if (!Compute(app)) return;
  WriteResultLines(app);

  // Step 6: the result becomes the pending operand of the next operation.
  const double r = e.ResultValue;
  e.PendingValue = r;
  e.CurrentValue.reset();
  e.PendingOp = kOpNone;
  e.PendingText = e.ResultText;
  e.CurrentText.clear();
  app.calculator.focus = "Equal";
  app.calculator.ActionLabel().caption.clear();
  if (!computes) return;

  // Step 7: a negative result shows its sign once; the formatted text
  // usually carries it already.
  std::string& readout = app.calculator.Readout().caption;
  if (r < 0 && (e.ResultText.empty() || e.ResultText.front() != '-')) {
    readout = "-" + e.ResultText;
  } else {
    readout = e.ResultText;
  }
}

}  // namespace brenko
