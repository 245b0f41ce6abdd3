// brenko-scenario FILE.scn [FILE.scn ...]: runs plain-text scenarios against
// a headless App with a scripted platform.

#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>

#include "core/base/path_text.h"
#include "core/commands/startup.h"
#include "scenario/scenario.h"

namespace brenko::scenario {

std::string Value::ToString() const {
  switch (kind) {
    case Kind::kText:
      return text;
    case Kind::kNumber: {
      if (std::isnan(number)) return "nan";
      if (std::isinf(number)) return number > 0 ? "inf" : "-inf";
      std::ostringstream out;
      out.imbue(std::locale::classic());
      out.precision(17);
      out << number;
      return out.str();
    }
    case Kind::kBool:
      return boolean ? "true" : "false";
    case Kind::kNone:
      return "none";
  }
  return "";
}

void Expect(bool condition, const std::string& message) {
  if (!condition) throw ScenarioError(message);
}

double ToNumber(const Token& token) {
  std::istringstream in(token.text);
  in.imbue(std::locale::classic());
  double value = 0;
  in >> value;
  Expect(!in.fail() && in.eof(), "not a number: " + token.text);
  return value;
}

const Token& Arg(const Args& args, std::size_t i, const char* usage) {
  Expect(i < args.size(), usage);
  return args[i];
}

MemoryForm& MemoryWindow(Context& ctx, const Token& number) {
  MemoryForm* form = ctx.app->memory.Find(ToInt(number));
  Expect(form != nullptr, "no memory " + number.text);
  return *form;
}

namespace {

std::string Twips(float v) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  if (std::isfinite(v) && v == std::floor(v)) {
    out << static_cast<long long>(v);
  } else {
    out << v;
  }
  return out.str();
}

}  // namespace

Value Geometry(const Rect& r) {
  return Value::Text(Twips(r.left) + " " + Twips(r.top) + " " + Twips(r.width) +
                     " " + Twips(r.height));
}

int ToInt(const Token& token) {
  const double value = ToNumber(token);
  Expect(value >= -2147483648.0 && value <= 2147483647.0 &&
             value == std::floor(value),
         "not a whole number: " + token.text);
  return static_cast<int>(value);
}

void Context::EnsureStarted() {
  if (started) return;
  started = true;
  Form_Load(*app);
}

std::filesystem::path Context::Resolve(const std::string& name) const {
  // A scenario is UTF-8 text, whatever the system's code page.
  const std::filesystem::path p = PathFromText(name);
  return p.is_absolute() ? p : folder / p;
}

namespace {

// Splits one line into words; quoted words take the escapes of the format.
std::vector<Token> Tokenize(const std::string& line) {
  std::vector<Token> tokens;
  size_t i = 0;
  while (i < line.size()) {
    if (line[i] == ' ' || line[i] == '\t' || line[i] == '\r') {
      ++i;
      continue;
    }
    Token t;
    if (line[i] == '"') {
      t.quoted = true;
      ++i;
      bool closed = false;
      while (i < line.size()) {
        char c = line[i++];
        if (c == '"') {
          closed = true;
          break;
        }
        if (c == '\\' && i < line.size()) {
          char e = line[i++];
          switch (e) {
            case 'n':
              c = '\n';
              break;
            case 'r':
              c = '\r';
              break;
            case 'e':
              c = 27;
              break;
            case 'b':
              c = 8;
              break;
            case 't':
              c = '\t';
              break;
            case '"':
              c = '"';
              break;
            case '\\':
              c = '\\';
              break;
            default:
              throw ScenarioError(std::string("unknown escape \\") + e);
          }
        }
        t.text.push_back(c);
      }
      Expect(closed, "unterminated text");
    } else {
      while (i < line.size() && line[i] != ' ' && line[i] != '\t' &&
             line[i] != '\r') {
        t.text.push_back(line[i++]);
      }
    }
    tokens.push_back(std::move(t));
  }
  return tokens;
}

bool NumbersEqual(double a, double b) {
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
  if (std::isinf(a) || std::isinf(b)) return a == b;
  const double scale = std::max(std::fabs(a), std::fabs(b));
  return std::fabs(a - b) <= 1e-9 * scale;
}

// Compares a probe's value with the expected word or text of the file.
bool Matches(const Value& got, const Token& expected) {
  if (expected.quoted) {
    return got.kind != Value::Kind::kNone && got.ToString() == expected.text;
  }
  const std::string& w = expected.text;
  if (w == "none") return got.kind == Value::Kind::kNone;
  if (w == "true" || w == "false") {
    return got.kind == Value::Kind::kBool && got.boolean == (w == "true");
  }
  if (got.kind == Value::Kind::kNumber) {
    if (w == "nan") return std::isnan(got.number);
    if (w == "inf") return std::isinf(got.number) && got.number > 0;
    if (w == "-inf") return std::isinf(got.number) && got.number < 0;
    return NumbersEqual(got.number, ToNumber(expected));
  }
  return got.kind != Value::Kind::kNone && got.ToString() == w;
}

std::string Quote(const Value& v) {
  if (v.kind != Value::Kind::kText) return v.ToString();
  std::string out = "\"";
  for (char c : v.text) {
    switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\t':
        out += "\\t";
        break;
      case 27:
        out += "\\e";
        break;
      case 8:
        out += "\\b";
        break;
      default:
        out += c;
    }
  }
  return out + "\"";
}

struct Totals {
  int passed = 0;
  int failed = 0;
  bool error = false;
};

// Commands and probes are found by "word target" first (so that, say,
// "close memory" and "close Calculator" can live with their subsystems),
// then by the first word alone. Either way they receive every word after
// the first.
template <typename Map>
const typename Map::mapped_type* Find(const Map& map,
                                      const std::vector<Token>& words) {
  if (words.empty() || words[0].quoted) return nullptr;
  if (words.size() > 1 && !words[1].quoted) {
    auto it = map.find(words[0].text + " " + words[1].text);
    if (it != map.end()) return &it->second;
  }
  auto it = map.find(words[0].text);
  return it == map.end() ? nullptr : &it->second;
}

const Command* FindAction(const Registry& registry,
                          const std::vector<Token>& words) {
  return Find(registry.actions, words);
}

Value RunProbe(const Registry& registry, Context& ctx, const Args& words) {
  Expect(!words.empty(), "missing probe");
  const Probe* probe = Find(registry.probes, words);
  Expect(probe != nullptr, "unknown probe: " + words[0].text);
  return (*probe)(ctx, Args(words.begin() + 1, words.end()));
}

void RunFile(const Registry& registry, const std::string& path,
             Totals& totals) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    std::cout << path << ": cannot open\n";
    totals.error = true;
    return;
  }
  Context ctx;
  ctx.platform = std::make_unique<FakePlatform>();
  ctx.store = std::make_unique<MemorySettingsStore>();
  ctx.app = std::make_unique<App>(*ctx.platform, *ctx.store);
  std::random_device rd;
  ctx.folder =
      std::filesystem::temp_directory_path() /
      ("brenko-scenario-" + std::to_string(rd()) + "-" + std::to_string(rd()));
  std::filesystem::create_directories(ctx.folder);

  std::string line;
  int number = 0;
  while (std::getline(in, line)) {
    ++number;
    const std::string where = path + ":" + std::to_string(number) + ": ";
    try {
      std::vector<Token> words = Tokenize(line);
      if (words.empty() || (!words[0].quoted && words[0].text[0] == '#')) {
        continue;
      }
      const std::string& verb = words[0].text;
      Args args(words.begin() + 1, words.end());
      if (verb == "expect") {
        ctx.EnsureStarted();
        size_t op = 0;
        for (size_t i = 0; i < args.size(); ++i) {
          if (!args[i].quoted &&
              (args[i].text == "==" || args[i].text == "contains")) {
            op = i;
          }
        }
        Expect(op > 0 && op + 2 == args.size(),
               "expect PROBE == VALUE or expect PROBE contains \"TEXT\"");
        const Value got =
            RunProbe(registry, ctx, Args(args.begin(), args.begin() + op));
        const Token& want = args[op + 1];
        bool ok;
        if (args[op].text == "contains") {
          ok = got.kind != Value::Kind::kNone &&
               got.ToString().find(want.text) != std::string::npos;
        } else {
          ok = Matches(got, want);
        }
        if (ok) {
          ++totals.passed;
        } else {
          ++totals.failed;
          std::cout << where << "expected "
                    << (want.quoted ? Quote(Value::Text(want.text)) : want.text)
                    << " got " << Quote(got) << "\n";
        }
      } else if (verb == "show") {
        ctx.EnsureStarted();
        std::cout << where << Quote(RunProbe(registry, ctx, args)) << "\n";
      } else if (auto s = registry.setup.find(verb);
                 s != registry.setup.end() && !words[0].quoted) {
        Expect(!ctx.started, verb + " must come before the first action");
        s->second(ctx, args);
      } else if (const Command* a = FindAction(registry, words)) {
        ctx.EnsureStarted();
        // A command registered for "verb target" takes the target too.
        (*a)(ctx, args);
      } else {
        throw ScenarioError("unknown command: " + verb);
      }
    } catch (const std::exception& e) {
      std::cout << where << "error: " << e.what() << "\n";
      totals.error = true;
    }
  }
  std::error_code ignored;
  std::filesystem::remove_all(ctx.folder, ignored);
}

}  // namespace

void RegisterCore(Registry& registry) {
  registry.setup["start"] = [](Context& ctx, const Args& args) {
    Expect(args.empty(), "start takes no arguments");
    ctx.EnsureStarted();
  };
}

}  // namespace brenko::scenario

int main(int argc, char** argv) {
  using namespace brenko::scenario;
  if (argc < 2) {
    std::cerr << "usage: brenko-scenario FILE.scn [FILE.scn ...]\n";
    return 2;
  }
  Registry registry;
  RegisterCore(registry);
  RegisterMeasure(registry);
  RegisterCalc(registry);
  RegisterMemory(registry);
  RegisterShell(registry);
  RegisterClipboard(registry);
  Totals totals;
  for (int i = 1; i < argc; ++i) RunFile(registry, argv[i], totals);
  std::cout << totals.passed << " passed, " << totals.failed << " failed\n";
  return (totals.failed == 0 && !totals.error) ? 0 : 1;
}
