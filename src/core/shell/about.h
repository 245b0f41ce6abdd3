#pragma once
// Help and the About box, with its button that starts the desktop's
// system-information program.

#include <filesystem>
#include <string>

#include "core/base/platform.h"
#include "core/memory/memory_form.h"

namespace brenko {

inline constexpr const char* kSysInfoUnavailable =
    "System Information Is Unavailable At This Time";

// The manual the Help command opens: manual.html in the program's folder.
std::filesystem::path HelpFilePath(const std::filesystem::path& programFolder);

// What the About box shows: title, "Version " + the build's version, a
// description and the warranty notice.
AboutInfo AboutContents();

// Shows the About box modally. The windows that stay on top would hide it,
// so they are released for as long as it is open.
void ShowAboutBox(Platform& platform, const MemoryState& memory);

// Starts the desktop's system-information program, or says that there is
// none.
void StartSysInfo(Platform& platform);

}  // namespace brenko
