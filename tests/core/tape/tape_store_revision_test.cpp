// The tape store's change counts: every change a view must show moves them
// on, and nothing else does.

#include <gtest/gtest.h>

#include <cstdint>

#include "core/tape/tape_store.h"

namespace brenko {
namespace {

TEST(TapeStoreRevisionTest, WritingALineMovesItsColumnAndTheStoreOn) {
  TapeStore tapes;
  tapes.AddTape(1, "Stock");
  const std::uint64_t store = tapes.Revision();
  const std::uint64_t col0 = tapes.ColumnRevision(0);
  const std::uint64_t col1 = tapes.ColumnRevision(1);
  ReserveTapeLines(tapes, 1, 1);
  WriteTapeLine(tapes, 1, 1, "12 ");
  EXPECT_GT(tapes.Revision(), store);
  EXPECT_GT(tapes.ColumnRevision(1), col1);
  EXPECT_EQ(tapes.ColumnRevision(0), col0);
}

TEST(TapeStoreRevisionTest, WritingTheSameTextAgainChangesNothing) {
  TapeStore tapes;
  ReserveTapeLines(tapes, 0, 1);
  WriteTapeLine(tapes, 0, 1, "7 ");
  const std::uint64_t store = tapes.Revision();
  const std::uint64_t col0 = tapes.ColumnRevision(0);
  WriteTapeLine(tapes, 0, 1, "7 ");
  tapes.SetCell(5, 0, "");  // never written: stays unwritten
  tapes.SetRows(tapes.Rows());
  tapes.SetCols(tapes.Cols());
  EXPECT_EQ(tapes.Revision(), store);
  EXPECT_EQ(tapes.ColumnRevision(0), col0);
}

TEST(TapeStoreRevisionTest, ClearingALineCountsAsAChange) {
  TapeStore tapes;
  ReserveTapeLines(tapes, 0, 1);
  WriteTapeLine(tapes, 0, 1, "7 ");
  const std::uint64_t col0 = tapes.ColumnRevision(0);
  tapes.TakeBackLastLine(0);
  EXPECT_EQ(tapes.Cell(1, 0), "");
  EXPECT_GT(tapes.ColumnRevision(0), col0);
}

TEST(TapeStoreRevisionTest, TapesComingAndGoingMoveTheStoreOn) {
  TapeStore tapes;
  std::uint64_t before = tapes.Revision();
  tapes.AddTape(1, "Stock");
  EXPECT_GT(tapes.Revision(), before);
  before = tapes.Revision();
  tapes.DropMemoryTapes();
  EXPECT_GT(tapes.Revision(), before);
  before = tapes.Revision();
  tapes.ResetTapes();
  EXPECT_GT(tapes.Revision(), before);
}

TEST(TapeStoreRevisionTest, AColumnThatComesBackIsNotTakenForTheOldOne) {
  TapeStore tapes;
  tapes.AddTape(1, "Stock");
  ReserveTapeLines(tapes, 1, 1);
  WriteTapeLine(tapes, 1, 1, "3 ");
  const std::uint64_t seen = tapes.ColumnRevision(1);
  tapes.DropMemoryTapes();
  tapes.AddTape(1, "Stock");
  EXPECT_EQ(tapes.Cell(1, 1), "");
  EXPECT_NE(tapes.ColumnRevision(1), seen);
}

TEST(TapeStoreRevisionTest, CuttingRowsMovesTheWrittenColumnsOn) {
  TapeStore tapes;
  tapes.AddTape(1, "Stock");
  ReserveTapeLines(tapes, 1, 3);
  WriteTapeLine(tapes, 1, 3, "4 ");
  const std::uint64_t col1 = tapes.ColumnRevision(1);
  tapes.SetRows(2);
  EXPECT_EQ(tapes.Cell(3, 1), "");
  EXPECT_GT(tapes.ColumnRevision(1), col1);
}

TEST(TapeStoreRevisionTest, ReservingLinesMovesTheStoreOn) {
  TapeStore tapes;
  const std::uint64_t before = tapes.Revision();
  ReserveTapeLines(tapes, 0, 1);
  EXPECT_EQ(tapes.TapeLineCount()[0], 1);
  EXPECT_GT(tapes.Revision(), before);
}

}  // namespace
}  // namespace brenko
