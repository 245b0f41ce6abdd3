#pragma once
// Help and the About box, with its button that starts the desktop's
// system-information program.

#include "core/base/platform.h"

namespace brenko {

struct App;

inline constexpr const char* kSysInfoUnavailable =
    "System Information Is Unavailable At This Time";

// What the About box shows: title, "Version " + the build's version, a
// description and the warranty notice.
AboutInfo AboutContents();

void mnuAbout_Click(App& app);
void mnuHelpContents_Click(App& app);
// The About box's "&System Info..." button.
void cmdSysInfo_Click(App& app);
void StartSysInfo(App& app);

}  // namespace brenko
