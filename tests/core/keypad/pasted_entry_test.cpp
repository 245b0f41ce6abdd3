// Values from other programs: which texts are one measurement in the
// program's notation, what Paste does with them on the calculator, and
// what Copy takes from each window.

#include "core/keypad/pasted_entry.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/commands/calc_handlers.h"
#include "core/commands/clipboard_handlers.h"
#include "core/commands/memory_commands.h"
#include "core/commands/memory_handlers.h"
#include "core/measure/blanks.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;

struct Pasted {
  const char* clipboard;
  const char* entry;
};

// What the readout shows, what the reader takes, and the usual company of
// a copied cell (blanks, a line end).
const Pasted kAccepted[] = {
    {"18'- 1 3/16\"", "18'- 1 3/16\""},
    {" 18'- 1 3/16\"", "18'- 1 3/16\""},
    {"54'- 42 3/4\" sq.", "54'- 42 3/4\" sq."},
    {"2'- 100 1/2\" sq.", "2'- 100 1/2\" sq."},
    {"1'- 3\" cu.", "1'- 3\" cu."},
    {"12 sq", "12 sq"},
    {"12'- 7\"", "12'- 7\""},
    {"12'-7-3/16\"", "12'-7-3/16\""},
    {"12'- 7", "12'- 7"},
    {"12'- ", "12'-"},
    {"12'", "12'"},
    {"2.5'", "2.5'"},
    {"7 3/16\"", "7 3/16\""},
    {"7 3/16", "7 3/16"},
    {"3/16\"", "3/16\""},
    {"3/16", "3/16"},
    {"-3/16\"", "-3/16\""},
    {"- 7 3/16\"", "- 7 3/16\""},
    {"- 12'- 7\"", "- 12'- 7\""},
    {"- 0\"", "- 0\""},
    {"7\"", "7\""},
    {"151.1875", "151.1875"},
    {"-.5", "-.5"},
    {".5", ".5"},
    {"0.", "0."},
    {"5", "5"},
    {"  42  ", "42"},
    {"\t42\t", "42"},
    {"42\n", "42"},
    {"42\r\n", "42"},
    {"42\n\n  \n", "42"},
};

TEST(PastedEntry, TakesEveryFormOfTheNotation) {
  for (const Pasted& p : kAccepted) {
    SCOPED_TRACE(p.clipboard);
    const std::optional<std::string> entry = PastedMeasurement(p.clipboard);
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(*entry, p.entry);
  }
}

std::vector<std::string> RefusedTexts() {
  return {"",
          "   ",
          "\n42",
          "abc",
          "1 2 3",
          "12 apples",
          "ERROR",
          "+5",
          "--5",
          "5-",
          "1/",
          "/16",
          "7 3/",
          "1.2.3",
          ".",
          "'",
          "\"",
          "3' 4' 5'",
          "12\"\"",
          "12 sq sq",
          "12 sqft",
          "4e5",
          "1,5",
          "1\x01",
          std::string("1\0"
                      "2",
                      3),
          "1\t2",
          "42\n43",
          "42\r\n43\r\n",
          std::string(10000, '1'),
          std::string(65, '1'),
          "\xC2\xBD"};
}

TEST(PastedEntry, RefusesAnythingElse) {
  for (const std::string& text : RefusedTexts()) {
    SCOPED_TRACE(text.substr(0, 40));
    EXPECT_FALSE(PastedMeasurement(text).has_value());
  }
}

TEST(PastedEntry, SixtyFourCharactersAreTheMost) {
  EXPECT_TRUE(PastedMeasurement(std::string(64, '1')).has_value());
  EXPECT_FALSE(PastedMeasurement(std::string(65, '1')).has_value());
  // Blanks around the value do not count.
  EXPECT_TRUE(
      PastedMeasurement("  " + std::string(64, '1') + "  \n").has_value());
}

class PasteTest : public ::testing::Test, public TestProgram {
 protected:
  void SetUp() override { Start(); }
};

TEST_F(PasteTest, APastedValueIsTheEntryTheNextOperatorUses) {
  Type("2'=");
  Plus_Click(app);
  ASSERT_TRUE(Readout_Paste(app, " 1'- 6\"\n"));
  EXPECT_EQ(app.calculator.Readout().caption, "1'- 6\"");
  Equal_Click(app);
  EXPECT_EQ(app.calculator.Readout().caption, " 3'- 6\"");
  EXPECT_EQ(platform.beeps, 0);
}

TEST_F(PasteTest, PastingIsKeyingTheSameText) {
  TestProgram keyed;
  keyed.Start();
  keyed.Type("7 3/16\"");
  ASSERT_TRUE(Readout_Paste(app, "7 3/16\""));
  EXPECT_EQ(app.calculator.Readout().caption,
            keyed.app.calculator.Readout().caption);
  Type("=*3=");
  keyed.Type("=*3=");
  EXPECT_EQ(app.calculator.Readout().caption,
            keyed.app.calculator.Readout().caption);
  EXPECT_EQ(TapeLines(), keyed.TapeLines());
  EXPECT_EQ(app.calculator.Readout().caption, " 1'- 9 9/16\"");
}

TEST_F(PasteTest, ARefusedTextBeepsOnceAndChangesNothing) {
  Type("12'7");
  ASSERT_EQ(app.calculator.Readout().caption, "12'- 7");
  const std::vector<std::string> before = TapeLines();
  for (const std::string& text : RefusedTexts()) {
    SCOPED_TRACE(text.substr(0, 40));
    const int beeps = platform.beeps;
    EXPECT_FALSE(Readout_Paste(app, text));
    EXPECT_EQ(platform.beeps, beeps + 1);
    EXPECT_EQ(app.calculator.Readout().caption, "12'- 7");
  }
  EXPECT_EQ(TapeLines(), before);
}

TEST_F(PasteTest, OutsideAFormulaThePromptLineEmptiesAsForADigit) {
  app.calculator.Label1().caption = "a note";
  ASSERT_TRUE(Readout_Paste(app, "5"));
  EXPECT_EQ(app.calculator.Label1().caption, "");
}

TEST_F(PasteTest, CopyTakesTheReadoutWithoutItsLeadingBlank) {
  Type("18'=+1 3/16\"=");
  EXPECT_EQ(app.calculator.Readout().caption, " 18'- 1 3/16\"");
  EXPECT_EQ(Calculator_CopyText(app), "18'- 1 3/16\"");
  Type("c18'=*3'1\"=");
  EXPECT_EQ(Calculator_CopyText(app),
            app.calculator.Readout().caption.substr(1));
  EXPECT_NE(Calculator_CopyText(app).find(" sq."), std::string::npos);
}

TEST_F(PasteTest, ACopiedReadoutPastesBackAsTheSameValue) {
  Type("18'=+1 3/16\"=");
  const std::string copied = Calculator_CopyText(app);
  Cancel_Click(app);
  ASSERT_EQ(copied, "18'- 1 3/16\"");
  ASSERT_TRUE(Readout_Paste(app, copied));
  EXPECT_EQ(app.calculator.Readout().caption, copied);
}

TEST_F(PasteTest, CopyTakesAMemorysValue) {
  NewMemory_Click(app);
  EXPECT_EQ(MemoryForm_CopyText(app, 1), "0.");
  Type("3'- 2\"=");
  RunMemoryCommand(app, 1, MemoryCommand::kAddReadout);
  ASSERT_EQ(Memory(1).label1.caption, " 3'- 2\" ");
  EXPECT_EQ(MemoryForm_CopyText(app, 1), "3'- 2\"");
  EXPECT_EQ(MemoryForm_CopyText(app, 7), "");
}

TEST_F(PasteTest, CopyTakesTheShownTapesLines) {
  Type("5=+3=");
  const std::vector<std::string> lines = TapeLines();
  ASSERT_GE(lines.size(), 3u);
  std::string whole;
  for (const std::string& line : lines) {
    whole +=
        (whole.empty() ? "" : "\n") + std::string(TrimTrailingBlanks(line));
  }
  EXPECT_EQ(TapeForm_CopyText(app, {}), whole);
  const std::string second(TrimTrailingBlanks(lines[1]));
  const std::string first(TrimTrailingBlanks(lines[0]));
  EXPECT_EQ(TapeForm_CopyText(app, {2, 1, 2, 99}), first + "\n" + second);
  // Another tape shown: its lines, not the calculator's.
  NewMemory_Click(app);
  RunMemoryCommand(app, 1, MemoryCommand::kAddReadout);
  EXPECT_EQ(app.tapes.ShownTape, 1);
  // The drop keeps the readout's leading blank after the sign.
  EXPECT_EQ(TapeForm_CopyText(app, {}), " +  8\"\n----------------\n 8\"");
}

// The heading row and rows below the tape are no lines: picked alone they
// copy the whole tape rather than nothing.
TEST_F(PasteTest, CopyOfNoTapeLineTakesTheWholeTape) {
  Type("5=+3=");
  const std::string whole = TapeForm_CopyText(app, {});
  ASSERT_NE(whole.find("8\""), std::string::npos);
  EXPECT_EQ(TapeForm_CopyText(app, {0}), whole);
  EXPECT_EQ(TapeForm_CopyText(app, {0, 99}), whole);
  EXPECT_EQ(TapeForm_CopyText(app, {0, 2}),
            std::string(TrimTrailingBlanks(TapeLines()[1])));
}

}  // namespace
}  // namespace brenko
