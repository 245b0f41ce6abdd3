#include "core/shell/colors.h"

#include "core/commands/app.h"
#include "core/shell/shell_windows.h"

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

}  // namespace brenko
