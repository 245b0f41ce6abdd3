#include "core/memory/memory_drag.h"

#include <cmath>
#include <cstddef>

#include "core/calc/combine_measures.h"
#include "core/measure/blanks.h"
#include "core/measure/measure.h"

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
void CombineWithPending(const CalcParts& parts, bool add, double value,
                        const std::string& text) {
  CalcEngine& e = parts.engine;
  e.PendingOp = add ? kOpAdd : kOpSubtract;
  e.CurrentValue = value;
  e.CurrentText = text;
  const double pending = e.PendingValue.value_or(0);
  const double sum = add ? pending + value : pending - value;
  // An overflowing sum is a failed step: the last result stays.
  if (std::isfinite(sum)) e.ResultValue = sum;
  e.ResultText = FormatLinear(e.ResultValue, parts.accuracy);
  AppendTapeLines(parts.tapes, kCalculatorTape,
                  {(add ? " + " : " - ") + text + " ", kCalculatorSeparator,
                   TapeText(e.ResultText)});
  ScrollTapeToEnd(parts.tapes);
  AdoptResult(e, parts.calculator, true);
}

}  // namespace

bool ReadDragSource(const CalculatorForm& calculator, const MemoryState& memory,
                    const DragSource& source, std::string& caption,
                    std::string& tag) {
  if (source.kind == DragSource::kReadout) {
    caption = calculator.Readout().caption;
    tag = calculator.Readout().tag;
    return true;
  }
  if (source.kind == DragSource::kText) {
    // No control of ours: it can be no memory's own value dropped back.
    caption = source.text;
    tag.clear();
    return true;
  }
  const MemoryForm* form = memory.Find(source.memoryNumber);
  if (form == nullptr) return false;
  caption = form->label1.caption;
  tag = form->label1.tag;
  return true;
}

std::string SourceDragIcon(const CalculatorForm& calculator,
                           const MemoryState& memory,
                           const DragSource& source) {
  std::string picture;
  if (source.kind == DragSource::kReadout) {
    picture = calculator.readoutDragIcon;
  } else if (source.kind == DragSource::kText) {
    // Another program draws its own drag.
  } else if (const MemoryForm* form = memory.Find(source.memoryNumber)) {
    picture = form->dragIcon;
  }
  return picture.empty() ? std::string(kPlainPicture) : picture;
}

void SetSourceDragIcon(CalculatorForm& calculator, MemoryState& memory,
                       const DragSource& source, const std::string& picture) {
  if (source.kind == DragSource::kReadout) {
    calculator.readoutDragIcon = picture;
  } else if (source.kind == DragSource::kText) {
    // No control of ours carries the picture.
  } else if (MemoryForm* form = memory.Find(source.memoryNumber)) {
    form->dragIcon = picture;
  }
}

float ReadoutMidpoint(const Label& readout) {
  return readout.rect.left + readout.rect.width / 2.0f;
}

float MemoryMidpoint(const Label& valueLabel) {
  return valueLabel.rect.top + valueLabel.rect.width / 2.0f;
}

const char* ReadoutDragPicture(const CalculatorForm& calculator, float x) {
  const Label& readout = calculator.Readout();
  const std::string& action = calculator.ActionLabel().caption;
  if (action == kTimesCaption) return kMultiplyPicture;
  if (action == kDivideCaption) return kDividePicture;
  if (x >= readout.rect.left && x <= readout.rect.left + readout.rect.width) {
    return x >= ReadoutMidpoint(readout) ? kAddPicture : kSubtractPicture;
  }
  return nullptr;
}

const char* MemoryDragPicture(const MemoryForm& target, float x) {
  return x >= MemoryMidpoint(target.label1) ? kAddPicture : kSubtractPicture;
}

void DropOnReadout(const CalcParts& parts, TapeWindowForm& tapeWindow,
                   const std::string& dropped, bool add) {
  CalcEngine& e = parts.engine;
  if (!DropKindsAgree(e, e.PendingText, dropped)) {
    SignalError(parts.platform, parts.calculator, e);
    return;
  }
  tapeWindow.title.caption = "Calculator";
  parts.tapes.ShownTape = kCalculatorTape;
  parts.tapes.leftCol = kCalculatorTape;

  // A value shown with a sign mark is entered by its magnitude; the side of
  // the drop gives the sign.
  std::string magnitude(TrimBlanks(dropped));
  if (!magnitude.empty() && magnitude.back() == '-') magnitude.pop_back();
  if (!magnitude.empty() && magnitude.front() == '-') magnitude.erase(0, 1);
  std::string reading = magnitude;
  double value = ParseLinear(reading);

  if (!e.PendingValue) {
    if (add) {
      AppendTapeLines(parts.tapes, kCalculatorTape, {" + " + magnitude + " "});
      e.PendingText = dropped;
    } else {
      value = 0 - value;
      AppendTapeLines(parts.tapes, kCalculatorTape, {" - " + magnitude + " "});
      parts.calculator.SetReadout("-" + dropped);
      e.PendingText = "-" + dropped;
    }
    e.PendingValue = value;
    e.PendingOp = kOpNone;
    ScrollTapeToEnd(parts.tapes);
    return;
  }
  if (e.PendingOp == kOpMultiply || e.PendingOp == kOpDivide) {
    // The dropped value is the second operand, exactly as if it had been
    // keyed and Equal pressed.
    parts.calculator.ActionLabel().caption.clear();
    e.EntryText = magnitude;
    Calculate(parts);
    return;
  }
  CombineWithPending(parts, add, value, magnitude);
}

bool DropOnMemory(MemoryForm& target, const std::string& dropped,
                  const std::string& tag, bool add, const CalcParts& parts) {
  TapeStore& tapes = parts.tapes;
  const int number = target.number;
  if (tag == target.label1.tag) {
    // Dropped onto itself: cleared, not doubled.
    target.label1.caption = "0.";
    ClearTape(tapes, number);
    ScrollTapeToEnd(tapes);
    return false;
  }

  std::string old = target.label1.caption;
  std::string added = dropped;
  const bool lineWritten = AppendTapeLines(
      tapes, number, {(add ? " + " : " - ") + TapeText(dropped)});
  std::string result;
  const Combination combined = CombineMeasures(
      add ? kOpAdd : kOpSubtract, parts.accuracy, old, added, result);
  if (combined.refused) {
    SignalError(parts.platform, parts.calculator, parts.engine);
  } else if (combined.result) {
    parts.engine.ResultValue = *combined.result;
  }
  // The sum leaves no operator pending, refused or not.
  parts.engine.PendingOp = kOpNone;

  if (combined.refused) {
    // The sum was refused: its operator line comes off the tape again.
    if (lineWritten) tapes.TakeBackLastLine(number);
    return false;
  }
  target.label1.caption = result + " ";
  AppendTapeLines(tapes, number, {kMemorySeparator, TapeText(result)});
  ScrollTapeToEnd(tapes);
  parts.calculator.readoutDragIcon = kPlainPicture;
  return true;
}

}  // namespace brenko
