#include "core/shell/about.h"

#include "core/commands/app.h"
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
template <typename Fn>
void ForEachMemoryWindow(App& app, Fn fn) {
  for (auto& form : app.memory.Forms()) {
    if (form->IsMemoryWindow()) {
      fn(*form);
    }
  }
}

void SetMemoriesTopmost(App& app, bool onTop) {
  ForEachMemoryWindow(app, [&](const MemoryForm& form) {
    app.platform.SetTopmost({WindowKind::kMemory, form.number}, onTop);
  });
}

}  // namespace

AboutInfo AboutContents() {
  AboutInfo info;
  info.title = kProgramTitle;
  info.version = "Version " + ProgramVersion();
  info.description = kDescription;
  info.disclaimer = kDisclaimer;
  return info;
}

// The modal box would hide behind windows that stay on top, so those are
// released for as long as it is open. The calculator keeps its own state
// throughout; it is only put back in its place after the tape window.
void mnuAbout_Click(App& app) {
  app.platform.SetTopmost({WindowKind::kTape, 0}, false);
  app.platform.SetTopmost({WindowKind::kConverter, 0}, false);
  SetMemoriesTopmost(app, false);

  app.platform.ShowAbout(AboutContents());

  app.platform.SetTopmost({WindowKind::kTape, 0}, true);
  app.platform.SetTopmost({WindowKind::kCalculator, 0}, true);
  app.platform.SetTopmost({WindowKind::kConverter, 0}, true);
  SetMemoriesTopmost(app, true);
}

// A missing manual is reported by the help viewer itself.
void mnuHelpContents_Click(App& app) {
  app.platform.ShowHelp(app.shell.helpFile);
}

void cmdSysInfo_Click(App& app) { StartSysInfo(app); }

void StartSysInfo(App& app) {
  if (app.platform.StartSysInfo()) return;
  app.platform.MessageBox(kSysInfoUnavailable, kProgramTitle, MsgButtons::kOk,
                          MsgIcon::kNone);
}

}  // namespace brenko
