#include "core/base/calculator_form.h"

#include <utility>

namespace brenko {

namespace {

constexpr float kKeyLeft = 185;
constexpr float kKeyPitchX = 462;
constexpr float kKeyWidth = 410;
constexpr float kKeyTop = 900;
constexpr float kKeyPitchY = 480;
constexpr float kKeyHeight = 420;

}  // namespace

std::vector<CalcControl> DesignControls(std::span<const KeyDesign> keys) {
  std::vector<CalcControl> controls;
  CalcControl readout{"Readout", -1, {}, false};
  readout.label.caption = "0.";
  readout.label.backColor = kPaleYellow;
  readout.label.rect = {185, 120, 3180, 450};
  readout.label.fontSize = 13.5f;
  controls.push_back(readout);

  CalcControl action{"ActionLabel", -1, {}, false};
  action.label.backColor = kTeal;
  action.label.rect = {185, 600, 450, 270};
  controls.push_back(action);

  CalcControl prompt{"Label1", -1, {}, false};
  prompt.label.backColor = kTeal;
  prompt.label.rect = {700, 600, 2665, 270};
  controls.push_back(prompt);

  for (const KeyDesign& k : keys) {
    CalcControl key{k.name, k.index, {}, true};
    key.label.caption = k.caption;
    key.label.rect = {kKeyLeft + kKeyPitchX * static_cast<float>(k.column),
                      kKeyTop + kKeyPitchY * static_cast<float>(k.row),
                      kKeyWidth, kKeyHeight};
    controls.push_back(key);
  }
  return controls;
}

CalculatorForm::CalculatorForm(std::vector<CalcControl> designed)
    : controls(std::move(designed)) {}

CalcControl* CalculatorForm::Find(const std::string& name, int index) {
  for (CalcControl& c : controls) {
    if (c.name == name && c.index == index) return &c;
  }
  return nullptr;
}

const CalcControl* CalculatorForm::Find(const std::string& name,
                                        int index) const {
  for (const CalcControl& c : controls) {
    if (c.name == name && c.index == index) return &c;
  }
  return nullptr;
}

}  // namespace brenko
