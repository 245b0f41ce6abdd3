// Key streams on a fresh program: every byte is a key typed on the
// calculator, except that 0xFF followed by a byte runs the menu command that
// byte picks (every command but Exit; dialogs are cancelled). After each
// step the rules the models keep must hold.

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/commands/app.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/menus.h"
#include "core/measure/measure.h"
#include "fuzz_check.h"
#include "support/test_program.h"

namespace {

constexpr std::uint8_t kMenuMark = 0xFF;

// A key adds at most three characters to the readout ("'- "); a result or a
// pasted value is of bounded length.
constexpr std::size_t kReadoutSlack = 200;

void CheckRules(const brenko::App& app, std::size_t steps) {
  const brenko::TapeStore& tapes = app.tapes;
  // One name per tape, every count a tape can hold, the tape in view one
  // of them.
  BRENKO_FUZZ_CHECK(tapes.TapeNames().size() == tapes.TapeLineCount().size());
  for (const int count : tapes.TapeLineCount()) {
    BRENKO_FUZZ_CHECK(count >= 0 && count <= 32767);
  }
  BRENKO_FUZZ_CHECK(tapes.Rows() >= 1);
  BRENKO_FUZZ_CHECK(tapes.ShownTape >= 0 &&
                    static_cast<std::size_t>(tapes.ShownTape) <
                        tapes.TapeLineCount().size());
  BRENKO_FUZZ_CHECK(app.accuracy == brenko::kSixteenths ||
                    app.accuracy == brenko::kThirtySeconds);
  // The menu bar and the context menu carry the same check marks.
  using brenko::MenuId;
  const MenuId pairs[][2] = {
      {MenuId::Sixteen, MenuId::mnuPopup1Accuracy16},
      {MenuId::thirtysecond, MenuId::mnuPopup1Accuracy32},
      {MenuId::ZoomSmall, MenuId::mnuPopup1Zoom75},
      {MenuId::ZoomLarge, MenuId::mnuPopup1Zoom100},
      {MenuId::ShowKeys, MenuId::mnuPopup1ShowKeys},
      {MenuId::mnuTape, MenuId::mnuPopup1ShowTape},
  };
  for (const auto& pair : pairs) {
    BRENKO_FUZZ_CHECK(app.menus.IsChecked(pair[0]) ==
                      app.menus.IsChecked(pair[1]));
  }
  BRENKO_FUZZ_CHECK(app.menus.IsChecked(MenuId::Sixteen) ==
                    (app.accuracy == brenko::kSixteenths));
  // Memory windows are counted, and each has its own tape.
  const brenko::MemoryState& memory = app.memory;
  BRENKO_FUZZ_CHECK(memory.windowCounter ==
                    static_cast<int>(memory.Forms().size()) + 1);
  for (const auto& form : memory.Forms()) {
    BRENKO_FUZZ_CHECK(form->label1.tag.find("memory") != std::string::npos);
    BRENKO_FUZZ_CHECK(static_cast<std::size_t>(form->number) <
                      tapes.TapeLineCount().size());
  }
  BRENKO_FUZZ_CHECK(app.calculator.Readout().caption.size() <=
                    3 * steps + kReadoutSlack);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  brenko::testing_support::TestProgram program;
  brenko::App& app = program.Start();
  CheckRules(app, 0);
  const auto& entries = app.menus.Entries();
  for (std::size_t i = 0; i < size; ++i) {
    if (data[i] == kMenuMark && i + 1 < size) {
      const brenko::MenuEntry entry = entries[data[++i] % entries.size()];
      if (entry.name == "Exit") continue;
      brenko::RunMenuCommand(app, entry.name, entry.index);
    } else {
      brenko::Form_KeyPress(app, data[i]);
    }
    program.platform.documents.clear();
    CheckRules(app, i + 1);
  }
  return 0;
}
