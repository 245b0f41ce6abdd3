#pragma once
// The rules the models keep whatever the user does, checked after every
// action by the random-use test and after every step by the key-stream
// fuzz target: one list, so both hold the program to the same rules.

#include <cstddef>
#include <sstream>
#include <string>

#include "core/commands/app.h"
#include "core/commands/menus.h"
#include "core/converter/converter_form.h"
#include "core/measure/measure.h"

namespace brenko::testing_support {

// What breaks a rule, in words ("" when every rule holds). The readout may
// be at most `readoutLimit` characters long: nothing caps it, but it only
// grows a little at a time.
inline std::string BrokenModelRules(const App& app, std::size_t readoutLimit) {
  std::ostringstream broken;
  const TapeStore& tapes = app.tapes;
  for (std::size_t i = 0; i < tapes.TapeLineCount().size(); ++i) {
    const int count = tapes.TapeLineCount()[i];
    if (count < 0 || count > 32767) {
      broken << "TapeLineCount(" << i << ") = " << count << "; ";
    }
  }
  // Only at least one row: closing the main frame cuts the grid back to one
  // row while the calculator's tape keeps its count, so the grid need not
  // hold every counted line.
  if (tapes.Rows() < 1) broken << "tapes.Rows() = " << tapes.Rows() << "; ";
  // The names run parallel to the counts, one per tape, and the tape in
  // view is one of them.
  if (tapes.TapeNames().size() != tapes.TapeLineCount().size()) {
    broken << tapes.TapeNames().size() << " tape names for "
           << tapes.TapeLineCount().size() << " tapes; ";
  }
  if (tapes.ShownTape < 0 || static_cast<std::size_t>(tapes.ShownTape) >=
                                 tapes.TapeLineCount().size()) {
    broken << "ShownTape = " << tapes.ShownTape << "; ";
  }
  if (app.accuracy != kSixteenths && app.accuracy != kThirtySeconds) {
    broken << "Accuracy = " << app.accuracy << "; ";
  }
  // The menu bar and the context menu always carry the same check marks.
  const MenuId pairs[][2] = {
      {MenuId::Sixteen, MenuId::mnuPopup1Accuracy16},
      {MenuId::thirtysecond, MenuId::mnuPopup1Accuracy32},
      {MenuId::ZoomSmall, MenuId::mnuPopup1Zoom75},
      {MenuId::ZoomLarge, MenuId::mnuPopup1Zoom100},
      {MenuId::ShowKeys, MenuId::mnuPopup1ShowKeys},
      {MenuId::mnuTape, MenuId::mnuPopup1ShowTape},
  };
  for (const auto& pair : pairs) {
    if (app.menus.IsChecked(pair[0]) != app.menus.IsChecked(pair[1])) {
      broken << app.menus.Entry(pair[0]).name << " and "
             << app.menus.Entry(pair[1]).name << " differ; ";
    }
  }
  if (app.menus.IsChecked(MenuId::Sixteen) != (app.accuracy == kSixteenths)) {
    broken << "Sixteen checked with Accuracy = " << app.accuracy << "; ";
  }
  // Memory windows are counted, and each has its own tape.
  const MemoryState& memory = app.memory;
  if (memory.windowCounter != static_cast<int>(memory.Forms().size()) + 1) {
    broken << "windowCounter " << memory.windowCounter << " with "
           << memory.Forms().size() << " memory windows; ";
  }
  for (const auto& form : memory.Forms()) {
    if (form->label1.tag.find("memory") == std::string::npos) {
      broken << "memory " << form->number << " tagged \"" << form->label1.tag
             << "\"; ";
    }
    if (static_cast<std::size_t>(form->number) >=
        tapes.TapeLineCount().size()) {
      broken << "memory " << form->number << " has no tape; ";
    }
  }
  const std::size_t readout = app.calculator.Readout().caption.size();
  if (readout > readoutLimit) {
    broken << "readout " << readout << " characters long; ";
  }
  const float height = app.converter.geometry.height;
  if (app.converter.loaded && height != kConverterCollapsedHeight &&
      height != kConverterExpandedHeight) {
    broken << "converter height " << height << "; ";
  }
  return broken.str();
}

}  // namespace brenko::testing_support
