#pragma once
// The one calculation state of the calculator. Values travel between
// operations as text; the engine keeps the operand texts only for their kind
// marks (foot, inch, "sq", "cu").

#include <cstdint>
#include <optional>
#include <string>

namespace brenko {

struct App;

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

void Calculate(App& app);
void ClearCurrentOperand(App& app);

}  // namespace brenko
