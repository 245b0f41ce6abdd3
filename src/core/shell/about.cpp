#include "core/shell/about.h"

#include "core/shell/version.h"

namespace brenko {

namespace {

constexpr const char* kDescription =
    "A calculator for carpenters, estimators and builders that works in "
    "feet, inches and fractions of an inch, with a paper tape, memory cells "
    "and a unit converter.\r\n"
    "Brenko Calculator is free software; report problems and send "
    "suggestions to its maintainers.";

constexpr const char* kDisclaimer =
    "This program is provided \"as is\", without warranty of any kind, "
    "express or implied, including but not limited to the warranties of "
    "merchantability, fitness for a particular purpose and noninfringement. "
    "In no event shall the authors or copyright holders be liable for any "
    "claim, damages or other liability arising from, out of or in connection "
    "with the program or its use. Check important measurements by hand.";

// Every open memory window, in the order the windows were opened.
void SetMemoriesTopmost(Platform& platform, const MemoryState& memory,
                        bool onTop) {
  for (const auto& form : memory.Forms()) {
    if (form->IsMemoryWindow()) {
      platform.SetTopmost({WindowKind::kMemory, form->number}, onTop);
    }
  }
}

}  // namespace

std::filesystem::path HelpFilePath(const std::filesystem::path& programFolder) {
  return programFolder / "manual.html";
}

AboutInfo AboutContents() {
  AboutInfo info;
  info.title = kProgramTitle;
  info.version = "Version " + ProgramVersion();
  info.description = kDescription;
  info.disclaimer = kDisclaimer;
  return info;
}

// The calculator keeps its own state throughout; it is only put back in its
// place after the tape window.
void ShowAboutBox(Platform& platform, const MemoryState& memory) {
  platform.SetTopmost({WindowKind::kTape, 0}, false);
  platform.SetTopmost({WindowKind::kConverter, 0}, false);
  SetMemoriesTopmost(platform, memory, false);

  platform.ShowAbout(AboutContents());

  platform.SetTopmost({WindowKind::kTape, 0}, true);
  platform.SetTopmost({WindowKind::kCalculator, 0}, true);
  platform.SetTopmost({WindowKind::kConverter, 0}, true);
  SetMemoriesTopmost(platform, memory, true);
}

void StartSysInfo(Platform& platform) {
  if (platform.StartSysInfo()) return;
  platform.MessageBox(kSysInfoUnavailable, kProgramTitle, MsgButtons::kOk,
                      MsgIcon::kNone);
}

}  // namespace brenko
