// The shell's scenario words: stored settings and the screen before the
// start, quitting, closing and activating the calculator, its double click,
// and the probes of settings, colours and printed documents.

#include <cstddef>
#include <string>

#include "core/commands/shell_handlers.h"
#include "core/commands/startup.h"
#include "core/measure/number_text.h"
#include "core/shell/about.h"
#include "scenario/scenario.h"

namespace brenko::scenario {

namespace {

// The colour of one of the targets the Colors menu recolours.
Value BackColor(Context& ctx, const Args& args) {
  const char* usage =
      "backcolor Calculator | Readout | memory K [Label1] | Converter "
      "[Label1] | lblLabel N";
  const std::string& target = Arg(args, 0, usage).text;
  App& app = *ctx.app;
  if (target == "Calculator") return Value::Number(app.calculator.backColor);
  if (target == "Readout") {
    return Value::Number(app.calculator.Readout().backColor);
  }
  if (target == "memory") {
    const MemoryForm& form = MemoryWindow(ctx, Arg(args, 1, usage));
    if (args.size() > 2) {
      Expect(args[2].text == "Label1", usage);
      return Value::Number(form.label1.backColor);
    }
    return Value::Number(form.backColor);
  }
  if (target == "Converter") {
    if (args.size() > 1) {
      Expect(args[1].text == "Label1", usage);
      return Value::Number(app.converter.label1.backColor);
    }
    return Value::Number(app.converter.backColor);
  }
  if (target == "lblLabel") {
    const int n = ToInt(Arg(args, 1, usage));
    Expect(
        n >= 0 && static_cast<std::size_t>(n) < app.converter.lblLabel.size(),
        "no lblLabel " + args[1].text);
    return Value::Number(
        app.converter.lblLabel[static_cast<std::size_t>(n)].backColor);
  }
  throw ScenarioError(usage);
}

std::string JoinLines(const std::vector<std::string>& lines) {
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) text += "\n";
    text += lines[i];
  }
  return text;
}

void RegisterSetup(Registry& registry) {
  registry.setup["setting"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 3 && args[2].quoted, "setting SECTION KEY \"VALUE\"");
    ctx.store->Save(args[0].text, args[1].text, args[2].text);
  };
  registry.setup["screen"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 2, "screen W H");
    const int width = ToInt(args[0]);
    const int height = ToInt(args[1]);
    Expect(width > 0 && height > 0, "screen W H: sizes in pixels");
    ctx.platform->screen.widthPixels = width;
    ctx.platform->screen.heightPixels = height;
  };
}

void RegisterActions(Registry& registry) {
  registry.actions["quit"] = [](Context& ctx, const Args& args) {
    Expect(args.empty(), "quit takes no arguments");
    Exit_Click(*ctx.app);
  };
  registry.actions["close Calculator"] = [](Context& ctx, const Args&) {
    Form_QueryUnload(*ctx.app);
    Form_Unload(*ctx.app);
  };
  registry.actions["activate Calculator"] = [](Context& ctx, const Args&) {
    Form_Activate(*ctx.app);
  };
  registry.actions["resize Calculator"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 3, "resize Calculator W H");
    Rect& g = ctx.app->calculator.geometry;
    g.width = static_cast<float>(ToNumber(args[1]));
    g.height = static_cast<float>(ToNumber(args[2]));
  };
  registry.actions["dblclick calculator"] = [](Context& ctx, const Args&) {
    Form_DblClick(*ctx.app);
  };
  // The About box's "&System Info..." button.
  registry.actions["click cmdSysInfo"] = [](Context& ctx, const Args&) {
    cmdSysInfo_Click(*ctx.app);
  };
  registry.actions["dblclick Label1"] = [](Context& ctx, const Args&) {
    Label1_DblClick(*ctx.app);
  };
}

void RegisterProbes(Registry& registry) {
  registry.probes["setting"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 2, "setting SECTION KEY");
    const auto value = ctx.store->Get(args[0].text, args[1].text);
    return value ? Value::Text(*value) : Value::None();
  };
  registry.probes["backcolor"] = BackColor;
  registry.probes["documents"] = [](Context& ctx, const Args&) {
    return Value::Number(static_cast<double>(ctx.platform->documents.size()));
  };
  registry.probes["printed"] = [](Context& ctx, const Args& args) {
    const int n = ToInt(Arg(args, 0, "printed N"));
    const auto& documents = ctx.platform->documents;
    Expect(n >= 1 && static_cast<std::size_t>(n) <= documents.size(),
           "no printed document " + args[0].text);
    return Value::Text(
        JoinLines(documents[static_cast<std::size_t>(n - 1)].lines));
  };
  registry.probes["printfont"] = [](Context& ctx, const Args& args) {
    const int n = ToInt(Arg(args, 0, "printfont N"));
    const auto& documents = ctx.platform->documents;
    Expect(n >= 1 && static_cast<std::size_t>(n) <= documents.size(),
           "no printed document " + args[0].text);
    const auto& doc = documents[static_cast<std::size_t>(n - 1)];
    return Value::Text(doc.fontName + " " + TrimmedNumberText(doc.fontSize));
  };
  // The context menus opened so far, and the last one's name.
  registry.probes["popups"] = [](Context& ctx, const Args&) {
    return Value::Number(static_cast<double>(ctx.platform->popups.size()));
  };
  registry.probes["popup"] = [](Context& ctx, const Args&) {
    const auto& popups = ctx.platform->popups;
    return popups.empty() ? Value::None() : Value::Text(popups.back());
  };
  registry.probes["helpShown"] = [](Context& ctx, const Args&) {
    const auto& shown = ctx.platform->helpShown;
    return shown.empty() ? Value::None() : Value::Text(shown.back());
  };
  registry.probes["about"] = [](Context& ctx, const Args& args) {
    const std::string& field = Arg(args, 0, "about title|version").text;
    const auto& shown = ctx.platform->aboutShown;
    Expect(!shown.empty(), "the About box was not shown");
    if (field == "title") return Value::Text(shown.back().title);
    if (field == "version") return Value::Text(shown.back().version);
    throw ScenarioError("about title|version");
  };
  registry.probes["quitRequested"] = [](Context& ctx, const Args&) {
    return Value::Bool(ctx.app->shell.quitRequested);
  };
}

}  // namespace

void RegisterShell(Registry& registry) {
  RegisterSetup(registry);
  RegisterActions(registry);
  RegisterProbes(registry);
}

}  // namespace brenko::scenario
