#include "scenario/scenario.h"

namespace brenko::scenario {

void RegisterCalc(Registry&) {}

}  // namespace brenko::scenario
