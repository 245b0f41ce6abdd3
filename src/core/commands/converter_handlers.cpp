#include "core/commands/converter_handlers.h"

#include <string>

#include "core/commands/app.h"
#include "core/converter/converter.h"
#include "core/memory/memory_drag.h"

namespace brenko {

void Converter_Form_Load(App& app) { LoadConverterModel(app.converter); }

// Closing the window by its close box unloads it; the Display menu's check
// mark follows, so that the menu never claims a converter that is not there.
// At shutdown the settings are written before this runs.
void Converter_Form_Unload(App& app) {
  app.converter.loaded = false;
  app.converter.visible = false;
  app.menus.SetChecked(MenuId::mnuConverter, false);
}

void Converter_Form_Resize(App& app) { FitConverterHeight(app.converter); }

void Converter_Form_DblClick(App& app) { ToggleConverterHeight(app.converter); }

void Converter_Form_DragOver(App& app, const DragSource& source, float, float) {
  SetSourceDragIcon(app.calculator, app.memory, source, kDropHerePicture);
}

void Converter_Label1_DblClick(App& app) { ClearConversion(app.converter); }

void Converter_Label1_DragDrop(App& app, const DragSource& source, float,
                               float) {
  std::string text;
  std::string tag;
  if (!ReadDragSource(app.calculator, app.memory, source, text, tag)) return;
  ShowConversion(app.converter, text, app.accuracy);
}

void LoadConverterWindow(App& app) {
  if (!app.converter.loaded) Converter_Form_Load(app);
}

void UnloadConverterWindow(App& app) {
  if (app.converter.loaded) Converter_Form_Unload(app);
  app.converter.visible = false;
}

void mnuConverter_Click(App& app) {
  ConverterForm& form = app.converter;
  LoadConverterWindow(app);
  if (form.visible) {
    form.visible = false;
    app.menus.SetChecked(MenuId::mnuConverter, false);
    return;
  }
  PlaceConverterBesideCalculator(form, app.calculator.geometry,
                                 app.platform.Screen().WidthTwips());
  form.visible = true;
  app.menus.SetChecked(MenuId::mnuConverter, true);
}

}  // namespace brenko
