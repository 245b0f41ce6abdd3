#include "core/shell/random_user.h"

#include <iterator>
#include <limits>
#include <utility>

#include "core/commands/converter_handlers.h"
#include "core/commands/drag_handlers.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/keys.h"
#include "core/commands/menus.h"
#include "core/converter/converter.h"
#include "core/memory/memory_drag.h"

namespace brenko::testing_support {

namespace {

// The characters a user types most: digits and everything the keyboard map
// answers (Enter 13, Escape 27, Backspace 8).
constexpr char kFavouriteKeys[] = "0123456789'\"/. \r\x1b\b+-*xc=XC";

// The keypad's controls that have a Click handler, as the Qt keypad names
// them; "Nothing" stands for a name no control has.
constexpr const char* kKeys[] = {
    "Decimal",       "Foot",        "Inch",      "Spacebar", "Backspace",
    "Cancel",        "CancelEntry", "Pi",        "Plus",     "Minus",
    "Multiply",      "Divide",      "Equal",     "Square",   "SquareRoot",
    "Circumference", "CircArea",    "CylVolume", "Nothing"};

// Texts for prompts, names and memory values: measurements in all their
// forms, odd ones, and the empty text (which cancels a prompt).
constexpr const char* kTexts[] = {"",
                                  " ",
                                  "5",
                                  "12'- 7 3/16\"",
                                  "3 sq",
                                  "2 cu",
                                  "-4'",
                                  "0",
                                  "0.",
                                  "3.14159265",
                                  "1/0",
                                  "/",
                                  "'- '- ",
                                  "1e308",
                                  "-1e308",
                                  "99999999999999999999",
                                  "abc",
                                  "Memory 7",
                                  "\"",
                                  "7\"5",
                                  "  12 sq ",
                                  "ERROR",
                                  "x",
                                  "1/2/3",
                                  "-",
                                  "--5-",
                                  ".",
                                  "memory 3",
                                  "\xc3\xbc\xc2\xb2"};

}  // namespace

RandomUser::RandomUser(App& app, FakePlatform& platform, std::uint32_t seed,
                       std::filesystem::path folder)
    : app_(app),
      platform_(platform),
      random_(seed),
      folder_(std::move(folder)) {}

int RandomUser::Below(int n) {
  return static_cast<int>(random_() % static_cast<std::uint32_t>(n));
}

float RandomUser::AnyCoordinate() {
  switch (Below(10)) {
    case 0:
      return 0;
    case 1:
      return -static_cast<float>(Below(40000));
    case 2: {
      constexpr float kEdges[] = {32767, 32768, -32768, -32769, 65536,
                                  1e6f,  1e9f,  -1e9f,  3e38f,  -3e38f};
      return kEdges[Below(10)];
    }
    case 3:
      return Chance(50) ? std::numeric_limits<float>::max()
                        : std::numeric_limits<float>::lowest();
    default:
      return static_cast<float>(Below(20000)) + 0.5f * Below(2);
  }
}

float RandomUser::DropX(float midpoint) {
  switch (Below(8)) {
    case 0:
      return midpoint;
    case 1:
      return midpoint - 1;
    case 2:
      return midpoint + 1;
    case 3:
      return Chance(50) ? std::numeric_limits<float>::infinity()
                        : -std::numeric_limits<float>::infinity();
    default:
      return AnyCoordinate();
  }
}

Rect RandomUser::AnyRect() {
  return {AnyCoordinate(), AnyCoordinate(), AnyCoordinate(), AnyCoordinate()};
}

std::string RandomUser::AnyText() {
  if (Chance(10)) {
    // A long text: a long name or value must not hurt anything.
    const char pieces[] = "0123456789 '\"/.-sqcu";
    std::string text;
    const int length = 100 + Below(1500);
    for (int i = 0; i < length; ++i) {
      text += pieces[Below(static_cast<int>(sizeof pieces) - 1)];
    }
    return text;
  }
  return kTexts[Below(static_cast<int>(std::size(kTexts)))];
}

std::string RandomUser::AnyPath() {
  switch (Below(9)) {
    case 0:
      return "";
    case 1:
      return folder_.string();  // a folder, not a file
    case 2:
      return (folder_ / "missing" / "sub" / "x.mem").string();
    case 3:
      return (folder_ / std::string(180, 'n')).string() + ".mem";
    case 4:
      return (folder_ / "no extension").string();
    case 5:
      return (folder_ / "two.dots.mem").string();
    case 6:
      return (folder_ / "b.mem").string();
    default:
      return (folder_ / "a.mem").string();
  }
}

int RandomUser::AnyMemoryNumber() {
  const auto& forms = app_.memory.Forms();
  if (!forms.empty() && Chance(90)) {
    return forms[static_cast<size_t>(Below(static_cast<int>(forms.size())))]
        ->number;
  }
  return Below(app_.memory.nextNumber + 2) - 1;
}

DragSource RandomUser::AnySource() {
  if (Chance(50)) return {DragSource::kReadout, 0};
  return {DragSource::kMemory, AnyMemoryNumber()};
}

QueuedAnswer RandomUser::AnyAnswer() {
  QueuedAnswer a;
  a.kind = static_cast<QueuedAnswer::Kind>(Below(7));
  if (a.kind == QueuedAnswer::Kind::kText) a.text = AnyText();
  if (a.kind == QueuedAnswer::Kind::kFile) a.text = AnyPath();
  if (a.kind == QueuedAnswer::Kind::kColor) {
    constexpr ColorNumber kColors[] = {0,
                                       16777215,
                                       16777216,
                                       -1,
                                       std::numeric_limits<int>::min(),
                                       std::numeric_limits<int>::max(),
                                       8421376,
                                       255};
    a.color =
        Chance(50) ? kColors[Below(8)] : static_cast<ColorNumber>(random_());
  }
  return a;
}

void RandomUser::QueueAnswers() {
  const int count = Below(4);
  for (int i = 0; i < count; ++i) platform_.answers.push_back(AnyAnswer());
}

void RandomUser::Queue(QueuedAnswer::Kind kind, const std::string& text) {
  QueuedAnswer a;
  a.kind = kind;
  a.text = text;
  platform_.answers.push_back(a);
}

void RandomUser::Step() {
  platform_.answers.clear();
  const int pick = Below(100);
  if (pick < 35) {
    TypeKey();
  } else if (pick < 52) {
    ClickKey();
  } else if (pick < 66) {
    MenuCommand();
  } else if (pick < 78) {
    Drag();
  } else if (pick < 85) {
    MemoryWindowEvent();
  } else if (pick < 89) {
    FrameEvent();
  } else if (pick < 92) {
    TapeEvent();
  } else if (pick < 95) {
    ConverterEvent();
  } else if (pick < 98) {
    CalculatorEvent();
  } else {
    MemoryFile();
  }
  // Printed documents are not looked at; a long run need not keep them.
  platform_.documents.clear();
}

void RandomUser::TypeKey() {
  const int code = Chance(75)
                       ? static_cast<unsigned char>(
                             kFavouriteKeys[Below(sizeof kFavouriteKeys - 1)])
                       : Below(256);
  last_ = "Form_KeyPress " + std::to_string(code);
  Form_KeyPress(app_, code);
}

void RandomUser::ClickKey() {
  if (Chance(40)) {
    const int digit = Below(12) - 1;  // -1 and 10 are no key
    last_ = "ClickControl Number " + std::to_string(digit);
    ClickControl(app_, "Number", digit);
    return;
  }
  const std::string name = kKeys[Below(static_cast<int>(std::size(kKeys)))];
  if (Chance(10)) {
    const int button = Below(4);
    last_ = "ControlMouseDown " + name + " " + std::to_string(button);
    ControlMouseDown(app_, name, -1, button);
    return;
  }
  QueueAnswers();  // the formula keys may prompt
  last_ = "ClickControl " + name;
  ClickControl(app_, name);
}

void RandomUser::MenuCommand() {
  const auto& entries = app_.menus.Entries();
  const MenuEntry entry =
      entries[static_cast<size_t>(Below(static_cast<int>(entries.size())))];
  if (entry.name == "Exit") return;
  int index = entry.index;
  if (entry.name == "mnuColor") index = Chance(90) ? Below(7) : Below(12) - 3;
  QueueAnswers();
  last_ = "RunMenuCommand " + entry.name + " " + std::to_string(index);
  RunMenuCommand(app_, entry.name, index);
}

void RandomUser::Drag() {
  const DragSource source = AnySource();
  const std::string from =
      source.kind == DragSource::kReadout
          ? "readout"
          : "memory " + std::to_string(source.memoryNumber);
  if (source.kind == DragSource::kReadout && Chance(20)) {
    const int button = Below(4);
    last_ = "Readout_MouseDown " + std::to_string(button);
    Readout_MouseDown(app_, button);
    return;
  }
  const float y = AnyCoordinate();
  const int target = Below(3);
  if (target == 0) {
    const float x = DropX(ReadoutMidpoint(app_.calculator.Readout()));
    last_ = "drag " + from + " to readout at " + std::to_string(x);
    Readout_DragOver(app_, source, x, y);
    if (Chance(80)) Readout_DragDrop(app_, source, x, y);
  } else if (target == 1 && !app_.memory.Forms().empty()) {
    const int number = AnyMemoryNumber();
    const MemoryForm* form = app_.memory.Find(number);
    if (form == nullptr) return;  // a closed window takes no drop
    const float x = DropX(MemoryMidpoint(form->label1));
    last_ = "drag " + from + " to memory " + std::to_string(number) + " at " +
            std::to_string(x);
    MemoryForm_Label1_DragOver(app_, number, source, x, y);
    if (Chance(80)) MemoryForm_Label1_DragDrop(app_, number, source, x, y);
  } else if (app_.converter.loaded && app_.converter.visible) {
    const float x = AnyCoordinate();
    last_ = "drag " + from + " to converter at " + std::to_string(x);
    Converter_Form_DragOver(app_, source, x, y);
    if (Chance(80)) Converter_Label1_DragDrop(app_, source, x, y);
  }
}

}  // namespace brenko::testing_support
