#include "core/shell/startup.h"

#include "core/shell/app.h"

namespace brenko {

// First steps of the start-up; the settings, colours, zoom and companion
// windows are restored here as they are built.
void Form_Load(App& app) {
  app.calculator.loaded = true;
  app.calculator.visible = true;
  app.engine.PendingValue.reset();
  app.engine.CurrentValue.reset();
  app.engine.PendingOp = kOpStartUp;
  app.accuracy = 16;
  app.memory.nextNumber = 1;
  app.memory.windowCounter = 1;
  app.shell.designGeometry.clear();
  for (const CalcControl& c : app.calculator.controls) {
    app.shell.designGeometry.push_back(c.label.rect);
  }
  app.calculator.Readout().caption = "0.";
  app.calculator.focus = "Equal";
}

void Form_Activate(App&) {}
void Form_GotFocus(App&) {}
void Form_QueryUnload(App&) {}
void Form_Unload(App&) {}
void Exit_Click(App& app) { app.shell.quitRequested = true; }

}  // namespace brenko
