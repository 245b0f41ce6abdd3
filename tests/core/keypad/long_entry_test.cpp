// The entry keys decide from what the readout already holds (an inch mark
// refuses a point or a space, a second point needs a feet mark between). They
// remember that from key to key instead of reading the whole text again; here
// random key streams are typed into two programs, one through the real
// keyboard handler and one deciding each mark key by reading the whole text,
// and both must agree after every key.

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "core/commands/clipboard_handlers.h"
#include "core/commands/keypad_handlers.h"
#include "core/keypad/readout_entry.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

// The mark keys decided on the whole text, key by key.
void WholeTextPoint(std::string& text) {
  if (text == kPiText) return;
  if (text == "0.") {
    text = ".";
    return;
  }
  if (text.find('"') != std::string::npos) return;
  const std::size_t point = text.find('.');
  const std::size_t foot = text.find('\'');
  if (point == std::string::npos ||
      (foot != std::string::npos && point < foot)) {
    text += ".";
  }
}

void WholeTextInch(std::string& text) {
  if (text == kPiText) return;
  if (text.find('"') == std::string::npos) text += "\"";
}

void WholeTextSpace(std::string& text) {
  if (text == kPiText) return;
  if (text != "0." && !text.empty() && text.find('"') == std::string::npos) {
    text += " ";
  }
}

void WholeTextBackspace(std::string& text) {
  if (text.empty() || text == "0.") return;
  if (text.size() >= 3 && text.ends_with("'- ")) {
    text.resize(text.size() - 3);
  } else {
    text.pop_back();
  }
  if (text.empty()) text = "0.";
}

// What the reference program does for one key: the mark keys by reading the
// whole text, everything else through the program's own handlers.
void ReferenceKey(App& app, char key) {
  std::string& text = app.calculator.Readout().caption;
  switch (key) {
    case '.':
      WholeTextPoint(text);
      return;
    case '"':
      WholeTextInch(text);
      return;
    case ' ':
      WholeTextSpace(text);
      return;
    case '\b':
      WholeTextBackspace(text);
      return;
    default:
      Form_KeyPress(app, static_cast<unsigned char>(key));
  }
}

// Keys weighted towards long entries; 'P' is pi, 'V' a paste of a
// measurement, both outside the keyboard handler.
constexpr char kKeys[] = {'1',  '2',  '7',    '0', '9', '.', '.', '.',  '\'',
                          '\'', '"',  '"',    ' ', ' ', ' ', '/', '\b', '\b',
                          '\b', '\b', '\x1b', 'C', '+', '-', '*', '\r', '=',
                          'P',  'V',  '5',    '3', '4', '.', ' ', '\b', '8'};

void Press(TestProgram& program, char key, bool reference) {
  if (key == 'P') {
    Pi_Click(program.app);
  } else if (key == 'V') {
    Readout_Paste(program.app, "3' 4.5\"");
  } else if (reference) {
    ReferenceKey(program.app, key);
  } else {
    Form_KeyPress(program.app, static_cast<unsigned char>(key));
  }
}

TEST(LongEntryTest, RandomKeyStreamsMatchTheWholeTextDecisions) {
  std::mt19937 random(20261124);
  int longest = 0;
  int keysOnLongTexts = 0;
  for (int stream = 0; stream < 300; ++stream) {
    TestProgram fast;
    TestProgram reference;
    fast.Start();
    reference.Start();
    // Some streams rarely leave the entry, so that texts grow long.
    const int rareOperators = stream % 3;
    const int keys = rareOperators != 0
                         ? 3000 + static_cast<int>(random() % 5000)
                         : 200 + static_cast<int>(random() % 800);
    for (int k = 0; k < keys; ++k) {
      char key = kKeys[random() % sizeof kKeys];
      if (rareOperators != 0 &&
          std::string_view("\x1b"
                           "C+-*\r=PV")
                  .find(key) != std::string_view::npos &&
          random() % (rareOperators == 1 ? 20 : 1000) != 0) {
        key = "7. '\"\b17 "[random() % 9];
      }
      Press(fast, key, false);
      Press(reference, key, true);
      const std::string& text = fast.app.calculator.Readout().caption;
      ASSERT_EQ(text, reference.app.calculator.Readout().caption)
          << "stream " << stream << " key " << k;
      ASSERT_EQ(fast.app.calculator.ActionLabel().caption,
                reference.app.calculator.ActionLabel().caption);
      ASSERT_EQ(fast.app.calculator.Label1().caption,
                reference.app.calculator.Label1().caption);
      longest = std::max(longest, static_cast<int>(text.size()));
      if (text.size() >= 1000) ++keysOnLongTexts;
    }
    EXPECT_EQ(fast.TapeLines(0), reference.TapeLines(0)) << "stream " << stream;
    // Compared as texts: a NaN is not equal to itself.
    EXPECT_EQ(testing::PrintToString(fast.app.engine.PendingValue),
              testing::PrintToString(reference.app.engine.PendingValue));
  }
  // The streams did reach long entries, and kept typing on them.
  EXPECT_GT(longest, 2000);
  EXPECT_GT(keysOnLongTexts, 20000);
}

// Entries that start again after the readout was emptied or replaced by a
// result, a pasted value, pi or Cancel Entry, with the marks of the text
// before it no longer there.
TEST(LongEntryTest, AnEntryAfterAReplacedReadoutDecidesOnTheNewText) {
  const char* streams[] = {"1.5+234.",
                           "1.5\r+2.5.5",
                           "12\"\r.7 ",
                           "3'4.5\r*2. .",
                           "1.\x1b"
                           "2.",
                           "1\"\x1b"
                           "2 \"",
                           "7.7.\b\b.",
                           "1'- \b\b\b.",
                           "5\"+6\r \"3",
                           "9.\rC1.",
                           "P.\x1b.",
                           "V\x1b"
                           "1.",
                           "2.5-1\r-.5.",
                           "4'2\"\b\b.",
                           "1.2\r\b\b\b\b.",
                           "6/2\r.1."};
  for (const char* stream : streams) {
    TestProgram fast;
    TestProgram reference;
    fast.Start();
    reference.Start();
    for (const char* key = stream; *key != 0; ++key) {
      Press(fast, *key, false);
      Press(reference, *key, true);
      ASSERT_EQ(fast.app.calculator.Readout().caption,
                reference.app.calculator.Readout().caption)
          << stream << " at " << (key - stream);
    }
  }
}

}  // namespace
}  // namespace brenko
