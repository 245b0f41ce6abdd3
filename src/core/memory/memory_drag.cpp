#include "core/memory/memory_drag.h"

#include <cmath>
#include <cstddef>
#include <initializer_list>

#include "core/calc/calc_engine.h"
#include "core/calc/combine_measures.h"
#include "core/commands/app.h"
#include "core/measure/blanks.h"
#include "core/measure/measure.h"
#include "core/measure/number_text.h"
#include "core/memory/memory_cells.h"

namespace brenko {

namespace {

inline constexpr int kCalculatorTape = 0;
// Memory tapes draw the line above a result one hyphen longer than the
// calculator's tape does; the two have always differed.
inline constexpr const char* kMemorySeparator = "---------------- ";
inline constexpr const char* kCalculatorSeparator = "--------------- ";
inline constexpr const char* kTimesCaption = "x";
inline constexpr const char* kDivideCaption = "\xC3\xB7";  // "÷"

bool Has(std::string_view text, std::string_view mark) {
  return text.find(mark) != std::string_view::npos;
}

bool HasFootOrInch(std::string_view text) {
  return Has(text, "'") || Has(text, "\"");
}

// The kind checks of a drop on the readout, made before anything changes.
bool DropKindsAgree(const CalcEngine& engine, std::string_view p,
                    std::string_view d) {
  const bool dSquare = Has(d, "sq");
  const bool dCubic = Has(d, "cu");
  switch (engine.PendingOp) {
    case kOpMultiply:
      if (Has(p, "sq")) return !dSquare && !dCubic;
      if (HasFootOrInch(p)) return !dCubic;
      return true;
    case kOpDivide:
      if (Has(p, "cu")) return true;
      if (Has(p, "sq")) return !dCubic;
      return !dSquare && !dCubic;
    case kOpAdd:
    case kOpSubtract:
      break;
    case kOpNone:
      if (!engine.PendingValue) return true;
      break;
    default:
      return true;
  }
  if (Has(p, "cu")) return dCubic;
  if (Has(p, "sq")) return dSquare;
  return !dSquare && !dCubic;
}

// The readout's drop with an addition or subtraction under way: the engine's
// add and subtract step, with the dropped value as the right operand and the
// side of the drop as the operator. The operator line is the drop's own
// (" + D "), the result lines are the calculator's.
void CombineWithPending(App& app, bool add, double value,
                        const std::string& text) {
  CalcEngine& e = app.engine;
  e.PendingOp = add ? kOpAdd : kOpSubtract;
  e.CurrentValue = value;
  e.CurrentText = text;
  const double pending = e.PendingValue.value_or(0);
  const double sum = add ? pending + value : pending - value;
  // An overflowing sum is a failed step: the last result stays.
  if (std::isfinite(sum)) e.ResultValue = sum;
  e.ResultText = FormatLinear(e.ResultValue, app.accuracy);
  AppendTapeLines(app.tapes, kCalculatorTape,
                  {(add ? " + " : " - ") + text + " ", kCalculatorSeparator,
                   TapeText(e.ResultText)});
  ScrollTapeToEnd(app.tapes);
  AdoptResult(e, app.calculator, true);
}

}  // namespace

bool ReadDragSource(const App& app, const DragSource& source,
                    std::string& caption, std::string& tag) {
  if (source.kind == DragSource::kReadout) {
    caption = app.calculator.Readout().caption;
    tag = app.calculator.Readout().tag;
    return true;
  }
  for (const auto& form : app.memory.forms) {
    if (form->number == source.memoryNumber) {
      caption = form->label1.caption;
      tag = form->label1.tag;
      return true;
    }
  }
  return false;
}

void SetSourceDragIcon(App& app, const DragSource& source,
                       const std::string& picture) {
  if (source.kind == DragSource::kReadout) {
    app.calculator.readoutDragIcon = picture;
  } else if (MemoryForm* form = app.memory.Find(source.memoryNumber)) {
    form->dragIcon = picture;
  }
}

float ReadoutMidpoint(const Label& readout) {
  return readout.rect.left + readout.rect.width / 2.0f;
}

float MemoryMidpoint(const Label& valueLabel) {
  return valueLabel.rect.top + valueLabel.rect.width / 2.0f;
}

bool Readout_MouseDown(App& app, int button) {
  if (button == 1) {
    app.calculator.readoutDragIcon = kPlainPicture;
    return true;
  }
  if (button == 2) app.platform.ShowPopupMenu("mnuPopup1");
  return false;
}

void Readout_DragOver(App& app, const DragSource& source, float x, float) {
  const CalculatorForm& calc = app.calculator;
  const Label& readout = calc.Readout();
  const std::string& action = calc.ActionLabel().caption;
  std::string picture;
  if (action == kTimesCaption) {
    picture = kMultiplyPicture;
  } else if (action == kDivideCaption) {
    picture = kDividePicture;
  } else if (x >= readout.rect.left &&
             x <= readout.rect.left + readout.rect.width) {
    picture = x >= ReadoutMidpoint(readout) ? kAddPicture : kSubtractPicture;
  } else {
    return;
  }
  app.calculator.readoutDragIcon = picture;
  SetSourceDragIcon(app, source, picture);
}

void Readout_DragDrop(App& app, const DragSource& source, float x, float) {
  std::string dropped;
  std::string tag;
  if (!ReadDragSource(app, source, dropped, tag)) return;
  CalcEngine& e = app.engine;
  if (!DropKindsAgree(e, e.PendingText, dropped)) {
    SignalError(app.platform, app.calculator, app.engine);
    return;
  }
  app.tapeWindow.title.caption = "Calculator";
  app.tapes.ShownTape = kCalculatorTape;
  app.tapes.leftCol = kCalculatorTape;

  // A value shown with a sign mark is entered by its magnitude; the side of
  // the drop gives the sign.
  std::string magnitude(TrimBlanks(dropped));
  if (!magnitude.empty() && magnitude.back() == '-') magnitude.pop_back();
  if (!magnitude.empty() && magnitude.front() == '-') magnitude.erase(0, 1);
  std::string reading = magnitude;
  double value = ParseLinear(reading);
  const bool add = x >= ReadoutMidpoint(app.calculator.Readout());

  if (!e.PendingValue) {
    if (add) {
      AppendTapeLines(app.tapes, kCalculatorTape, {" + " + magnitude + " "});
      e.PendingText = dropped;
    } else {
      value = 0 - value;
      AppendTapeLines(app.tapes, kCalculatorTape, {" - " + magnitude + " "});
      app.calculator.Readout().caption = "-" + dropped;
      e.PendingText = "-" + dropped;
    }
    e.PendingValue = value;
    e.PendingOp = kOpNone;
    ScrollTapeToEnd(app.tapes);
    return;
  }
  if (e.PendingOp == kOpMultiply || e.PendingOp == kOpDivide) {
    // The dropped value is the second operand, exactly as if it had been
    // keyed and Equal pressed.
    app.calculator.ActionLabel().caption.clear();
    e.EntryText = magnitude;
    Calculate(CalcPartsOf(app));
    return;
  }
  CombineWithPending(app, add, value, magnitude);
}

void MemoryForm_Label1_DragOver(App& app, int number, const DragSource& source,
                                float x, float) {
  MemoryForm* target = app.memory.Find(number);
  if (target == nullptr) return;
  const char* picture =
      x >= MemoryMidpoint(target->label1) ? kAddPicture : kSubtractPicture;
  target->dragIcon = picture;
  SetSourceDragIcon(app, source, picture);
}

void MemoryForm_Label1_DragDrop(App& app, int number, const DragSource& source,
                                float x, float) {
  MemoryForm* target = app.memory.Find(number);
  if (target == nullptr) return;
  std::string dropped;
  std::string tag;
  if (!ReadDragSource(app, source, dropped, tag)) return;
  MakeCurrentMemory(app, number);
  TapeStore& tapes = app.tapes;

  if (tag == target->label1.tag) {
    // Dropped onto itself: cleared, not doubled.
    target->label1.caption = "0.";
    ClearTape(tapes, number);
    ScrollTapeToEnd(tapes);
    return;
  }

  std::string old = target->label1.caption;
  std::string added = dropped;
  const bool add = x >= MemoryMidpoint(target->label1);
  const bool lineWritten = AppendTapeLines(
      tapes, number, {(add ? " + " : " - ") + TapeText(dropped)});
  std::string result;
  const Combination combined = CombineMeasures(
      add ? kOpAdd : kOpSubtract, app.accuracy, old, added, result);
  if (combined.refused) SignalError(app.platform, app.calculator, app.engine);
  if (combined.result) app.engine.ResultValue = *combined.result;
  // The sum leaves no operator pending.
  app.engine.PendingOp = kOpNone;

  if (combined.refused) {
    // The sum was refused: its operator line comes off the tape again.
    if (lineWritten) tapes.TakeBackLastLine(number);
    return;
  }
  target->label1.caption = result + " ";
  AppendTapeLines(tapes, number, {kMemorySeparator, TapeText(result)});
  ScrollTapeToEnd(tapes);
  app.calculator.readoutDragIcon = kPlainPicture;
  RefitMemoryWidths(app, true);
}

}  // namespace brenko
