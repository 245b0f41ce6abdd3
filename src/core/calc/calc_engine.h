#pragma once
// The one calculation state of the calculator. Values travel between
// operations as text; the engine keeps the operand texts only for their kind
// marks (foot, inch, "sq", "cu").

#include <cstdint>
#include <optional>
#include <string>

#include "core/base/calculator_form.h"
#include "core/base/platform.h"
#include "core/tape/tape_store.h"

namespace brenko {

// Operator codes held in PendingOp.
enum : std::int16_t {
  kOpNone = 0,
  kOpAdd = 1,
  kOpSubtract = 2,
  kOpMultiply = 3,
  kOpDivide = 4,
  kOpStartUp = 5,  // set at start-up; codes 5 to 8 compute nothing
  kOpSquareRoot = 9,
};

// Formula stages held in FormulaStage.
enum : std::int16_t {
  kStageNone = 0,
  kStageCircumference = 1,
  kStageCircleArea = 2,
  kStageCylinderRadius = 3,
  kStageCylinderLength = 33,
  kStageDiagonalSide1 = 4,
  kStageDiagonalSide2 = 44,
};

// Pi as the calculator has always used it: eight decimals, not full precision.
inline constexpr double kPi = 3.14159265;
inline constexpr const char* kPiText = "3.14159265";

struct CalcEngine {
  std::string EntryText;
  double EntryValue = 0;
  std::optional<double> PendingValue;
  std::string PendingText;
  std::optional<double> CurrentValue;
  std::string CurrentText;
  std::int16_t PendingOp = kOpNone;
  std::int16_t FormulaStage = kStageNone;
  double ResultValue = 0;
  std::string ResultText;
};

// What a calculation works on besides the engine's own state: the
// calculator window it shows in, the calculator's tape 0 it writes, the
// platform that shows its error signals, and the accuracy linear results
// are formatted to.
struct CalcParts {
  CalcEngine& engine;
  CalculatorForm& calculator;
  TapeStore& tapes;
  Platform& platform;
  int accuracy;
};

// Takes the engine's EntryText as the next operand and carries the
// operation as far as it goes: a first operand becomes pending, a second
// completes the operation, writes its tape lines and shows the result.
void Calculate(const CalcParts& parts);
void ClearCurrentOperand(CalcEngine& engine);

// The end of every completed operation, by the keys or by a drop on the
// readout: the result becomes the pending operand of the next operation,
// nothing else stays pending, Equal takes the focus and the operator
// indicator empties. With `show` the readout shows the result, its sign
// once.
void AdoptResult(CalcEngine& engine, CalculatorForm& calculator, bool show);

}  // namespace brenko
