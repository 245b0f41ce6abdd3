// The tape store: reserving, writing, clearing and scrolling tapes.

#include "core/tape/tape_store.h"

#include <gtest/gtest.h>

namespace brenko {
namespace {

TEST(TapeStoreTest, StartsWithTheCalculatorsEmptyTape) {
  TapeStore tapes;
  ASSERT_EQ(tapes.TapeLineCount().size(), 1u);
  EXPECT_EQ(tapes.TapeLineCount()[0], 0);
  EXPECT_EQ(tapes.TapeNames()[0], "Calculator");
  EXPECT_EQ(tapes.Rows(), 1);
  EXPECT_EQ(tapes.Cols(), 1);
}

TEST(TapeStoreTest, FreshTapeClearedHoldsBlankClearBlank) {
  TapeStore tapes;
  ClearTape(tapes, 0);
  EXPECT_EQ(tapes.TapeLineCount()[0], 3);
  EXPECT_EQ(tapes.Cell(1, 0), " ");
  EXPECT_EQ(tapes.Cell(2, 0), "Clear ");
  EXPECT_EQ(tapes.Cell(3, 0), " ");
  EXPECT_EQ(tapes.Rows(), 13);
}

TEST(TapeStoreTest, ClearingAfterLinesAppendsBelowThem) {
  TapeStore tapes;
  ReserveTapeLines(tapes, 0, 1);
  WriteTapeLine(tapes, 0, 1, "5 ");
  ClearTape(tapes, 0);
  EXPECT_EQ(tapes.TapeLineCount()[0], 4);
  EXPECT_EQ(tapes.Cell(1, 0), "5 ");
  EXPECT_EQ(tapes.Cell(3, 0), "Clear ");
}

TEST(TapeStoreTest, ReserveKeepsTenSpareRows) {
  TapeStore tapes;
  ReserveTapeLines(tapes, 0, 3);
  EXPECT_EQ(tapes.TapeLineCount()[0], 3);
  EXPECT_EQ(tapes.Rows(), 13);
  ReserveTapeLines(tapes, 0, 1);
  EXPECT_EQ(tapes.Rows(), 14);
}

TEST(TapeStoreTest, ReservingOnAShortTapeDoesNotShrinkTheGrid) {
  TapeStore tapes;
  tapes.AddTape(1, "Memory 1");
  ReserveTapeLines(tapes, 0, 50);
  ASSERT_EQ(tapes.Rows(), 60);
  ReserveTapeLines(tapes, 1, 3);
  EXPECT_EQ(tapes.TapeLineCount()[1], 3);
  EXPECT_EQ(tapes.Rows(), 60);
}

TEST(TapeStoreTest, CountThatWouldPass32767StaysUnchanged) {
  TapeStore tapes;
  ReserveTapeLines(tapes, 0, 32766);
  ReserveTapeLines(tapes, 0, 3);
  EXPECT_EQ(tapes.TapeLineCount()[0], 32766);
  ReserveTapeLines(tapes, 0, 1);
  EXPECT_EQ(tapes.TapeLineCount()[0], 32767);
}

TEST(TapeStoreTest, SpareRowsBeyond16BitsLeaveTheGridAlone) {
  TapeStore tapes;
  ReserveTapeLines(tapes, 0, 32760);
  ReserveTapeLines(tapes, 0, 1);
  EXPECT_EQ(tapes.TapeLineCount()[0], 32761);
  EXPECT_EQ(tapes.Rows(), 1);
}

TEST(TapeStoreTest, ReserveOnAMissingTapeDoesNothing) {
  TapeStore tapes;
  ReserveTapeLines(tapes, 1, 3);
  ReserveTapeLines(tapes, -1, 3);
  EXPECT_EQ(tapes.TapeLineCount().size(), 1u);
  EXPECT_EQ(tapes.TapeLineCount()[0], 0);
  EXPECT_EQ(tapes.Rows(), 1);
}

TEST(TapeStoreTest, ClearingAMissingTapeWritesNothing) {
  TapeStore tapes;
  ClearTape(tapes, 5);
  EXPECT_EQ(tapes.Rows(), 1);
  EXPECT_EQ(tapes.TapeLineCount()[0], 0);
}

TEST(TapeStoreTest, WriteSelectsTheCell) {
  TapeStore tapes;
  ReserveTapeLines(tapes, 0, 2);
  WriteTapeLine(tapes, 0, 2, "x ");
  EXPECT_EQ(tapes.row, 2);
  EXPECT_EQ(tapes.col, 0);
  EXPECT_EQ(tapes.Cell(2, 0), "x ");
  EXPECT_EQ(tapes.Cell(1, 0), "");
}

TEST(TapeStoreTest, WriteToAMissingTapeOrRowDoesNothing) {
  TapeStore tapes;
  ReserveTapeLines(tapes, 0, 1);
  WriteTapeLine(tapes, 3, 1, "lost ");
  WriteTapeLine(tapes, 0, 500, "lost ");
  WriteTapeLine(tapes, 0, -1, "lost ");
  EXPECT_EQ(tapes.Cols(), 1);
  EXPECT_EQ(tapes.row, 0);
  EXPECT_EQ(tapes.Cell(1, 0), "");
}

TEST(TapeStoreTest, GridColumnsFollowTheTapes) {
  TapeStore tapes;
  tapes.AddTape(2, "b");
  EXPECT_EQ(tapes.Cols(), 3);
  EXPECT_EQ(tapes.TapeNames(),
            (std::vector<std::string>{"Calculator", "", "b"}));
  EXPECT_EQ(tapes.TapeLineCount(), (std::vector<std::int16_t>{0, 0, 0}));
  ReserveTapeLines(tapes, 2, 1);
  WriteTapeLine(tapes, 2, 1, "+ 5 ");
  EXPECT_EQ(tapes.Cols(), 3);
  EXPECT_EQ(tapes.Cell(1, 2), "+ 5 ");
}

TEST(TapeStoreTest, CellOutsideTheGridReadsEmpty) {
  TapeStore tapes;
  EXPECT_EQ(tapes.Cell(-1, 0), "");
  EXPECT_EQ(tapes.Cell(0, 7), "");
  EXPECT_EQ(tapes.Cell(40000, 0), "");
}

TEST(TapeStoreTest, CuttingRowsDropsTheLinesBelow) {
  TapeStore tapes;
  ReserveTapeLines(tapes, 0, 5);
  for (int n = 1; n <= 5; ++n) WriteTapeLine(tapes, 0, n, "line ");
  tapes.topRow = 4;
  tapes.SetRows(1);
  EXPECT_EQ(tapes.Rows(), 1);
  EXPECT_EQ(tapes.row, 0);
  EXPECT_EQ(tapes.topRow, 0);
  tapes.SetRows(10);
  EXPECT_EQ(tapes.Cell(3, 0), "");
}

TEST(TapeStoreTest, FullTapeAndTwoHundredTapesStayCheap) {
  TapeStore tapes;
  for (int k = 1; k <= 200; ++k) tapes.AddTape(k, "m");
  for (int n = 0; n < 32767; ++n) {
    ReserveTapeLines(tapes, 0, 1);
    WriteTapeLine(tapes, 0, tapes.TapeLineCount()[0], "+ 1 ");
  }
  for (int k = 1; k <= 200; ++k) ClearTape(tapes, k);
  EXPECT_EQ(tapes.TapeLineCount()[0], 32767);
  EXPECT_EQ(tapes.Cell(32766, 0), "+ 1 ");
  // The spare rows stop growing once count + 10 passes 16 bits, so the grid
  // ends at row 32766 and the very last line has no row to go to.
  EXPECT_EQ(tapes.Rows(), 32767);
  EXPECT_EQ(tapes.Cell(32767, 0), "");
  EXPECT_EQ(tapes.Cell(2, 200), "Clear ");
  EXPECT_EQ(tapes.Cell(4, 200), "");
  EXPECT_EQ(tapes.Cols(), 201);
}

// --- scrolling -------------------------------------------------------------

TEST(ScrollTapeToEndTest, FewerLinesThanVisibleRowsShowsTheTop) {
  TapeStore tapes;
  tapes.height = 1125;
  tapes.rowHeight1 = 240;  // four whole rows
  ReserveTapeLines(tapes, 0, 3);
  tapes.topRow = 9;
  ScrollTapeToEnd(tapes);
  EXPECT_EQ(tapes.topRow, 0);
}

TEST(ScrollTapeToEndTest, LastLineIsTheLastVisibleRow) {
  TapeStore tapes;
  tapes.height = 1125;
  tapes.rowHeight1 = 240;
  ReserveTapeLines(tapes, 0, 20);
  ScrollTapeToEnd(tapes);
  EXPECT_EQ(tapes.topRow, 17);
}

TEST(ScrollTapeToEndTest, AsManyLinesAsRowsStartsAtRowOne) {
  TapeStore tapes;
  tapes.height = 960;
  tapes.rowHeight1 = 240;
  ReserveTapeLines(tapes, 0, 4);
  ScrollTapeToEnd(tapes);
  EXPECT_EQ(tapes.topRow, 1);
}

TEST(ScrollTapeToEndTest, GridHeightRoundsHalfToEven) {
  TapeStore tapes;
  tapes.rowHeight1 = 2;
  ReserveTapeLines(tapes, 0, 10);
  tapes.height = 4.5f;  // rounds to 4: two rows
  ScrollTapeToEnd(tapes);
  EXPECT_EQ(tapes.topRow, 9);
  tapes.height = 5.5f;  // rounds to 6: three rows
  ScrollTapeToEnd(tapes);
  EXPECT_EQ(tapes.topRow, 8);
}

TEST(ScrollTapeToEndTest, FollowsTheShownTape) {
  TapeStore tapes;
  tapes.AddTape(1, "Memory 1");
  ReserveTapeLines(tapes, 0, 2);
  ReserveTapeLines(tapes, 1, 30);
  tapes.height = 1125;
  tapes.rowHeight1 = 240;
  tapes.ShownTape = 1;
  ScrollTapeToEnd(tapes);
  EXPECT_EQ(tapes.topRow, 27);
}

TEST(ScrollTapeToEndTest, RowHeightOfNothingCountsNoRows) {
  TapeStore tapes;
  tapes.rowHeight1 = 0;
  ReserveTapeLines(tapes, 0, 5);
  ScrollTapeToEnd(tapes);
  EXPECT_EQ(tapes.topRow, 6);
}

TEST(ScrollTapeToEndTest, MissingShownTapeShowsTheTop) {
  TapeStore tapes;
  tapes.ShownTape = 4;
  tapes.topRow = 3;
  ScrollTapeToEnd(tapes);
  EXPECT_EQ(tapes.topRow, 0);
}

}  // namespace
}  // namespace brenko
