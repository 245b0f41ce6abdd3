#pragma once
// The program's version as the build gives it.

#include <string>

namespace brenko {

inline constexpr const char* kProgramTitle = "Brenko Calculator";

// "major.minor.revision", each a plain integer ("1.0.12").
std::string ProgramVersion();

}  // namespace brenko
