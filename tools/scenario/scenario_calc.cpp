// The calculator's scenario words: typing, clicking keys, menu commands and
// dialog answers, and the probes of the calculator, its engine and its tapes.

#include <cmath>
#include <cstddef>
#include <sstream>

#include "core/commands/keypad_handlers.h"
#include "core/commands/keys.h"
#include "core/commands/menus.h"
#include "core/commands/shell_handlers.h"
#include "core/commands/tape_handlers.h"
#include "core/tape/tape_window.h"
#include "scenario/scenario.h"

namespace brenko::scenario {

namespace {

Value Optional(const std::optional<double>& v) {
  return v ? Value::Number(*v) : Value::None();
}

Value EngineField(const CalcEngine& e, const std::string& field) {
  if (field == "EntryText") return Value::Text(e.EntryText);
  if (field == "EntryValue") return Value::Number(e.EntryValue);
  if (field == "PendingValue") return Optional(e.PendingValue);
  if (field == "PendingText") return Value::Text(e.PendingText);
  if (field == "CurrentValue") return Optional(e.CurrentValue);
  if (field == "CurrentText") return Value::Text(e.CurrentText);
  if (field == "PendingOp") return Value::Number(e.PendingOp);
  if (field == "FormulaStage") return Value::Number(e.FormulaStage);
  if (field == "ResultValue") return Value::Number(e.ResultValue);
  if (field == "ResultText") return Value::Text(e.ResultText);
  throw ScenarioError("unknown engine field: " + field);
}

// A tape number of the file, checked against the store.
std::size_t TapeIndex(Context& ctx, const Token& token) {
  const int k = ToInt(token);
  Expect(ctx.app->tapes.HasTape(k), "no tape " + token.text);
  return static_cast<std::size_t>(k);
}

QueuedAnswer ParseAnswer(const Args& args) {
  const char* usage =
      "answer \"TEXT\" | ok | cancel | yes | no | file \"NAME\" | color N";
  const Token& first = Arg(args, 0, usage);
  QueuedAnswer a;
  if (first.quoted) {
    a.kind = QueuedAnswer::Kind::kText;
    a.text = first.text;
  } else if (first.text == "ok") {
    a.kind = QueuedAnswer::Kind::kOk;
  } else if (first.text == "cancel") {
    a.kind = QueuedAnswer::Kind::kCancel;
  } else if (first.text == "yes") {
    a.kind = QueuedAnswer::Kind::kYes;
  } else if (first.text == "no") {
    a.kind = QueuedAnswer::Kind::kNo;
  } else if (first.text == "file") {
    a.kind = QueuedAnswer::Kind::kFile;
    a.text = Arg(args, 1, usage).text;
  } else if (first.text == "color") {
    a.kind = QueuedAnswer::Kind::kColor;
    a.color = ToInt(Arg(args, 1, usage));
  } else {
    throw ScenarioError(usage);
  }
  return a;
}

void RegisterActions(Registry& registry) {
  registry.actions["keys"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 1 && args[0].quoted, "keys \"TEXT\"");
    for (char c : args[0].text) {
      Form_KeyPress(*ctx.app, static_cast<unsigned char>(c));
    }
  };
  registry.actions["click"] = [](Context& ctx, const Args& args) {
    const Token& name = Arg(args, 0, "click CONTROL [INDEX]");
    const int index = args.size() > 1 ? ToInt(args[1]) : -1;
    Expect(ClickControl(*ctx.app, name.text, index), "no control " + name.text);
  };
  registry.actions["rightclick"] = [](Context& ctx, const Args& args) {
    const Token& name = Arg(args, 0, "rightclick CONTROL [INDEX]");
    if (name.text == "calculator") {
      Form_MouseDown(*ctx.app, kRightButton);
      return;
    }
    if (name.text == "Label1") {
      Label1_MouseDown(*ctx.app, kRightButton);
      return;
    }
    const int index = args.size() > 1 ? ToInt(args[1]) : -1;
    const bool known = ControlMouseDown(
        *ctx.app, name.text, name.text == "Number" && index < 0 ? 0 : index,
        kRightButton);
    Expect(known, "no control " + name.text);
  };
  registry.actions["menu"] = [](Context& ctx, const Args& args) {
    const Token& name = Arg(args, 0, "menu NAME [INDEX]");
    const int index = args.size() > 1 ? ToInt(args[1]) : -1;
    Expect(RunMenuCommand(*ctx.app, name.text, index),
           "unknown menu entry: " + name.text);
  };
  registry.actions["answer"] = [](Context& ctx, const Args& args) {
    ctx.platform->answers.push_back(ParseAnswer(args));
  };
  registry.actions["resize frmTape"] = [](Context& ctx, const Args& args) {
    Expect(args.size() == 3, "resize frmTape W H");
    Rect& g = ctx.app->tapeWindow.geometry;
    g.width = static_cast<float>(ToNumber(args[1]));
    g.height = static_cast<float>(ToNumber(args[2]));
    frmTape_Form_Resize(*ctx.app);
  };
}

void RegisterCalculatorProbes(Registry& registry) {
  registry.probes["Readout"] = [](Context& ctx, const Args&) {
    return Value::Text(ctx.app->calculator.Readout().caption);
  };
  registry.probes["ActionLabel"] = [](Context& ctx, const Args&) {
    return Value::Text(ctx.app->calculator.ActionLabel().caption);
  };
  registry.probes["Label1"] = [](Context& ctx, const Args&) {
    return Value::Text(ctx.app->calculator.Label1().caption);
  };
  registry.probes["engine"] = [](Context& ctx, const Args& args) {
    return EngineField(ctx.app->engine, Arg(args, 0, "engine FIELD").text);
  };
  registry.probes["Accuracy"] = [](Context& ctx, const Args&) {
    return Value::Number(ctx.app->accuracy);
  };
  registry.probes["focus"] = [](Context& ctx, const Args&) {
    return Value::Text(ctx.app->calculator.focus);
  };
  registry.probes["beeps"] = [](Context& ctx, const Args&) {
    const int now = ctx.platform->beeps;
    const int since = now - ctx.beepsSeen;
    ctx.beepsSeen = now;
    return Value::Number(since);
  };
  registry.probes["messages"] = [](Context& ctx, const Args&) {
    return Value::Number(static_cast<double>(ctx.platform->messages.size()));
  };
  registry.probes["message"] = [](Context& ctx, const Args& args) {
    const std::string& what = Arg(args, 0, "message text|title").text;
    Expect(!ctx.platform->messages.empty(), "no message was shown");
    const RecordedMessage& m = ctx.platform->messages.back();
    if (what == "text") return Value::Text(m.text);
    if (what == "title") return Value::Text(m.title);
    throw ScenarioError("message text|title");
  };
  registry.probes["checked"] = [](Context& ctx, const Args& args) {
    const Token& name = Arg(args, 0, "checked NAME [INDEX]");
    const int index = args.size() > 1 ? ToInt(args[1]) : -1;
    const MenuEntry* e = ctx.app->menus.Find(name.text, index);
    Expect(e != nullptr, "no menu entry " + name.text);
    return Value::Bool(e->checked);
  };
  registry.probes["caption"] = [](Context& ctx, const Args& args) {
    const Token& name = Arg(args, 0, "caption NAME [INDEX]");
    const int index = args.size() > 1 ? ToInt(args[1]) : -1;
    const MenuEntry* e = ctx.app->menus.Find(name.text, index);
    Expect(e != nullptr, "no menu entry " + name.text);
    return Value::Text(e->caption);
  };
  registry.probes["caption Calculator"] = [](Context& ctx, const Args&) {
    return Value::Text(ctx.app->calculator.caption);
  };
  registry.probes["visible Calculator"] = [](Context& ctx, const Args&) {
    return Value::Bool(ctx.app->calculator.visible);
  };
  registry.probes["geometry Calculator"] = [](Context& ctx, const Args&) {
    return Geometry(ctx.app->calculator.geometry);
  };
}

void RegisterTapeProbes(Registry& registry) {
  registry.probes["tape"] = [](Context& ctx, const Args& args) {
    const std::size_t k = TapeIndex(ctx, Arg(args, 0, "tape K"));
    return Value::Text(JoinedTapeLines(ctx.app->tapes, static_cast<int>(k)));
  };
  registry.probes["tapeline"] = [](Context& ctx, const Args& args) {
    const std::size_t k = TapeIndex(ctx, Arg(args, 0, "tapeline K N"));
    const int n = ToInt(Arg(args, 1, "tapeline K N"));
    return Value::Text(ctx.app->tapes.Cell(n, static_cast<std::int32_t>(k)));
  };
  registry.probes["tapecount"] = [](Context& ctx, const Args& args) {
    const std::size_t k = TapeIndex(ctx, Arg(args, 0, "tapecount K"));
    return Value::Number(ctx.app->tapes.TapeLineCount()[k]);
  };
  registry.probes["tapename"] = [](Context& ctx, const Args& args) {
    const std::size_t k = TapeIndex(ctx, Arg(args, 0, "tapename K"));
    return Value::Text(ctx.app->tapes.TapeNames()[k]);
  };
  registry.probes["gridrows"] = [](Context& ctx, const Args&) {
    return Value::Number(ctx.app->tapes.Rows());
  };
  registry.probes["shownTape"] = [](Context& ctx, const Args&) {
    return Value::Number(ctx.app->tapes.ShownTape);
  };
  registry.probes["toprow"] = [](Context& ctx, const Args&) {
    return Value::Number(ctx.app->tapes.topRow);
  };
  registry.probes["tapetitle"] = [](Context& ctx, const Args&) {
    return Value::Text(ctx.app->tapeWindow.title.caption);
  };
  registry.probes["caption frmTape"] = [](Context& ctx, const Args&) {
    return Value::Text(ctx.app->tapeWindow.caption);
  };
  registry.probes["visible frmTape"] = [](Context& ctx, const Args&) {
    return Value::Bool(ctx.app->tapeWindow.visible);
  };
  registry.probes["geometry frmTape"] = [](Context& ctx, const Args&) {
    return Geometry(ctx.app->tapeWindow.geometry);
  };
}

}  // namespace

void RegisterCalc(Registry& registry) {
  RegisterActions(registry);
  RegisterCalculatorProbes(registry);
  RegisterTapeProbes(registry);
}

}  // namespace brenko::scenario
