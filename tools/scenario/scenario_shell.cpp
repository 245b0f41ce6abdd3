#include "scenario/scenario.h"

namespace brenko::scenario {

void RegisterShell(Registry&) {}

}  // namespace brenko::scenario
