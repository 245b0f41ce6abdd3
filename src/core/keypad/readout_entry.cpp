#include "core/keypad/readout_entry.h"

namespace brenko {

namespace {

constexpr const char* kFeetPiece = "'- ";

bool IsPi(const std::string& text) { return text == kPiText; }

}  // namespace

void EnterDigit(CalculatorForm& calculator, const CalcEngine& engine,
                int index) {
  std::string& text = calculator.Readout().caption;
  if (IsPi(text)) return;
  const CalcControl* key = calculator.Find("Number", index);
  if (key == nullptr) return;
  if (engine.FormulaStage == kStageNone) calculator.Label1().caption.clear();
  // A digit is taken even after the inch mark: the guard meant for that
  // never refused one.
  if (text == kEmptyEntry) {
    calculator.SetReadout(key->label.caption);
  } else {
    text += key->label.caption;
  }
}

void AddPoint(std::string& text, ReadoutMarks& marks) {
  if (IsPi(text)) return;
  if (text == kEmptyEntry) {
    text = ".";
    marks.Forget();
    return;
  }
  marks.Follow(text);
  if (marks.HasInch()) return;
  const std::size_t point = marks.FirstPoint();
  const std::size_t foot = marks.FirstFoot();
  // A second point only when the first one belonged to the feet number.
  if (point == ReadoutMarks::kNone ||
      (foot != ReadoutMarks::kNone && point < foot)) {
    text += ".";
  }
}

void AddFeetMark(std::string& text) {
  if (IsPi(text)) return;
  // Appended every time: the test for an existing mark never refused.
  text += kFeetPiece;
}

void AddInchMark(std::string& text, ReadoutMarks& marks) {
  if (IsPi(text)) return;
  marks.Follow(text);
  if (!marks.HasInch()) text += "\"";
}

void AddSpace(std::string& text, ReadoutMarks& marks) {
  if (IsPi(text)) return;
  if (text == kEmptyEntry || text.empty()) return;
  marks.Follow(text);
  if (!marks.HasInch()) text += " ";
}

void RemoveLastPiece(std::string& text, ReadoutMarks& marks) {
  if (text.empty() || text == kEmptyEntry) return;
  if (text.size() >= 3 && text.ends_with(kFeetPiece)) {
    text.resize(text.size() - 3);
  } else {
    text.pop_back();
  }
  marks.Cut(text);
  if (text.empty()) {
    text = kEmptyEntry;
    marks.Forget();
  }
}

bool EnterPi(std::string& text, CalcEngine& engine) {
  if (!(text.empty() || text == kEmptyEntry || text == "0" || text == "0\"")) {
    return false;
  }
  text = kPiText;
  engine.EntryText = text;
  return true;
}

void CancelCalculation(CalcEngine& e, CalculatorForm& calculator,
                       TapeStore& tapes) {
  calculator.SetReadout(kEmptyEntry);
  e.PendingValue.reset();
  e.CurrentValue.reset();
  e.PendingOp = kOpNone;
  calculator.ActionLabel().caption.clear();
  calculator.Label1().caption.clear();
  e.FormulaStage = kStageNone;
  ClearTape(tapes, 0);
  ScrollTapeToEnd(tapes);
}

}  // namespace brenko
