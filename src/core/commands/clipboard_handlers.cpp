#include "core/commands/clipboard_handlers.h"

#include <algorithm>
#include <optional>

#include "core/commands/app.h"
#include "core/keypad/pasted_entry.h"
#include "core/measure/blanks.h"

namespace brenko {

std::string Calculator_CopyText(const App& app) {
  return ValueForExport(app.calculator.Readout().caption);
}

std::string MemoryForm_CopyText(const App& app, int number) {
  const MemoryForm* form = app.memory.Find(number);
  return form == nullptr ? std::string() : ValueForExport(form->label1.caption);
}

std::string TapeForm_CopyText(const App& app, const std::vector<int>& rows) {
  const std::vector<std::string> lines =
      TapeLines(app.tapes, app.tapes.ShownTape);
  const int count = static_cast<int>(lines.size());
  // Only the tape's lines count: a picked heading (row 0) or an empty row
  // below the tape is no line, and picking no line copies the whole tape.
  std::vector<int> wanted;
  for (const int row : rows) {
    if (row >= 1 && row <= count) wanted.push_back(row);
  }
  if (wanted.empty()) {
    for (int row = 1; row <= count; ++row) wanted.push_back(row);
  }
  std::sort(wanted.begin(), wanted.end());
  wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());
  std::string text;
  bool first = true;
  for (const int row : wanted) {
    if (!first) text += '\n';
    first = false;
    text += TrimTrailingBlanks(lines[static_cast<std::size_t>(row - 1)]);
  }
  return text;
}

bool Readout_Paste(App& app, std::string_view clipboard) {
  const std::optional<std::string> entry = PastedMeasurement(clipboard);
  if (!entry) {
    app.platform.Beep();
    return false;
  }
  if (app.engine.FormulaStage == kStageNone) {
    app.calculator.Label1().caption.clear();
  }
  app.calculator.SetReadout(*entry);
  return true;
}

}  // namespace brenko
