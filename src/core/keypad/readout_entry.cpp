#include "core/keypad/readout_entry.h"

#include "core/calc/calc_engine.h"
#include "core/commands/app.h"

namespace brenko {

namespace {

constexpr const char* kFeetPiece = "'- ";

bool IsPi(const std::string& text) { return text == kPiText; }

bool HasInchMark(const std::string& text) {
  return text.find('"') != std::string::npos;
}

std::string& ReadoutText(App& app) { return app.calculator.Readout().caption; }

}  // namespace

void Number_Click(App& app, int index) {
  std::string& text = ReadoutText(app);
  if (IsPi(text)) return;
  const CalcControl* key = app.calculator.Find("Number", index);
  if (key == nullptr) return;
  if (app.engine.FormulaStage == kStageNone) {
    app.calculator.Label1().caption.clear();
  }
  // A digit is taken even after the inch mark: the guard meant for that
  // never refused one.
  if (text == kEmptyEntry) {
    text = key->label.caption;
  } else {
    text += key->label.caption;
  }
}

void Decimal_Click(App& app) {
  std::string& text = ReadoutText(app);
  if (IsPi(text)) return;
  if (text == kEmptyEntry) {
    text = ".";
    return;
  }
  if (HasInchMark(text)) return;
  const std::size_t point = text.find('.');
  const std::size_t foot = text.find('\'');
  // A second point only when the first one belonged to the feet number.
  if (point == std::string::npos ||
      (foot != std::string::npos && point < foot)) {
    text += ".";
  }
}

void Foot_Click(App& app) {
  std::string& text = ReadoutText(app);
  if (IsPi(text)) return;
  // Appended every time: the test for an existing mark never refused.
  text += kFeetPiece;
}

void Inch_Click(App& app) {
  std::string& text = ReadoutText(app);
  if (IsPi(text)) return;
  if (!HasInchMark(text)) text += "\"";
}

void Spacebar_Click(App& app) {
  std::string& text = ReadoutText(app);
  if (IsPi(text)) return;
  if (text != kEmptyEntry && !text.empty() && !HasInchMark(text)) text += " ";
}

void RemoveLastPiece(std::string& text) {
  if (text.empty() || text == kEmptyEntry) return;
  if (text.size() >= 3 && text.ends_with(kFeetPiece)) {
    text.resize(text.size() - 3);
  } else {
    text.pop_back();
  }
  if (text.empty()) text = kEmptyEntry;
}

void Backspace_Click(App& app) { RemoveLastPiece(ReadoutText(app)); }

void CancelEntry_Click(App& app) { ReadoutText(app) = kEmptyEntry; }

void Cancel_Click(App& app) {
  CalcEngine& e = app.engine;
  ReadoutText(app) = kEmptyEntry;
  e.PendingValue.reset();
  e.CurrentValue.reset();
  e.PendingOp = kOpNone;
  app.calculator.ActionLabel().caption.clear();
  app.calculator.Label1().caption.clear();
  e.FormulaStage = kStageNone;
  ClearTape(app.tapes, 0);
  ScrollTapeToEnd(app.tapes);
}

void Pi_Click(App& app) {
  std::string& text = ReadoutText(app);
  if (text.empty() || text == kEmptyEntry || text == "0" || text == "0\"") {
    text = kPiText;
    app.engine.EntryText = text;
    Calculate(CalcPartsOf(app));
  }
}

}  // namespace brenko
