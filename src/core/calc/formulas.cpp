#include "core/calc/formulas.h"

#include "core/commands/app.h"

namespace brenko {

namespace {

// A formula already under way is carried on; the second key is ignored.
void StartFormula(App& app, std::int16_t stage, const char* prompt) {
  CalcEngine& e = app.engine;
  if (e.FormulaStage != kStageNone) return;
  e.FormulaStage = stage;
  app.calculator.Label1().caption = prompt;
  app.calculator.Readout().caption.clear();
  e.PendingValue.reset();
  e.CurrentValue.reset();
  e.PendingOp = kOpNone;
}

}  // namespace

void Circumference_Click(App& app) {
  StartFormula(app, kStageCircumference, " Enter diameter of circle");
}

void CircArea_Click(App& app) {
  StartFormula(app, kStageCircleArea, " Enter radius of circle");
}

void CylVolume_Click(App& app) {
  StartFormula(app, kStageCylinderRadius, " Enter radius of cylinder");
}

void mnuDiagonal_Click(App& app) {
  StartFormula(app, kStageDiagonalSide1, " Enter length of side 1");
}

void mnuPopUp1Circumference_Click(App& app) { Circumference_Click(app); }
void mnuPopUp1AreaofCircle_Click(App& app) { CircArea_Click(app); }
void mnuPopUp1VolumeofCylinder_Click(App& app) { CylVolume_Click(app); }
void mnuPopUp1Diagonal_Click(App& app) { mnuDiagonal_Click(app); }

}  // namespace brenko
