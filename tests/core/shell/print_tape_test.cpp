#include "core/tape/print_tape.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/commands/app.h"
#include "core/commands/menus.h"
#include "core/commands/tape_handlers.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::TestProgram;
using Lines = std::vector<std::string>;

class PrintTapeTest : public testing::Test {
 protected:
  void SetUp() override { t_.Start(); }
  // Appends lines to a tape the way the writers do.
  void Write(int tape, const Lines& lines) {
    ReserveTapeLines(app_.tapes, tape, static_cast<int>(lines.size()));
    const int count = app_.tapes.TapeLineCount()[static_cast<size_t>(tape)];
    int row = count - static_cast<int>(lines.size()) + 1;
    for (const std::string& line : lines) {
      WriteTapeLine(app_.tapes, tape, row++, line);
    }
  }
  // A further tape, as a new memory adds one.
  void AddTape(const std::string& name) {
    app_.tapes.AddTape(static_cast<int>(app_.tapes.TapeLineCount().size()),
                       name);
  }
  const FakePlatform::Document& Doc(size_t i) const {
    return t_.platform.documents.at(i);
  }
  TestProgram t_;
  App& app_ = t_.app;
};

TEST_F(PrintTapeTest, EachPrintCommandIsOneJob) {
  AddTape("Memory 1");
  app_.memory.nextNumber = 2;
  mnuPrint_Click(app_);
  mnuPrintAll_Click(app_);
  EXPECT_EQ(t_.platform.printJobsBegun, 2);
  EXPECT_EQ(t_.platform.printJobsEnded, 2);
  EXPECT_EQ(t_.platform.documents.size(), 3u);
}

TEST_F(PrintTapeTest, ACancelledPrintDialogPrintsNothing) {
  t_.platform.printJob = PrintJob::kCancelled;
  mnuPrint_Click(app_);
  mnuPrintAll_Click(app_);
  EXPECT_TRUE(t_.platform.documents.empty());
  EXPECT_TRUE(t_.platform.pending.lines.empty());
  EXPECT_TRUE(t_.platform.messages.empty());
  EXPECT_EQ(t_.platform.printJobsEnded, 0);
}

TEST_F(PrintTapeTest, NoPrinterIsSaid) {
  t_.platform.printJob = PrintJob::kNoPrinter;
  mnuPrintAll_Click(app_);
  EXPECT_TRUE(t_.platform.documents.empty());
  ASSERT_EQ(t_.platform.messages.size(), 1u);
  EXPECT_EQ(t_.platform.messages[0].text, "No printer is available.");
  EXPECT_EQ(t_.platform.messages[0].title, "Error");
}

TEST_F(PrintTapeTest, UsesFivePointCourier) {
  PrintTape(app_.tapes, t_.platform, 0);
  ASSERT_EQ(t_.platform.documents.size(), 1u);
  EXPECT_EQ(Doc(0).fontName, "Courier");
  EXPECT_EQ(Doc(0).fontSize, 5);
}

TEST_F(PrintTapeTest, AnEmptyTapePrintsItsNameAndRowZero) {
  PrintTape(app_.tapes, t_.platform, 0);
  EXPECT_EQ(Doc(0).lines, (Lines{"Calculator", "          "}));
}

TEST_F(PrintTapeTest, AClearedTapePrintsTheClearLineRightAligned) {
  ClearTape(app_.tapes, 0);
  PrintTape(app_.tapes, t_.platform, 0);
  EXPECT_EQ(Doc(0).lines, (Lines{"Calculator", "          ", "          ",
                                 "     Clear", "          "}));
}

TEST_F(PrintTapeTest, ANameLongerThanAllLinesIsFlushLeft) {
  Write(0, {"5'- 0\" ", "+ 3'- 6\" "});
  PrintTape(app_.tapes, t_.platform, 0);
  EXPECT_EQ(Doc(0).lines,
            (Lines{"Calculator", "          ", "    5'- 0\"", "  + 3'- 6\""}));
}

TEST_F(PrintTapeTest, ANameShorterThanTheLinesIsCentredWithTheOddBlankRight) {
  AddTape("Wall");
  Write(1, {"12'- 7 3/16\" ", "--------------- ", " 12'- 7 3/16\" "});
  PrintTape(app_.tapes, t_.platform, 1);
  // Width 15 (the separator; "12'- 7 3/16\"" is 12), so (15 - 4) \ 2 = 5
  // blanks before the name.
  EXPECT_EQ(Doc(0).lines,
            (Lines{"     Wall", "               ", "   12'- 7 3/16\"",
                   "---------------", "   12'- 7 3/16\""}));
}

TEST_F(PrintTapeTest, OddLeftoverFallsOnTheRight) {
  AddTape("M");
  Write(1, {"1234"});
  PrintTape(app_.tapes, t_.platform, 1);
  EXPECT_EQ(Doc(0).lines, (Lines{" M", "    ", "1234"}));
}

TEST_F(PrintTapeTest, TrailingBlanksDoNotShiftTheRightEdge) {
  Write(0, {"1'- 0\"      ", "   2'- 0\" "});
  AddTape("X");
  PrintTape(app_.tapes, t_.platform, 0);
  EXPECT_EQ(Doc(0).lines[2], "    1'- 0\"");
  EXPECT_EQ(Doc(0).lines[3], "    2'- 0\"");
}

TEST_F(PrintTapeTest, LengthsCountCharactersNotBytes) {
  AddTape("Fläche");
  Write(1, {" 4'- 0\" sq. ", "x²"});
  PrintTape(app_.tapes, t_.platform, 1);
  // " 4'- 0\" sq." trimmed is 10 characters; "Fläche" is 6, "x²" is 2.
  EXPECT_EQ(Doc(0).lines,
            (Lines{"  Fläche", "          ", "4'- 0\" sq.", "        x²"}));
  EXPECT_EQ(CharacterCount("x²"), 2u);
  EXPECT_EQ(CharacterCount(""), 0u);
}

TEST_F(PrintTapeTest, SelectsTheColumnAndEndsOnTheLastRow) {
  AddTape("Memory 1");
  Write(1, {"a", "b"});
  app_.tapes.col = 0;
  PrintTape(app_.tapes, t_.platform, 1);
  EXPECT_EQ(app_.tapes.col, 1);
  EXPECT_EQ(app_.tapes.row, 2);
}

TEST_F(PrintTapeTest, PrintingChangesNoTapeText) {
  Write(0, {" 5'- 0\" "});
  PrintTape(app_.tapes, t_.platform, 0);
  EXPECT_EQ(app_.tapes.Cell(1, 0), " 5'- 0\" ");
  EXPECT_EQ(app_.tapes.TapeLineCount()[0], 1);
}

TEST_F(PrintTapeTest, ATapeOutsideTheStorePrintsAnEmptyDocumentQuietly) {
  app_.tapes.col = 0;
  PrintTape(app_.tapes, t_.platform, 5);
  PrintTape(app_.tapes, t_.platform, -1);
  ASSERT_EQ(t_.platform.documents.size(), 2u);
  EXPECT_TRUE(Doc(0).lines.empty());
  EXPECT_EQ(app_.tapes.col, 0);
  EXPECT_TRUE(t_.platform.messages.empty());
}

TEST_F(PrintTapeTest, AWidthPastSixteenBitsStopsTheRoutine) {
  Write(0, {std::string(40000, '7')});
  PrintTape(app_.tapes, t_.platform, 0);
  EXPECT_TRUE(t_.platform.documents.empty());
  EXPECT_TRUE(t_.platform.pending.lines.empty());
}

TEST_F(PrintTapeTest, PrintAllPrintsOneDocumentPerNumberGivenOut) {
  // Two memories were made and the first one closed: its tape stays.
  AddTape("Memory 1");
  AddTape("Memory 2");
  app_.memory.nextNumber = 3;
  app_.memory.windowCounter = 2;
  mnuPrintAll_Click(app_);
  ASSERT_EQ(t_.platform.documents.size(), 3u);
  EXPECT_EQ(Doc(0).lines[0], "Calculator");
  EXPECT_EQ(Doc(1).lines[0], "Memory 1");
  EXPECT_EQ(Doc(2).lines[0], "Memory 2");
}

TEST_F(PrintTapeTest, PrintAllWithNoMemoryPrintsTheCalculatorsTape) {
  mnuPrintAll_Click(app_);
  EXPECT_EQ(t_.platform.documents.size(), 1u);
}

TEST_F(PrintTapeTest, MenuEntriesPrintTheCurrentColumn) {
  AddTape("Memory 1");
  app_.tapes.col = 1;
  EXPECT_TRUE(RunMenuCommand(app_, "mnuPrint"));
  EXPECT_TRUE(RunMenuCommand(app_, "mnuPopup2PrintTape"));
  ASSERT_EQ(t_.platform.documents.size(), 2u);
  EXPECT_EQ(Doc(0).lines[0], "Memory 1");
  EXPECT_EQ(Doc(1).lines[0], "Memory 1");
}

TEST_F(PrintTapeTest, MenuEntriesPrintAllTapes) {
  AddTape("Memory 1");
  app_.memory.nextNumber = 2;
  EXPECT_TRUE(RunMenuCommand(app_, "mnuPrintAll"));
  EXPECT_TRUE(RunMenuCommand(app_, "mnuPopup2PrintAllTapes"));
  EXPECT_EQ(t_.platform.documents.size(), 4u);
}

}  // namespace
}  // namespace brenko
