// The memory cells' scenario words: dragging between the readout, the
// memories and the converter, memory and frame window events, memory files,
// and the probes of the memories, the converter and the main frame.

#include <cmath>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <sstream>

#include "core/base/path_text.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/drag_handlers.h"
#include "core/commands/drag_routes.h"
#include "core/commands/frame_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/converter/converter.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_drag.h"
#include "scenario/scenario.h"

namespace brenko::scenario {

namespace {

void Drag(Context& ctx, const Args& args) {
  const char* usage = "drag SOURCE TARGET WHERE";
  App& app = *ctx.app;
  std::size_t i = 0;
  DragSource source;
  const Token& from = Arg(args, i++, usage);
  if (from.text == "memory") {
    source.kind = DragSource::kMemory;
    source.memoryNumber = MemoryWindow(ctx, Arg(args, i++, usage)).number;
  } else {
    Expect(from.text == "Readout", usage);
  }
  BeginDrag(app, source, kLeftButton);
  const Token& to = Arg(args, i++, usage);
  DropTarget target;
  float x = 0;
  if (to.text == "Readout") {
    x = DropX(args, i, ReadoutMidpoint(app.calculator.Readout()));
  } else if (to.text == "memory") {
    const MemoryForm& form = MemoryWindow(ctx, Arg(args, i++, usage));
    target = {DropTarget::kMemoryLabel, form.number};
    x = DropX(args, i, MemoryMidpoint(form.label1));
  } else {
    Expect(to.text == "converter", usage);
    target.kind = DropTarget::kConverterLabel;
    const Label& label = app.converter.label1;
    x = args.size() > i ? DropX(args, i, label.rect.left + label.rect.width / 2)
                        : label.rect.left;
  }
  DragOver(app, target, source, x, 0);
  DropOn(app, target, source, x, 0);
}

void Resize(Rect& rect, const Args& args, const char* usage) {
  Expect(args.size() == 3, usage);
  rect.width = static_cast<float>(ToNumber(args[1]));
  rect.height = static_cast<float>(ToNumber(args[2]));
}

void RegisterActions(Registry& registry) {
  registry.setup["file"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 2, "file \"NAME\" \"CONTENT\"");
    std::ofstream out(ctx.Resolve(args[0].text), std::ios::binary);
    out.write(args[1].text.data(),
              static_cast<std::streamsize>(args[1].text.size()));
    Expect(static_cast<bool>(out), "cannot write " + args[0].text);
  };
  // File dialogs answer with a name in the scenario's working folder.
  registry.actions["answer file"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 2, "answer file \"NAME\"");
    QueuedAnswer answer;
    answer.kind = QueuedAnswer::Kind::kFile;
    answer.text = PathText(ctx.Resolve(args[1].text));
    ctx.platform->answers.push_back(answer);
  };
  registry.actions["drag"] = Drag;
  // The readout's own mouse-down: the right button opens mnuPopup1.
  registry.actions["rightclick Readout"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 1, "rightclick Readout");
    Readout_MouseDown(*ctx.app, kRightButton);
  };
  registry.actions["dblclick memory"] = [](Context& ctx, const Args& args) {
    const MemoryForm& form =
        MemoryWindow(ctx, Arg(args, 1, "dblclick memory K"));
    MemoryForm_Label1_DblClick(*ctx.app, form.number);
  };
  registry.actions["dblclick converter"] = [](Context& ctx, const Args& args) {
    if (args.size() == 1) {
      Converter_Form_DblClick(*ctx.app);
      return;
    }
    Expect(args.size() == 2 && args[1].text == "Label1",
           "dblclick converter [Label1]");
    Converter_Label1_DblClick(*ctx.app);
  };
  registry.actions["resize memory"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 4, "resize memory K W H");
    MemoryForm& form = MemoryWindow(ctx, args[1]);
    form.geometry.width = static_cast<float>(ToNumber(args[2]));
    form.geometry.height = static_cast<float>(ToNumber(args[3]));
    MemoryForm_Form_Resize(*ctx.app, form.number);
  };
  registry.actions["resize MDIForm1"] = [](Context& ctx, const Args& args) {
    Resize(ctx.app->mainFrame.geometry, args, "resize MDIForm1 W H");
    MDIForm_Resize(*ctx.app);
  };
  registry.actions["resize Converter"] = [](Context& ctx, const Args& args) {
    Resize(ctx.app->converter.geometry, args, "resize Converter W H");
    Converter_Form_Resize(*ctx.app);
  };
  registry.actions["close memory"] = [](Context& ctx, const Args& args) {
    const MemoryForm& form = MemoryWindow(ctx, Arg(args, 1, "close memory K"));
    MemoryForm_Form_Unload(*ctx.app, form.number);
  };
  registry.actions["close MDIForm1"] = [](Context& ctx, const Args&) {
    MDIForm_Unload(*ctx.app);
  };
  registry.actions["activate memory"] = [](Context& ctx, const Args& args) {
    const MemoryForm& form =
        MemoryWindow(ctx, Arg(args, 1, "activate memory K"));
    MemoryForm_Form_Activate(*ctx.app, form.number);
  };
}

void RegisterProbes(Registry& registry) {
  registry.probes["memories"] = [](Context& ctx, const Args&) {
    return Value::Number(static_cast<double>(ctx.app->memory.Forms().size()));
  };
  registry.probes["memory"] = [](Context& ctx, const Args& args) {
    const char* usage = "memory K caption|value|tag";
    const MemoryForm& form = MemoryWindow(ctx, Arg(args, 0, usage));
    const std::string& what = Arg(args, 1, usage).text;
    if (what == "caption") return Value::Text(form.caption);
    if (what == "value") return Value::Text(form.label1.caption);
    if (what == "tag") return Value::Text(form.label1.tag);
    throw ScenarioError(usage);
  };
  registry.probes["converter"] = [](Context& ctx, const Args& args) {
    const char* usage = "converter Label1 | converter lblLabel N";
    const ConverterForm& form = ctx.app->converter;
    const std::string& what = Arg(args, 0, usage).text;
    if (what == "Label1") return Value::Text(form.label1.caption);
    Expect(what == "lblLabel", usage);
    const int n = ToInt(Arg(args, 1, usage));
    Expect(n >= 0 && static_cast<std::size_t>(n) < form.lblLabel.size(),
           "no lblLabel " + args[1].text);
    return Value::Text(form.lblLabel[static_cast<std::size_t>(n)].caption);
  };
  registry.probes["file"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 1, "file \"NAME\"");
    std::ifstream in(ctx.Resolve(args[0].text), std::ios::binary);
    if (!in) return Value::None();
    return Value::Text(std::string(std::istreambuf_iterator<char>(in), {}));
  };
  registry.probes["geometry MDIForm1"] = [](Context& ctx, const Args&) {
    return Geometry(ctx.app->mainFrame.geometry);
  };
  registry.probes["geometry Converter"] = [](Context& ctx, const Args&) {
    return Geometry(ctx.app->converter.geometry);
  };
  registry.probes["geometry memory"] = [](Context& ctx, const Args& args) {
    return Geometry(
        MemoryWindow(ctx, Arg(args, 1, "geometry memory K")).geometry);
  };
  registry.probes["visible MDIForm1"] = [](Context& ctx, const Args&) {
    return Value::Bool(ctx.app->mainFrame.visible);
  };
  registry.probes["visible Converter"] = [](Context& ctx, const Args&) {
    return Value::Bool(ctx.app->converter.visible);
  };
  registry.probes["visible memory"] = [](Context& ctx, const Args& args) {
    return Value::Bool(
        MemoryWindow(ctx, Arg(args, 1, "visible memory K")).visible);
  };
  registry.probes["caption MDIForm1"] = [](Context& ctx, const Args&) {
    return Value::Text(ctx.app->mainFrame.caption);
  };
  registry.probes["caption Converter"] = [](Context&, const Args&) {
    return Value::Text("Converter");
  };
}

}  // namespace

// How far "left" and "right" drop from a target's midpoint.
constexpr float kClearlyAside = 200;

float DropX(const Args& args, std::size_t at, float midpoint) {
  const char* usage = "WHERE: left | right | mid | at X";
  const Token& where = Arg(args, at, usage);
  if (where.text == "left") return midpoint - kClearlyAside;
  if (where.text == "right") return midpoint + kClearlyAside;
  if (where.text == "mid") return midpoint;
  Expect(where.text == "at", usage);
  return static_cast<float>(ToNumber(Arg(args, at + 1, usage)));
}

void RegisterMemory(Registry& registry) {
  RegisterActions(registry);
  RegisterProbes(registry);
}

}  // namespace brenko::scenario
