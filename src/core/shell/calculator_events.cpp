#include "core/shell/calculator_events.h"

#include "core/commands/app.h"
#include "core/commands/display_handlers.h"
#include "core/keypad/key_display.h"

namespace brenko {

void Form_MouseDown(App& app, int button) {
  if (button == kRightButton) app.platform.ShowPopupMenu("mnuPopup1");
}

void Label1_MouseDown(App& app, int button) { Form_MouseDown(app, button); }

void Form_DblClick(App& app) { ShowKeys_Click(app); }

void Label1_DblClick(App& app) { ShowKeys_Click(app); }

}  // namespace brenko
