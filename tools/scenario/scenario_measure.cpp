// Probes of the measurement routines: ParseLinear "T", FormatLinear ACC X ...

#include "core/measure/measure.h"
#include "scenario/scenario.h"

namespace brenko::scenario {

namespace {

const std::string& OneText(const Args& args, const char* probe) {
  Expect(args.size() == 1 && args[0].quoted,
         std::string(probe) + " takes one quoted text");
  return args[0].text;
}

}  // namespace

void RegisterMeasure(Registry& registry) {
  registry.probes["ParseLinear"] = [](Context&, const Args& args) {
    std::string text = OneText(args, "ParseLinear");
    return Value::Number(ParseLinear(text));
  };
  registry.probes["ParseLinearText"] = [](Context&, const Args& args) {
    std::string text = OneText(args, "ParseLinearText");
    ParseLinear(text);
    return Value::Text(text);
  };
  registry.probes["ParseSquare"] = [](Context&, const Args& args) {
    std::string text = OneText(args, "ParseSquare");
    return Value::Number(ParseSquare(text));
  };
  registry.probes["ParseCubic"] = [](Context&, const Args& args) {
    std::string text = OneText(args, "ParseCubic");
    return Value::Number(ParseCubic(text));
  };
  registry.probes["FormatLinear"] = [](Context&, const Args& args) {
    Expect(args.size() == 2, "FormatLinear ACC X");
    return Value::Text(FormatLinear(ToNumber(args[1]), ToInt(args[0])));
  };
  registry.probes["FormatSquare"] = [](Context&, const Args& args) {
    Expect(args.size() == 1, "FormatSquare X");
    return Value::Text(FormatSquare(ToNumber(args[0])));
  };
  registry.probes["FormatCubic"] = [](Context&, const Args& args) {
    Expect(args.size() == 1, "FormatCubic X");
    return Value::Text(FormatCubic(ToNumber(args[0])));
  };
}

}  // namespace brenko::scenario
