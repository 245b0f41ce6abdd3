#include "core/shell/version.h"

#ifndef BRENKO_VERSION_MAJOR
#define BRENKO_VERSION_MAJOR 0
#endif
#ifndef BRENKO_VERSION_MINOR
#define BRENKO_VERSION_MINOR 0
#endif
#ifndef BRENKO_VERSION_PATCH
#define BRENKO_VERSION_PATCH 0
#endif

namespace brenko {

std::string ProgramVersion() {
  return std::to_string(BRENKO_VERSION_MAJOR) + "." +
         std::to_string(BRENKO_VERSION_MINOR) + "." +
         std::to_string(BRENKO_VERSION_PATCH);
}

}  // namespace brenko
