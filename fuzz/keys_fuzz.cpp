// Key streams on a fresh program: every byte is a key typed on the
// calculator, except that 0xFF followed by a byte runs the menu command that
// byte picks (every command but Exit; dialogs are cancelled). After each
// step the rules the models keep must hold.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/commands/app.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/menus.h"
#include "support/model_rules.h"
#include "support/test_program.h"

namespace {

constexpr std::uint8_t kMenuMark = 0xFF;

// A key adds at most three characters to the readout ("'- "); a result or a
// pasted value is of bounded length.
constexpr std::size_t kReadoutSlack = 200;

void CheckRules(const brenko::App& app, std::size_t steps) {
  const std::string broken =
      brenko::testing_support::BrokenModelRules(app, 3 * steps + kReadoutSlack);
  if (!broken.empty()) {
    std::fprintf(stderr, "broken after %zu steps: %s\n", steps, broken.c_str());
    std::abort();
  }
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
