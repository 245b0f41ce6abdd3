#include "scenario/scenario.h"

namespace brenko::scenario {

void RegisterMemory(Registry&) {}

}  // namespace brenko::scenario
