#pragma once
// All tapes side by side in one grid: tape k is column k, line n of a tape is
// row n of that column. Only written cells take memory, so a tape of 32767
// lines next to two hundred short ones stays cheap.

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace brenko {

class TapeStore {
 public:
  // --- the grid -----------------------------------------------------------
  std::int32_t Rows() const { return rows_; }
  void SetRows(std::int32_t rows);
  std::int32_t Cols() const { return cols_; }
  void SetCols(std::int32_t cols);
  // An unwritten cell (or one outside the grid) reads as the empty text.
  const std::string& Cell(std::int32_t row, std::int32_t col) const;
  void SetCell(std::int32_t row, std::int32_t col, std::string text);
  // The grid's current cell, as the writers select it.
  std::int32_t row = 0;
  std::int32_t col = 0;
  std::int32_t topRow = 0;
  std::int32_t leftCol = 0;
  float height = 1125;     // twips
  float rowHeight1 = 240;  // twips, the height of row 1

  // --- the tapes ----------------------------------------------------------
  // The calculator's own tape exists from the start; the tape window's load
  // resets the store to exactly this.
  std::vector<std::int16_t> TapeLineCount{0};
  std::vector<std::string> TapeNames{"Calculator"};
  std::int16_t ShownTape = 0;

 private:
  std::int32_t rows_ = 1;
  std::int32_t cols_ = 1;
  std::unordered_map<std::uint64_t, std::string> cells_;
};

// The writers' operations. A tape number outside TapeLineCount makes each
// step that indexes it do nothing, and a count that would pass 32767 is left
// unchanged.
void ReserveTapeLines(TapeStore& tapes, int tape, int count);
void WriteTapeLine(TapeStore& tapes, int tape, int row,
                   const std::string& text);
void ClearTape(TapeStore& tapes, int tape);
void ScrollTapeToEnd(TapeStore& tapes);

}  // namespace brenko
