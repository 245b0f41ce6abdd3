#include "core/commands/shell_handlers.h"

#include <cstddef>
#include <optional>

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/display_handlers.h"
#include "core/shell/about.h"

namespace brenko {

namespace {

// The picker always opens on pure red, whatever the target's colour now.
constexpr ColorNumber kPickerStart = 255;

}  // namespace

void mnuColor_Click(App& app, int index) {
  if (index < 0 || index > 6) return;
  const std::optional<ColorNumber> picked =
      app.platform.PickColor(kPickerStart);
  // A cancelled picker changes nothing.
  if (!picked) return;
  const ColorNumber p = *picked;
  switch (index) {
    case 0:
      // The Qt layer repaints from the model, readout frame included.
      app.calculator.backColor = p;
      break;
    case 1:
      app.calculator.Readout().backColor = p;
      break;
    case 2:
      app.colors.memoryBackground = p;
      for (auto& form : app.memory.Forms()) {
        if (form->IsMemoryWindow()) form->backColor = p;
      }
      break;
    case 3:
      app.colors.memoryReadout = p;
      for (auto& form : app.memory.Forms()) {
        if (form->IsMemoryWindow()) form->label1.backColor = p;
      }
      break;
    case 4:
      // The converter's colours are set even while it is closed, so that it
      // shows them when it opens.
      LoadConverterWindow(app);
      app.converter.backColor = p;
      app.colors.converter = p;
      break;
    case 5:
      LoadConverterWindow(app);
      app.converter.label1.backColor = p;
      app.colors.convReadout = p;
      break;
    case 6:
      LoadConverterWindow(app);
      for (std::size_t i = 2; i <= 6; ++i) {
        app.converter.lblLabel[i].backColor = p;
      }
      app.colors.convResult = p;
      break;
  }
}

void mnuAbout_Click(App& app) { ShowAboutBox(app.platform, app.memory); }

// A missing manual is reported by the help viewer itself.
void mnuHelpContents_Click(App& app) {
  app.platform.ShowHelp(app.shell.helpFile);
}

void cmdSysInfo_Click(App& app) { StartSysInfo(app.platform); }

void Form_MouseDown(App& app, int button) {
  if (button == kRightButton) app.platform.ShowPopupMenu("mnuPopup1");
}

void Label1_MouseDown(App& app, int button) { Form_MouseDown(app, button); }

void Form_DblClick(App& app) { ShowKeys_Click(app); }

void Label1_DblClick(App& app) { ShowKeys_Click(app); }

void mnuPopup1Cancel_Click(App&) {}

}  // namespace brenko
