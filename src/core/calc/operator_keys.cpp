#include "core/calc/operator_keys.h"

#include <string>

#include "core/commands/app.h"

namespace brenko {

namespace {

bool Contains(const std::string& text, const char* part) {
  return text.find(part) != std::string::npos;
}

bool IsBlank(const std::string& caption) {
  return caption.empty() || caption == " ";
}

bool IsSquareOrCubic(const std::string& text) {
  return Contains(text, "sq") || Contains(text, "cu");
}

void Finish(App& app) {
  app.calculator.Label1().caption.clear();
  app.calculator.focus = "Equal";
}

// Plus and Multiply: the operator can be chosen, or changed while the readout
// is still empty, once an entry is pending.
void ChooseOperator(App& app, const char* mark, std::int16_t op) {
  CalculatorForm& calc = app.calculator;
  if (!app.engine.PendingValue.has_value()) return;
  if (IsBlank(calc.ActionLabel().caption) || calc.Readout().caption.empty()) {
    calc.ActionLabel().caption = mark;
    calc.Readout().caption.clear();
    app.engine.PendingOp = op;
  }
}

// Square and square root: with nothing pending the entry is worked on by
// itself; otherwise the pending operation is completed first and its result
// worked on.
void WorkOnEntry(App& app, const char* mark, std::int16_t op) {
  CalculatorForm& calc = app.calculator;
  CalcEngine& e = app.engine;
  if (!e.PendingValue.has_value()) {
    calc.ActionLabel().caption = mark;
    e.PendingOp = op;
    e.EntryText = calc.Readout().caption;
    Calculate(app);
  } else {
    e.EntryText = calc.Readout().caption;
    Calculate(app);
    e.PendingOp = op;
    e.EntryText = calc.Readout().caption;
    Calculate(app);
  }
}

}  // namespace

void Plus_Click(App& app) {
  // Areas and volumes are added by dragging them, not with this key.
  if (IsSquareOrCubic(app.calculator.Readout().caption)) {
    app.platform.Beep();
    return;
  }
  ChooseOperator(app, "+", kOpAdd);
  Finish(app);
}

void Minus_Click(App& app) {
  CalculatorForm& calc = app.calculator;
  std::string& readout = calc.Readout().caption;
  if (IsSquareOrCubic(readout)) {
    app.platform.Beep();
    return;
  }
  if (app.engine.PendingValue.has_value() && app.engine.PendingOp == kOpNone) {
    calc.ActionLabel().caption = "--";
    readout.clear();
    app.engine.PendingOp = kOpSubtract;
  } else if (readout.empty() || readout == " " || readout == "0.") {
    // The start of a negative entry.
    readout = "-";
  }
  Finish(app);
}

void Multiply_Click(App& app) {
  ChooseOperator(app, "x", kOpMultiply);
  Finish(app);
}

void Divide_Click(App& app) {
  CalculatorForm& calc = app.calculator;
  if (calc.ActionLabel().caption.empty() &&
      app.engine.PendingValue.has_value()) {
    calc.ActionLabel().caption = "\xC3\xB7";
    calc.Readout().caption.clear();
    app.engine.PendingOp = kOpDivide;
  } else {
    // The same key types the fraction slash. It was meant to allow only one
    // slash per entry, but it never refused one, and entries rely on that.
    calc.Readout().caption += "/";
  }
  Finish(app);
}

void Equal_Click(App& app) {
  app.calculator.ActionLabel().caption.clear();
  app.engine.EntryText = app.calculator.Readout().caption;
  Calculate(app);
}

void Square_Click(App& app) {
  const std::string& readout = app.calculator.Readout().caption;
  if (Contains(readout, "sq") || Contains(readout, "cu")) return;
  WorkOnEntry(app, "x", kOpMultiply);
  app.calculator.focus = "Equal";
}

void SquareRoot_Click(App& app) {
  // Only an area is turned away here; the test meant to turn away a volume
  // never did, and a volume is rooted like any other value.
  if (Contains(app.calculator.Readout().caption, "sq")) return;
  WorkOnEntry(app, "Sqt", kOpSquareRoot);
  app.calculator.focus = "Equal";
}

}  // namespace brenko
