// Values to and from other programs, and the memory windows' commands:
//
//   copy                      the calculator's Copy
//   copy memory K             a memory window's Copy
//   copy tape [ROW ...]       the tape window's Copy: those lines, or all
//   paste ["TEXT"]            the calculator's Paste of TEXT (or of what the
//                             last copy took)
//   drag text "TEXT" Readout  text from another program dropped on the
//                             readout (a paste); refused unless a measurement
//   drag text "TEXT" memory K left|right|mid|at X
//                             ... on a memory's value
//   menu memory K COMMAND     a memory's context menu: Add, Subtract, Recall,
//                             Convert or Clear
//   expect clipboard == "TEXT"

#include <optional>
#include <string>
#include <vector>

#include "core/base/window_model.h"
#include "core/commands/clipboard_handlers.h"
#include "core/commands/drag_routes.h"
#include "core/commands/memory_commands.h"
#include "core/memory/memory_drag.h"
#include "scenario/scenario.h"

namespace brenko::scenario {

namespace {

void Copy(Context& ctx, const Args& args) {
  const App& app = *ctx.app;
  if (args.empty()) {
    ctx.clipboard = Calculator_CopyText(app);
    return;
  }
  const char* usage = "copy [memory K | tape [ROW ...]]";
  if (args[0].text == "memory") {
    Expect(args.size() == 2, usage);
    ctx.clipboard = MemoryForm_CopyText(app, MemoryWindow(ctx, args[1]).number);
    return;
  }
  Expect(args[0].text == "tape", usage);
  std::vector<int> rows;
  for (std::size_t i = 1; i < args.size(); ++i) rows.push_back(ToInt(args[i]));
  ctx.clipboard = TapeForm_CopyText(app, rows);
}

void DragText(Context& ctx, const Args& args) {
  const char* usage = "drag text \"TEXT\" Readout | memory K WHERE";
  // args[0] is "text"
  const Token& text = Arg(args, 1, usage);
  Expect(text.quoted, usage);
  const Token& to = Arg(args, 2, usage);
  App& app = *ctx.app;
  DropTarget target{DropTarget::kReadout, 0};
  float x = ReadoutMidpoint(app.calculator.Readout());
  if (to.text != "Readout") {
    Expect(to.text == "memory", usage);
    const MemoryForm& form = MemoryWindow(ctx, Arg(args, 3, usage));
    target = {DropTarget::kMemoryLabel, form.number};
    x = DropX(args, 4, MemoryMidpoint(form.label1));
  }
  // What the window refuses never reaches a handler.
  const std::optional<DragSource> source = TextDragSource(target, text.text);
  if (!source) return;
  DragOver(app, target, *source, x, 0);
  DropOn(app, target, *source, x, 0);
}

}  // namespace

void RegisterClipboard(Registry& registry) {
  registry.actions["copy"] = Copy;
  registry.actions["paste"] = [](Context& ctx, const Args& args) {
    Expect(args.size() <= 1, "paste [\"TEXT\"]");
    Readout_Paste(*ctx.app, args.empty() ? ctx.clipboard : args[0].text);
  };
  registry.actions["drag text"] = DragText;
  registry.actions["menu memory"] = [](Context& ctx, const Args& args) {
    const char* usage = "menu memory K Add|Subtract|Recall|Convert|Clear";
    Expect(args.size() == 3, usage);
    const int number = MemoryWindow(ctx, args[1]).number;
    const std::optional<MemoryCommand> command =
        MemoryCommandNamed(args[2].text);
    Expect(command.has_value(), usage);
    RunMemoryCommand(*ctx.app, number, *command);
  };
  registry.probes["clipboard"] = [](Context& ctx, const Args&) {
    return Value::Text(ctx.clipboard);
  };
}

}  // namespace brenko::scenario
